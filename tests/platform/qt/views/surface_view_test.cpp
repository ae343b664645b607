#include "platform/qt/views/surface_view.h"

#include <QApplication>
#include <QPaintEvent>
#include <QTest>
#include <gtest/gtest.h>

namespace {

// Gathers what the widget was asked to paint.
class PaintLog : public QObject {
 public:
  QRegion Take() { return std::exchange(painted_, {}); }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted_ += static_cast<QPaintEvent*>(event)->region();
    return false;
  }

 private:
  QRegion painted_;
};

class SurfaceViewTest : public testing::Test {
 protected:
  SurfaceViewTest() {
    view.resize(120, 80);
    view.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
    box.Blt(surface, surface.Area());
    QApplication::processEvents();
    view.installEventFilter(&log);
  }
  QImage Picture() { return view.grab().toImage().convertToFormat(QImage::Format_RGB32); }

  PaintLog log;
  PictureBox box;
  SurfaceView view{box};
  Raster surface{100, 80};
};

TEST_F(SurfaceViewTest, OnlyTheChangeIsPainted) {
  surface.Fill({10, 20, 15, 26}, Rgb(10, 20, 30));
  // Beside what is told to have changed.
  surface.SetPixel(50, 50, Rgb(255, 0, 0));
  box.Blt(surface, {10, 20, 15, 26});
  QApplication::processEvents();
  EXPECT_EQ(QRegion(10, 20, 5, 6), log.Take());
  box.Blt(surface, {});
  QApplication::processEvents();
  EXPECT_TRUE(log.Take().isEmpty());
  const QImage picture = Picture();
  EXPECT_EQ(0xFF0A141E, picture.pixel(14, 25));
  EXPECT_EQ(0xFF000000, picture.pixel(15, 25));
  EXPECT_EQ(0xFF000000, picture.pixel(50, 50));
}

TEST_F(SurfaceViewTest, APaintFirstAsksForWhatWasNeverCopied) {
  view.Paint = [this] {
    surface.SetPixel(3, 4, Rgb(0, 0, 255));
    box.Blt(surface, {3, 4, 4, 5});
  };
  EXPECT_EQ(0xFF0000FF, Picture().pixel(3, 4));
}

TEST_F(SurfaceViewTest, WhatIsMeasuredStandsBesideThePointer) {
  std::string unit = " mm";
  view.Measure = [&](int x, int y) {
    return unit.empty() ? unit : std::to_string(x) + ' ' + std::to_string(y) + unit;
  };
  const QLabel& label = *view.findChild<QLabel*>("lblMeasure");
  for (const QPoint& place : {QPoint(2, 3), QPoint(119, 79), QPoint(119, 3)}) {
    QTest::mouseMove(&view, place);
    EXPECT_EQ(QString("%1 %2 mm").arg(place.x()).arg(place.y()), label.text());
    EXPECT_TRUE(label.isVisible() && view.rect().contains(label.geometry()));
    EXPECT_FALSE(label.geometry().contains(place));
  }
  unit.clear();
  box.Blt(surface, {});
  EXPECT_FALSE(label.isVisible()) << "a run has begun";
  unit = " mm";
  QTest::mouseMove(&view, {5, 5});
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&view, &leave);
  EXPECT_FALSE(label.isVisible());
}

}  // namespace

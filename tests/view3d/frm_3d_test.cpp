// frm3D by its keys. The offscreen platform has no OpenGL; under X what the screen shows is
// compared with rays traced through the profile.

#include "view3d/frm_3d.h"

#include <QMatrix4x4>
#include <QTest>
#include <QtWidgets>
#include <cmath>
#include <gtest/gtest.h>

#include "mainwindow/control_surface.h"
#include "motion/stock.h"
#include "settings/settings.h"

// Whether the part lies behind a corner of pixels; the screen has 160x120.
static bool IsPart(const QMatrix4x4& toPart, int column, int row) {
  const QVector3D middle(QPointF(column / 80.0 - 1, 1 - row / 60.0));
  const QVector3D near = toPart.map(middle - QVector3D(0, 0, 1));
  const QVector3D far = toPart.map(middle + QVector3D(0, 0, 1));
  for (short step = 0; step < 500; ++step) {
    const QVector3D point = near + step / 500.0F * (far - near);
    const float fromFace = 100 - 50 * point.x();
    if (fromFace < 0 || fromFace >= 200) continue;
    const float radius = Graphics::StockProfile[static_cast<std::size_t>(fromFace) + 1].Radius;
    if (50 * std::hypot(point.y(), point.z()) < radius) return true;
  }
  return false;
}

// Counts the pixels whose surroundings lie within the part, or outside, and which don't show it.
static int WrongPixels(const QMatrix4x4& toPart, const QImage& picture) {
  int wrong = 0;
  for (int k = 0; k < 160 * 120; ++k) {
    const int x = k % 160;
    const int y = k / 160;
    const int corners = IsPart(toPart, x - 1, y - 1) + IsPart(toPart, x + 2, y - 1) +
                        IsPart(toPart, x - 1, y + 2) + IsPart(toPart, x + 2, y + 2);
    wrong += corners % 4 == 0 && (corners == 4) != (picture.pixel(x, y) != qRgb(0, 0, 0));
  }
  return wrong;
}

TEST(Frm3DTest, TurnsZoomsAndSpinsByItsKeys) {
  const bool hasGl = QGuiApplication::platformName() == "xcb";
  if (!hasGl) {
    QTimer::singleShot(0, qApp, [] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      EXPECT_EQ("ChoosePixelFormat failed", box->text());
      box->reject();
    });
  }
  GlobalVariables::Settings.WorkPieceColor = Rgb(200, 100, 50);
  Graphics::StockProfile.assign(201, {80, 0});
  for (std::size_t i = 0; i <= 100; ++i) Graphics::StockProfile[i].Radius = 40;
  frmMain::mnuView3DWindow_Click();
  const QPointer<QWindow> window = QGuiApplication::topLevelWindows().constLast();
  ASSERT_EQ("frm3D", window->objectName());
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));

  const TurnedPart& part = static_cast<frm3D::TurnedPartWindow*>(window.get())->Part();
  const auto picture = [&] { return window->screen()->grabWindow(window->winId()).toImage(); };
  // What is pressed on the number pad, what RotX, RotY, RotZ and FieldOfView become.
  constexpr std::tuple<const char*, float, float, float, float> kSteps[] = {
      {"1123334", 3, 3, 9, 30},
      {"5567", 0, -3, 6, 30},
      {"9--", 0, -3, 0, 32},
      {"8+++1", 3, 0, 0, 29},
      {"0+----", 0, 0, 0, 32}};
  for (const auto& [keys, x, y, z, v] : kSteps) {
    for (const char* key = keys; *key != 0; ++key) {
      QTest::keyClick(window.get(), static_cast<Qt::Key>(*key), Qt::KeypadModifier);
      // Elsewhere they do nothing.
      QTest::keyClick(window.get(), static_cast<Qt::Key>(*key));
    }
    EXPECT_EQ(std::tuple(x, y, z, v), std::tie(part.RotX, part.RotY, part.RotZ, part.FieldOfView));
    QMatrix4x4 matrix;
    matrix.perspective(v, 160 / 120.0F, 10, 25);
    matrix.lookAt({10, 10, 10}, {}, {0, 1, 0});
    matrix.rotate(x, 1, 0, 0);
    matrix.rotate(y, 0, 1, 0);
    matrix.rotate(z, 0, 0, 1);
    EXPECT_EQ(0, hasGl ? WrongPixels(matrix.inverted(), picture()) : 0) << keys;
  }
  // (200 + 25.5) * (0.2 + cos 54.7 degrees): the end face gets light from all around and from
  // ahead.
  EXPECT_NEAR(175, hasGl ? qRed(picture().pixel(98, 70)) : 175, 1);
  QTest::keyClick(window.get(), Qt::Key_X);
  EXPECT_EQ(kTrue, part.ShowAxes);

  constexpr int kTurns = 6;
  const std::function<void()> ends[] = {
      [&] { QTest::keyClick(window.get(), Qt::Key_F6); },
      [] { frmMain::WindowClosed = kTrue; },
      [&] { QTest::keyClick(window.get(), Qt::Key_Escape); },
  };
  for (const auto& end : ends) {
    const double start = part.RotY;
    QElapsedTimer clock;
    clock.start();
    QTimer user;
    user.callOnTimeout([&] {
      if (part.RotY > start - kTurns) return;
      EXPECT_GE(clock.elapsed(), (kTurns - 1) * 1000 / 60) << "60 turns a second at most";
      user.stop();
      end();
    });
    user.start(0);
    QTest::keyClick(window.get(), Qt::Key_F5);
    EXPECT_FALSE(user.isActive());
    frmMain::WindowClosed = kFalse;
  }
  EXPECT_TRUE(QTest::qWaitFor([&] { return window.isNull(); }));
}

#include "mainwindow/frm_splash.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>

#include "mainwindow/fading_window.h"
#include "platform/host/desktop.h"
#include "platform/host/notifications.h"

namespace frmSplash {

namespace {

constexpr QSize kSize(543, 355);
// Left end and base lines of the small print, and its size, in pixels.
constexpr int kLeft = 32;
constexpr int kVersionLine = 321;
constexpr int kAddressLine = 341;
constexpr int kTextSize = 13;
constexpr QColor kTextColour(0xC9, 0xD3, 0xDE);
constexpr const char* kAddress = "Faults and wishes: " TURNBAY_HOMEPAGE;
constexpr const char* kHint = "Click or press Esc to begin";

// The picture of the program with its version, licence and address.
class SplashWindow : public FadingWindow {
 public:
  SplashWindow() : FadingWindow("frmSplash", Qt::Dialog, kSize) {
    setWindowTitle(Desktop::kProgramTitle);
    setAccessibleDescription(kHint);
    const QRect screenArea = screen()->geometry();
    move(screenArea.center() - rect().center());
  }

 protected:
  // A key that is held since it opened the window is none of it.
  void keyPressEvent(QKeyEvent* event) override {
    const int key = event->key();
    const bool clicks = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
    if (clicks && !event->isAutoRepeat()) FadeOut();
  }

  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.drawPixmap(0, 0, picture_);
    QFont font = painter.font();
    font.setPixelSize(kTextSize);
    painter.setFont(font);
    painter.setPen(kTextColour);
    painter.drawText(kLeft, kVersionLine,
                     "Version " + QApplication::applicationVersion() + ", MIT licence");
    painter.drawText(kLeft, kAddressLine, kAddress);
    // As far from the right edge as the others are from the left one.
    const int hintWidth = painter.fontMetrics().horizontalAdvance(kHint);
    painter.drawText(width() - kLeft - hintWidth, kVersionLine, kHint);
  }

 private:
  QPixmap picture_{":/pictures/splash.png"};
};

}  // namespace

}  // namespace frmSplash

namespace Desktop {

void ShowSplash() {
  auto* splash = new frmSplash::SplashWindow;
  splash->exec();
}

}  // namespace Desktop

namespace frmMain {

void mnuHelpAbout_Click() {
  Desktop::ShowSplash();
}

}  // namespace frmMain

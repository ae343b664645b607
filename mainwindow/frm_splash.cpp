#include "mainwindow/frm_splash.h"

#include <QApplication>
#include <QPainter>
#include <QScreen>

#include "mainwindow/fading_window.h"
#include "platform/host/desktop.h"
#include "platform/host/notifications.h"

namespace {

constexpr QSize kSize(543, 355);
// Left end and base line of the version, in pixels.
constexpr QPoint kVersionPlace(32, 332);
constexpr int kVersionSize = 13;
constexpr QColor kVersionColour(0xC9, 0xD3, 0xDE);

// The picture of the program with its version.
class SplashWindow : public FadingWindow {
 public:
  SplashWindow() : FadingWindow("frmSplash", Qt::Dialog, kSize) {
    setWindowTitle(Desktop::kProgramTitle);
    const QRect screenArea = screen()->geometry();
    move(screenArea.center() - rect().center());
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.drawPixmap(0, 0, picture_);
    QFont font = painter.font();
    font.setPixelSize(kVersionSize);
    painter.setFont(font);
    painter.setPen(kVersionColour);
    painter.drawText(kVersionPlace, "Version " + QApplication::applicationVersion());
  }

 private:
  QPixmap picture_{":/pictures/splash.png"};
};

}  // namespace

namespace Desktop {

void ShowSplash() {
  auto* splash = new SplashWindow;
  splash->exec();
}

}  // namespace Desktop

namespace frmMain {

void mnuHelpAbout_Click() {
  Desktop::ShowSplash();
}

}  // namespace frmMain

#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QScreen>
#include <QWindow>

#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/fading_window.h"
#include "platform/host/notifications.h"

namespace {

// Pixels.
constexpr QSize kSize(408, 52);
constexpr QRect kLabelPlace(8, 16, 377, 25);
constexpr int kFontPoints = 12;
// From the right edge of the screen.
constexpr int kMargin = 7;
// Of the screen's height, above the window.
constexpr double kTopShare = 0.8;

// The notification: black on white whatever the theme.
class InfoWindow : public FadingWindow {
 public:
  InfoWindow() : FadingWindow("frmInfo", Qt::Tool, kSize) {
    QPalette colours;
    colours.setColor(QPalette::Window, Qt::white);
    colours.setColor(QPalette::WindowText, Qt::black);
    setPalette(colours);
    lblInfo_.setObjectName("lblInfo");
    lblInfo_.setGeometry(kLabelPlace);
    lblInfo_.setFont(QFont("Verdana", kFontPoints));
    lblInfo_.setTextFormat(Qt::PlainText);
    lblInfo_.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    Timer4_.setObjectName("Timer4");
    Timer4_.callOnTimeout(this, [this] { FadeOut(); });
    const QRect screenArea = screen()->geometry();
    move(screenArea.right() + 1 - width() - kMargin,
         screenArea.top() + qRound(screenArea.height() * kTopShare));
  }

  // The time begins anew.
  void Tell(const std::string& text, int milliseconds) {
    lblInfo_.setText(QString::fromStdString(text));
    Timer4_.start(milliseconds);
  }

  void ShowModeless() {
    // The user may be typing, and not every window manager heeds the first of these.
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowFlag(Qt::WindowDoesNotAcceptFocus);
    // So that Esc is pressed in its owner.
    if (parentWidget() != nullptr) parentWidget()->windowHandle()->installEventFilter(this);
    show();
  }

  // Returns when it has gone. If it is up, it takes its fade up again from where it stands.
  void ShowModal() {
    // A window that is up can become neither modal nor active, so it shows anew.
    hide();
    destroy();
    setAttribute(Qt::WA_ShowWithoutActivating, false);
    setWindowFlag(Qt::WindowDoesNotAcceptFocus, false);
    FadeIn();
    exec();
  }

 protected:
  bool eventFilter(QObject* owner, QEvent* event) override {
    if (event->type() == QEvent::KeyRelease) {
      keyReleaseEvent(static_cast<QKeyEvent*>(event));
    }
    return FadingWindow::eventFilter(owner, event);
  }

 private:
  QLabel lblInfo_{this};
  QTimer Timer4_{this};
};

// Hidden when it has faded out and waits for its deletion.
QPointer<InfoWindow> frmInfoWindow;

}  // namespace

namespace Desktop {

void ShowNotification(const std::string& text, int milliseconds, bool modal) {
  // The program is about to end, and the run to return.
  if (frmMain::WindowClosed != kFalse) return;
  const bool isUp = frmInfoWindow != nullptr && frmInfoWindow->isVisible();
  if (!isUp) frmInfoWindow = new InfoWindow;
  frmInfoWindow->Tell(text, milliseconds);
  if (modal) {
    frmInfoWindow->ShowModal();
  } else if (!isUp) {
    frmInfoWindow->ShowModeless();
  }
}

}  // namespace Desktop

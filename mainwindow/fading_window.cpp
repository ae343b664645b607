#include "mainwindow/fading_window.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainterPath>

#include "platform/qt/host/dialog_owner.h"

namespace {

constexpr std::int16_t kStep = 5;
// Milliseconds.
constexpr int kStepInterval = 1;
// Where the fade-in rests.
constexpr std::int16_t kRestingAlpha = 250;
constexpr int kOpaque = 255;

// In pixels, one for all windows: a smaller one has only its upper left corner rounded.
constexpr QSize kRegion(545, 355);
constexpr int kCornerRadius = 10;

// A Wayland client can't ask for it.
bool HasWindowOpacity() {
  return !QGuiApplication::platformName().startsWith("wayland");
}

QRegion RoundedRegion() {
  QPainterPath outline;
  outline.addRoundedRect(QRect({0, 0}, kRegion), kCornerRadius, kCornerRadius);
  return QRegion(outline.toFillPolygon().toPolygon());
}

}  // namespace

FadingWindow::FadingWindow(const QString& name, Qt::WindowType type, const QSize& size)
    : QDialog(MainWindowOnScreen(), type | Qt::FramelessWindowHint) {
  setObjectName(name);
  setAttribute(Qt::WA_DeleteOnClose);
  // The program goes on without it, even if no other window is up yet.
  setAttribute(Qt::WA_QuitOnClose, false);
  setFixedSize(size);
  setMask(RoundedRegion());
  SetWindowAlpha(Alpha);
  Timer1.setObjectName("Timer1");
  Timer1.setInterval(kStepInterval);
  Timer1.callOnTimeout(this, [this] { Timer1_Timer(); });
  Timer2.setObjectName("Timer2");
  Timer2.setInterval(kStepInterval);
  Timer2.callOnTimeout(this, [this] { Timer2_Timer(); });
  FadeIn();
}

void FadingWindow::FadeIn() {
  Timer2.stop();
  if (HasWindowOpacity()) Timer1.start();
}

void FadingWindow::FadeOut() {
  Timer1.stop();
  if (!HasWindowOpacity()) {
    close();
  } else if (!Timer2.isActive()) {
    // A start anew would put the next step off, for as long as keys come faster than steps.
    Timer2.start();
  }
}

void FadingWindow::mouseReleaseEvent(QMouseEvent* /*event*/) {
  FadeOut();
}

// Esc would close a dialog at once.
void FadingWindow::keyPressEvent(QKeyEvent* /*event*/) {}

void FadingWindow::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) FadeOut();
}

void FadingWindow::Timer1_Timer() {
  if (Alpha > kRestingAlpha) {
    Alpha = kRestingAlpha;
    Timer1.stop();
  }
  SetWindowAlpha(Alpha);
  Alpha = static_cast<std::int16_t>(Alpha + kStep);
}

void FadingWindow::Timer2_Timer() {
  if (Alpha >= kStep) {
    SetWindowAlpha(Alpha);
    Alpha = static_cast<std::int16_t>(Alpha - kStep);
  } else {
    Alpha = 1;
    close();
  }
}

void FadingWindow::SetWindowAlpha(std::int16_t alpha) {
  if (!HasWindowOpacity()) return;
  setWindowOpacity(static_cast<double>(alpha) / kOpaque);
  // What a timer asks of the display waits for the next event; a paint takes it along.
  update();
}

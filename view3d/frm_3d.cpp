#include "view3d/frm_3d.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QScreen>
#include <algorithm>
#include <chrono>

#include "mainwindow/control_surface.h"
#include "mainwindow/frm_help.h"
#include "platform/host/desktop.h"
#include "platform/qt/views/key_codes.h"
#include "platform/virtual_keys.h"

namespace frm3D {

namespace {

using VirtualKeys::kNumberPad0;

// A key of the number pad adds degrees to an angle; 0 sets it back to 0.
struct TurnKey {
  int keyCode;
  double TurnedPart::*angle;
  double degrees;
};

constexpr TurnKey kTurnKeys[] = {
    {kNumberPad0, &TurnedPart::RotX, 0},      {kNumberPad0, &TurnedPart::RotY, 0},
    {kNumberPad0, &TurnedPart::RotZ, 0},      {kNumberPad0 + 1, &TurnedPart::RotX, 3},
    {kNumberPad0 + 2, &TurnedPart::RotY, 3},  {kNumberPad0 + 3, &TurnedPart::RotZ, 3},
    {kNumberPad0 + 4, &TurnedPart::RotX, -3}, {kNumberPad0 + 5, &TurnedPart::RotY, -3},
    {kNumberPad0 + 6, &TurnedPart::RotZ, -3}, {kNumberPad0 + 7, &TurnedPart::RotX, 0},
    {kNumberPad0 + 8, &TurnedPart::RotY, 0},  {kNumberPad0 + 9, &TurnedPart::RotZ, 0},
};

// The pace of the spin on every machine that can keep it, and of most screens.
constexpr std::chrono::microseconds kSpinTurn{1'000'000 / 60};

// Null while frm3D isn't loaded.
TurnedPartWindow* loaded = nullptr;

QSurfaceFormat Format() {
  QSurfaceFormat format;
  format.setRenderableType(QSurfaceFormat::OpenGL);
  format.setProfile(QSurfaceFormat::CompatibilityProfile);
  format.setSwapBehavior(QSurfaceFormat::DoubleBuffer);
  format.setRedBufferSize(8);
  format.setGreenBufferSize(8);
  format.setBlueBufferSize(8);
  format.setDepthBufferSize(16);
  return format;
}

// False when the key turns nothing.
bool Turn(TurnedPart& part, int keyCode) {
  bool turns = false;
  for (const TurnKey& key : kTurnKeys) {
    if (key.keyCode != keyCode) continue;
    double& angle = part.*key.angle;
    angle = key.degrees == 0 ? 0 : angle + key.degrees;
    turns = true;
  }
  return turns;
}

}  // namespace

TurnedPartWindow::TurnedPartWindow() {
  setObjectName("frm3D");
  setTitle("3D");
  setFlags(Qt::Window | Qt::FramelessWindowHint);
  setSurfaceType(QSurface::OpenGLSurface);
  setFormat(Format());
  // Where the user is; the whole of it even where nothing heeds the wish to be maximized.
  if (const QWindow* user = QGuiApplication::focusWindow()) setScreen(user->screen());
  setGeometry(screen()->geometry());
  // The context has to go before the platform does.
  QObject::connect(qApp, &QCoreApplication::aboutToQuit, this, &QWindow::close);
}

void TurnedPartWindow::Form_Load() {
  if (!part_.Initialize([this] { return MakeContext(); })) {
    Desktop::MessageBox("ChoosePixelFormat failed");
  }
}

bool TurnedPartWindow::MakeContext() {
  create();
  auto context = std::make_unique<QOpenGLContext>();
  context->setFormat(Format());
  // A context without the fixed pipeline would draw nothing.
  if (!context->create() || context->isOpenGLES() ||
      context->format().profile() == QSurfaceFormat::CoreProfile || !context->makeCurrent(this)) {
    return false;
  }
  context_ = std::move(context);
  part_.SwapBuffers = [this] {
    if (isExposed()) context_->swapBuffers(this);
  };
  return true;
}

bool TurnedPartWindow::UseContext() {
  return context_ != nullptr && context_->makeCurrent(this);
}

void TurnedPartWindow::DrawAnew() {
  if (!UseContext()) return;
  part_.DrawWorld();
  part_.Display();
}

void TurnedPartWindow::Zoom(double degrees) {
  part_.FieldOfView += degrees;
  if (!UseContext()) return;
  part_.SetPerspective();
  part_.Display();
}

void TurnedPartWindow::Spin() {
  Spinning = kTrue;
  // A second F5 within a yield; the loop below on the stack goes on.
  if (spinLoopRuns_) return;
  spinLoopRuns_ = true;
  using Clock = std::chrono::steady_clock;
  Clock::time_point nextTurn = Clock::now();
  while (Spinning == kTrue && frmMain::WindowClosed == kFalse) {
    part_.RotY -= 1;
    DrawAnew();
    const Clock::time_point now = Clock::now();
    nextTurn = std::max(nextTurn + kSpinTurn, now);
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(nextTurn - now);
    Desktop::Sleep(static_cast<int>(wait.count()));
    Desktop::Yield();
  }
  spinLoopRuns_ = false;
  if (loaded != this) deleteLater();
}

void TurnedPartWindow::Form_KeyDown(int keyCode) {
  switch (keyCode) {
    case VirtualKeys::kEscape:
      close();
      return;
    case VirtualKeys::kNumberPadPlus:
      Zoom(-1);
      return;
    case VirtualKeys::kNumberPadMinus:
      Zoom(1);
      return;
    case VirtualKeys::kF6:
      Spinning = kFalse;
      return;
    case VirtualKeys::kF5:
      Spin();
      break;
    case 'X':
      part_.ShowAxes = static_cast<std::int16_t>(~part_.ShowAxes);
      break;
    default:
      if (!Turn(part_, keyCode)) return;
  }
  DrawAnew();
}

void TurnedPartWindow::keyPressEvent(QKeyEvent* event) {
  if (QKeySequence(event->keyCombination()) == QKeySequence(frmMain::kHelpKey)) {
    frmMain::mnuHelpContents_Click();
    return;
  }
  Form_KeyDown(VirtualKey(*event));
}

void TurnedPartWindow::exposeEvent(QExposeEvent* /*event*/) {
  if (isExposed() && UseContext()) part_.Display();
}

// A window that grows is exposed as well, which draws it.
void TurnedPartWindow::resizeEvent(QResizeEvent* /*event*/) {
  const QSize pixels = size() * devicePixelRatio();
  if (UseContext()) {
    part_.OnSize(pixels.width(), pixels.height());
    if (pixels.width() <= lastSize_.width() && pixels.height() <= lastSize_.height()) {
      part_.Display();
    }
  }
  lastSize_ = pixels;
}

void TurnedPartWindow::closeEvent(QCloseEvent* /*event*/) {
  Spinning = kFalse;
  if (context_ != nullptr) context_->doneCurrent();
  context_.reset();
  loaded = nullptr;
  // A spin on the stack still needs the window.
  if (!spinLoopRuns_) deleteLater();
}

}  // namespace frm3D

void Show3DWindow() {
  using frm3D::loaded;
  if (loaded == nullptr) {
    loaded = new frm3D::TurnedPartWindow;
    loaded->Form_Load();
    // Closed again, by the end of the program behind a message box.
    if (loaded == nullptr) return;
  }
  loaded->showMaximized();
  loaded->raise();
  loaded->requestActivate();
}

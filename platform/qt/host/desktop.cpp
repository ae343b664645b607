#include "platform/host/desktop.h"

#include <QApplication>
#include <QKeyEvent>
#include <QProcess>
#include <QWidget>
#include <chrono>
#include <thread>

#include "platform/host/files.h"

namespace Desktop {

namespace {

// Events that each bring the next one, such as fast timers, don't keep a yield longer than this.
constexpr int kLongestYield = 10;

std::chrono::steady_clock::time_point lastYield = std::chrono::steady_clock::now();

// Posted, so that they arrive when events are next handled.
void PostKey(QWidget* receiver, Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text) {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QCoreApplication::postEvent(receiver, new QKeyEvent(type, key, modifiers, text));
  }
}

}  // namespace

void Yield() {
  QCoreApplication::processEvents(QEventLoop::AllEvents, kLongestYield);
  lastYield = std::chrono::steady_clock::now();
}

void WaitForEvent() {
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  lastYield = std::chrono::steady_clock::now();
}

int MillisecondsSinceYield() {
  using std::chrono::milliseconds;
  const auto passed = std::chrono::steady_clock::now() - lastYield;
  return static_cast<int>(std::chrono::duration_cast<milliseconds>(passed).count());
}

void Sleep(int milliseconds) {
  if (milliseconds > 0) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
  } else {
    std::this_thread::yield();
  }
}

void SendKeys(const std::string& keys) {
  QWidget* receiver = QApplication::focusWidget();
  if (receiver == nullptr) return;
  if (keys == kRightArrowKeys) {
    PostKey(receiver, Qt::Key_Right, Qt::NoModifier, {});
    return;
  }
  for (const QChar character : QString::fromStdString(keys)) {
    const auto key = static_cast<Qt::Key>(character.toUpper().unicode());
    PostKey(receiver, key, character.isUpper() ? Qt::ShiftModifier : Qt::NoModifier, character);
  }
}

bool StartProgram(const std::string& program, const std::string& path) {
  return QProcess::startDetached(QString::fromStdString(program),
                                 {QString::fromStdString(AssetPath(path))});
}

// Unlike quit(), this asks no window.
void EndProgram() {
  QCoreApplication::exit(0);
}

}  // namespace Desktop

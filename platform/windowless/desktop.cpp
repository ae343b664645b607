#include "platform/host/desktop.h"

#include <utility>

#include "platform/host/notifications.h"
#include "platform/windowless/windowless.h"

namespace {

std::vector<Windowless::MessageRecord> messages;
std::vector<Windowless::NotificationRecord> notifications;
std::function<void()> yieldHook;
std::function<void()> waitHook;

}  // namespace

namespace Windowless {

const std::vector<MessageRecord>& Messages() {
  return messages;
}

const std::vector<NotificationRecord>& Notifications() {
  return notifications;
}

void ForgetMessages() {
  messages.clear();
  notifications.clear();
}

void SetHooks(std::function<void()> onYield, std::function<void()> onWait) {
  yieldHook = std::move(onYield);
  waitHook = std::move(onWait);
}

}  // namespace Windowless

namespace Desktop {

void Yield() {
  if (yieldHook) yieldHook();
}

void WaitForEvent() {
  if (waitHook) waitHook();
}

// There are no events that a longer stretch would keep waiting.
int MillisecondsSinceYield() {
  return 0;
}

void Sleep(int /*milliseconds*/) {}

int MessageBox(const std::string& text, int style, const std::string& title) {
  messages.push_back({text, style, title});
  // The first button is the default one.
  return (style & (kYesNoCancel | kYesNo)) != kOkOnly ? kYes : kOk;
}

void ShowNotification(const std::string& text, int milliseconds, bool modal) {
  notifications.push_back({text, milliseconds, modal});
}

// There is nobody to look at it.
void ShowSplash() {}

// No control has the focus.
void SendKeys(const std::string& /*keys*/) {}

// Nothing that has a window is started.
bool StartProgram(const std::string& /*program*/, const std::string& /*path*/) {
  return false;
}

// It ends when its program has been played.
void EndProgram() {}

void sndPlaySoundA(const std::string& /*path*/, int /*flags*/) {}

}  // namespace Desktop

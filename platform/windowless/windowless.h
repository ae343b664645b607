#pragma once

#include <functional>
#include <string>
#include <vector>

// The desktop of a program without a window: no events, no waiting, no keys, no sound; a message
// box is kept and answered with its default; settings live in memory.
namespace Windowless {

struct MessageRecord {
  std::string text;
  int style = 0;
  std::string title;
};

// Every message box so far, in order.
const std::vector<MessageRecord>& Messages();

struct NotificationRecord {
  std::string text;
  int milliseconds = 0;
  bool modal = false;
};

// Every notification so far, in order.
const std::vector<NotificationRecord>& Notifications();

// Forgets them, as before another run.
void ForgetMessages();

// Called at each yield, and where a paused run would wait. Nothing else can end such a wait, so
// onWait must resume or stop the run.
void SetHooks(std::function<void()> onYield, std::function<void()> onWait);

}  // namespace Windowless

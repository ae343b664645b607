#pragma once

#include <cstdint>
#include <string>

#include "platform/property.h"

// The notification window, as far as the logic knows it.
namespace frmInfo {

struct Label {
  Property<std::string> Caption;
};
// The text of the notification.
extern Label lblInfo;

struct DisplayTimer {
  // Milliseconds from the window's appearance to the beginning of its fading.
  Property<int> Interval = 0;
};
extern DisplayTimer Timer4;

void ResetNotifications();

}  // namespace frmInfo

namespace frmMain {

// Shows what lblInfo holds for `time` milliseconds. `modal` 1 returns only when the window has
// closed, 0 at once. Writes Timer4. Yields when modal.
void ShowInfoWindow(std::int16_t modal, std::int16_t time);

}  // namespace frmMain

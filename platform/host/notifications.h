#pragma once

#include <string>

namespace Desktop {

// Shows a text in the notification window for a time in milliseconds. A modal one returns when the
// window has closed itself, and events are handled meanwhile as in Yield; any other returns at
// once. One that comes while another is still up replaces its text.
void ShowNotification(const std::string& text, int milliseconds, bool modal);

// Shows the splash window, and returns when the user has closed it. Events are handled meanwhile.
void ShowSplash();

}  // namespace Desktop

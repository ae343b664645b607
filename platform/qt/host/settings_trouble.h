#pragma once

#include <functional>
#include <string>

// Calls `tell` with the reason, once a start, when the settings store can't be read or written. It
// is called from within the routine that wanted to.
void WatchSettingsTrouble(std::function<void(const std::string& reason)> tell);

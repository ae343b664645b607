#pragma once

#include "settings/settings.h"

namespace GlobalVariables {

// Writes all settings that the options dialog edits to the store. The width of the line numbers is
// left as it is stored while they are hidden. Settings stays as it was.
void SaveOptions(const SettingsRecord& options);

}  // namespace GlobalVariables

#pragma once

#include "settings/settings.h"

namespace GlobalVariables {

// Writes all settings that the options dialog edits to the store. The width of the line numbers is
// left as it is stored while they are hidden. Settings stays as it was.
void SaveOptions(const SettingsRecord& options);

}  // namespace GlobalVariables

namespace frmMain {

// Brings Settings to the editor, the grid and the simulation area, whose picture is lost. The
// document is as modified as it was. No run may be active.
void ApplyOptions();

}  // namespace frmMain

#pragma once

namespace frmMain {

// What the main window does as it loads: settings and view state to the controls, the recent files,
// the commands that need a program closed, and the last file if the settings say so.
// Yields.
void Form_Load();

// Brings the settings and the stored view options to the controls.
// Yields.
void ApplySettings();

}  // namespace frmMain

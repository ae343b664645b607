#pragma once

namespace frmMain {

// What the main window does as it loads: settings and view state to the controls, then the commands
// that need a program closed.
// Yields.
void Form_Load();

// Brings the settings and the stored view options to the controls.
// Yields.
void ApplySettings();

}  // namespace frmMain

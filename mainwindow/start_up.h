#pragma once

namespace frmMain {

// What the main window does as it loads: settings and view state to the controls, the recent files,
// the commands that need a program closed, and the last file if the settings say so.
// Yields.
void Form_Load();

// Brings the settings and the stored view options to the controls.
// Yields.
void ApplySettings();

// The same for settings that the user has changed: the simulation area loses its picture, and the
// document is as modified as it was. No run may be active.
void ApplyOptions();

// Face, size and weight to the editor; a text that stands in it keeps size and weight, unless it is
// selected.
void ApplyEditorFont();

}  // namespace frmMain

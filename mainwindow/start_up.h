#pragma once

namespace frmMain {

// What the main window does as it loads: settings, then the commands that need a program closed.
void Form_Load();

}  // namespace frmMain

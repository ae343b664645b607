#pragma once

namespace frmMain {

// Gives all shared state the values with which a program starts: registers, run flags, stock, tool,
// tool folder, settings record and controls. Programs and tests call it first, and
// what it calls is the one place of these values. The settings store and files are not touched.
void ResetToProgramStart();

}  // namespace frmMain

#pragma once

namespace frmMain {

// Puts all shared state back to what it is when the program starts: registers, run flags, stock,
// tool, settings record and controls. The settings store and files are not touched.
void ResetToProgramStart();

}  // namespace frmMain

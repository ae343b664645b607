#pragma once

// In a library of its own, for what stands behind printers.
extern "C" void PrintProgram();

namespace frmMain {

// Asks for a printer, one of which makes a PDF file, and prints the program of the editor.
void mnuFilePrint_Click();

}  // namespace frmMain

#pragma once

namespace frmMain {

// Asks for a printer, one of which makes a PDF file, and prints the program of the editor.
void mnuFilePrint_Click();

}  // namespace frmMain

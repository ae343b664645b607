#pragma once

class QWidget;

namespace frmMain {

inline constexpr const char* kHelpKey = "Ctrl+F1";

// Opens the manual: in the help viewer "hh" if there are one and a file for it beside the program,
// else in a window of its own, which is raised if it is open already. A missing manual is reported
// in a message box.
void mnuHelpContents_Click();

// Lets a dialog answer the key of the help as the main window does.
void OfferHelp(QWidget& dialog);

}  // namespace frmMain

#pragma once

namespace frmMain {

// Opens the manual: in the help viewer "hh" if there is one, else in a window of its own, which is
// raised if it is open already. A missing manual is reported in a message box.
void mnuHelpContents_Click();

}  // namespace frmMain

#pragma once

namespace frmMain {

// The splash window as the About box, modal.
void mnuHelpAbout_Click();

}  // namespace frmMain

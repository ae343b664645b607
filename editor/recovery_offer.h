#pragma once

namespace frmMain {

// Asks, for each recovery file of a program that has ended, whether its text is to be opened. One
// whose text is that of the file on the disk goes without a question, and one that is damaged is
// passed over. Call it when the window is on the screen and the last file is open.
void OfferRecovery();

}  // namespace frmMain

#pragma once

namespace frmMain {

// Shows the text editor, or hides it.
void mnuViewTextEditor_Click();

}  // namespace frmMain

#pragma once

#include "platform/rich_text.h"

namespace frmMain {

// Brings a program text into its canonical layout: no effect yet.
void ReformatText(RichText& editor);

// Judges a program text; true when a fault was found and reported: every text passes yet.
bool CheckSyntax(RichText& editor);

}  // namespace frmMain

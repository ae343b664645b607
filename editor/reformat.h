#pragma once

#include "platform/rich_text.h"

namespace frmMain {

// Brings the program into its canonical layout: upper case, one blank in front of each word but the
// first of a line, no blank lines; a comment, from "[" on, stays as it is. The result reaches the
// text editor through ColourText, so a text too long for that stays as it was.
// Writes: TextBuffer, TextEditor.
void ReformatText(RichText& editor);

void mnuToolsReformatText_Click();

}  // namespace frmMain

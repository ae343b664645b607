#pragma once

#include <cstdint>

namespace frmMain {

// Flag: the rows of the grid may be behind the editor's text. Set by every change of the text,
// cleared by whoever has brought the two together.
extern std::int16_t TextChanged;

// Opens the commands for a text that has changes to save, and closes them for an empty text.
void TextEditor_Change();

}  // namespace frmMain

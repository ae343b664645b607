#pragma once

#include <cstddef>
#include <string>

namespace frmMain {

// The longest text that can be coloured, in bytes.
inline constexpr std::size_t kMaxColouredLength = 32'766;

// Colours the text of TextBuffer by classes (comments, letters, numbers) and moves it into the
// editor, which then counts as saved. A text beyond kMaxColouredLength is reported in a message
// box, and the editor keeps what it had; no result tells, so whoever must know asks before.
// Reads: Settings. Writes: TextBuffer, TextEditor, "Save".
void ColourText();

// Gives the editor this text in colours; what it changes of the text can be undone. "Save" stays as
// it is.
void RecolourText(std::string text);

}  // namespace frmMain

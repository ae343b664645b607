#pragma once

#include <cstdint>

// The events of TextEditor. Key codes are virtual keys; the shift state is 0 with no modifier and 1
// with Shift alone.
namespace frmMain {

// Opens the commands for a text that has changes to save, and closes them for an empty text.
void TextEditor_Change();

// Accepts the offered word at Enter, or picks the colour of the next character. Setting the key
// code to 0 swallows the key.
void TextEditor_KeyDown(std::int16_t& keyCode, std::int16_t& shift);

// Raises letters; `character` is what will be inserted.
void TextEditor_KeyPress(std::int16_t& character);

// Offers the word BILLET behind "[".
// Yields.
void TextEditor_KeyUp(std::int16_t keyCode, std::int16_t shift);

}  // namespace frmMain

#pragma once

#include <cstdint>
#include <string_view>

// The language of a block as the machine executes it. A word that can't be read, or whose value
// doesn't fit its register, is passed over whole; there is no error path.
namespace ModCNC {

// Carries out one row of the program: the words in front of its comment. Returns false for a row
// that begins with "[", which does nothing at all.
bool ExecuteRow(std::string_view row);

// Carries out one row of program text without a comment: S and T first, then every word from left
// to right, then one motion, whatever the row held. An empty row moves as well.
// Reads and writes the registers. Yields, through M words and the motion.
void ExecuteBlock(std::string_view text);

// Writes one word's value into its register; G and M words go to their own routines.
// May yield, through an M word.
void DecodeWord(std::string_view word);

// Selects the modal function, or shows the measuring unit. `word` bears its letter. A number of no
// function selects none, however long it is: here alone a value beyond 16 bits isn't passed over.
// Writes ActiveG and the panel "Dim".
void DecodeGWord(std::string_view word);

// Carries out one M word at once. `word` bears its letter. May yield.
void DecodeMWord(std::string_view word);

// Whether the number is that of an M function; all others do nothing.
bool IsMFunction(std::int16_t number);

// Runs the executor of ActiveG, if it has one. Yields, through the motion.
void DispatchMotion();

}  // namespace ModCNC

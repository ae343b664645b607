#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "interpreter/g_functions.h"

// The words of a block as they are written, without carrying them out.
namespace Inspection {

struct Word {
  // With its letter.
  std::string_view text;
  // Of its letter, in the row.
  std::size_t offset = 0;

  char Letter() const { return text.front(); }
  std::string_view Number() const { return text.substr(1); }
};

std::vector<Word> WordsOf(std::string_view block);

// Whether one of the words has one of the letters.
bool HasLetter(std::span<const Word> words, std::string_view letters);

// Whether the word is this letter with this number, however the number is written.
bool IsWord(const Word& word, char letter, std::int16_t number);
bool HasWord(std::span<const Word> words, char letter, std::int16_t number);

// Whether the word is M with one of the numbers.
bool IsMWord(const Word& word, std::span<const std::int16_t> numbers);

// The M functions that start the spindle, and the one that stops it.
inline constexpr std::int16_t kSpindleStarts[] = {3, 4, 13, 14};
inline constexpr std::int16_t kSpindleStop = 5;

// The G function that a word names; null for another word and for a number of no function.
const ModCNC::GFunction* FunctionOf(const Word& word);

// Whether the word decides which function is modal: any G word but G20 and G21.
bool IsModalWord(const Word& word);

// What no function that moves the tool is.
inline constexpr std::int16_t kNoFunction = -1;

// Whether it is a G word that passes the check of a program but does nothing.
bool IsNotSimulated(const Word& word);

// The function that moves the tool in the block, kNoFunction when none does. `active` is
// that of the block before.
std::int16_t ModalFunction(std::span<const Word> words, std::int16_t active);

// A G function as it is written, such as "G01".
std::string GName(std::int16_t number);

// The words of a block but for its N, as they are written.
std::string Written(std::span<const Word> words);

// Whether the block ends the run, by M02 or M30, before it moves.
bool EndsRun(std::span<const Word> words);

}  // namespace Inspection

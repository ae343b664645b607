#include "inspection/block_words.h"

#include <algorithm>

#include "interpreter/machine.h"
#include "platform/numbers.h"
#include "platform/text.h"

namespace Inspection {

using ModCNC::GFunction;

namespace {

const GFunction* FindFunction(std::optional<std::int16_t> number) {
  const auto* found = std::ranges::find(ModCNC::kGFunctions, number, &GFunction::number);
  return found == std::end(ModCNC::kGFunctions) ? nullptr : found;
}

}  // namespace

std::vector<Word> WordsOf(std::string_view block) {
  std::vector<Word> words;
  for (const std::string_view part : Split(block, " ")) {
    if (!part.empty())
      words.push_back({part, static_cast<std::size_t>(part.data() - block.data())});
  }
  return words;
}

bool HasLetter(std::span<const Word> words, std::string_view letters) {
  return std::ranges::any_of(
      words, [&](const Word& word) { return letters.find(word.Letter()) != letters.npos; });
}

bool IsWord(const Word& word, char letter, std::int16_t number) {
  return word.Letter() == letter && ParseInt16(word.Number()) == number;
}

bool HasWord(std::span<const Word> words, char letter, std::int16_t number) {
  return std::ranges::any_of(words, [&](const Word& word) { return IsWord(word, letter, number); });
}

bool IsMWord(const Word& word, std::span<const std::int16_t> numbers) {
  return std::ranges::any_of(numbers,
                             [&](std::int16_t number) { return IsWord(word, 'M', number); });
}

const GFunction* FunctionOf(const Word& word) {
  return word.Letter() == 'G' ? FindFunction(ParseInt16(word.Number())) : nullptr;
}

bool IsModalWord(const Word& word) {
  const GFunction* function = FunctionOf(word);
  return word.Letter() == 'G' && (function == nullptr || function->unit == nullptr);
}

bool IsNotSimulated(const Word& word) {
  const GFunction* function = FunctionOf(word);
  return function != nullptr && function->executor == nullptr && function->unit == nullptr;
}

std::int16_t ModalFunction(std::span<const Word> words, std::int16_t active) {
  const GFunction* function = FindFunction(active);
  for (const Word& word : words) {
    if (IsModalWord(word)) function = FunctionOf(word);
  }
  return function != nullptr && function->executor != nullptr ? function->number : kNoFunction;
}

std::string GName(std::int16_t number) {
  const std::string digits = DecimalText(number);
  return (number < 10 ? "G0" : "G") + digits;
}

std::string Written(std::span<const Word> words) {
  std::string text;
  for (const Word& word : words) {
    if (word.Letter() == 'N') continue;
    if (!text.empty()) text += ' ';
    text += word.text;
  }
  if (text.empty()) text = "A block without words";
  return text;
}

bool EndsRun(std::span<const Word> words) {
  return HasWord(words, 'M', 2) || HasWord(words, 'M', 30);
}

}  // namespace Inspection

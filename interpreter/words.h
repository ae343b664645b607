#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string_view>

#include "interpreter/decoder.h"
#include "interpreter/machine.h"

// The address letters of a block, and what the machine does with the number behind each.
namespace ModCNC {

enum class Scale { Plain, TimesTen, Diameter };

// What a register takes of the number of a word; empty when it can't be read or doesn't fit.
std::optional<std::int16_t> WordValue(std::string_view digits, Scale scale);

// Brings FeedRate to its panel.
void ShowFeedRate();
void MarkRadiusGiven();

struct WordRule {
  char letter;
  Scale scale = Scale::Plain;
  // Takes the whole word, in place of all else.
  void (*decode)(std::string_view word) = nullptr;
  // None: the number means nothing here.
  std::int16_t* value = nullptr;
  // For incremental words: the target becomes position plus value.
  std::int16_t* target = nullptr;
  const std::int16_t* position = nullptr;
  void (*afterwards)() = nullptr;
};

inline constexpr WordRule kWordRules[] = {
    {.letter = 'F', .value = &FeedRate, .afterwards = ShowFeedRate},
    {.letter = 'G', .decode = DecodeGWord},
    {.letter = 'I', .scale = Scale::TimesTen, .value = &WordI},
    {.letter = 'K', .scale = Scale::TimesTen, .value = &WordK},
    {.letter = 'M', .decode = DecodeMWord},
    // A sequence number means nothing to the machine.
    {.letter = 'N'},
    {.letter = 'P', .scale = Scale::TimesTen, .value = &WordP},
    {.letter = 'Q', .scale = Scale::TimesTen, .value = &WordQ},
    {.letter = 'R', .scale = Scale::TimesTen, .value = &WordR, .afterwards = MarkRadiusGiven},
    // Read ahead of the other words, and then alone.
    {.letter = 'S'},
    {.letter = 'T', .value = &ToolNumber},
    {.letter = 'U',
     .scale = Scale::Diameter,
     .value = &WordU,
     .target = &TargetX,
     .position = &CurrentX},
    {.letter = 'W',
     .scale = Scale::TimesTen,
     .value = &WordW,
     .target = &TargetZ,
     .position = &CurrentZ},
    {.letter = 'X', .scale = Scale::Diameter, .value = &TargetX},
    {.letter = 'Z', .scale = Scale::TimesTen, .value = &TargetZ},
};

// Made by the compiler, so that who reads the letters links no rule.
inline constexpr auto kWordLetters = [] {
  std::array<char, std::size(kWordRules)> letters{};
  std::ranges::transform(kWordRules, letters.begin(), &WordRule::letter);
  return letters;
}();

}  // namespace ModCNC

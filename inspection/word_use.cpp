#include "inspection/word_use.h"

#include <algorithm>
#include <iterator>

#include "interpreter/decoder.h"
#include "interpreter/machine.h"
#include "interpreter/words.h"
#include "mainwindow/control_surface.h"
#include "platform/numbers.h"

namespace Inspection {

namespace {

// Words that act at once or mean nothing are none of these: N, and T, which the tool change judges.
struct Letter {
  char letter;
  // The registers that it writes.
  std::string_view registers;
  const char* takenBy;
};

constexpr Letter kLetters[] = {
    {'F', "F", "no feed move follows that takes it"},
    {'I', "I", "only an arc (G02, G03) without R takes it"},
    {'K', "K", "only an arc (G02, G03) without R takes it"},
    {'P', "P", "only the second block of G73 takes it"},
    {'Q', "Q", "only the second block of G73 takes it"},
    {'R', "R", "only an arc (G02, G03), G90, G94 and the first block of G73 take it"},
    {'S', "S", "no M03, M04, M13 or M14 starts the spindle with it"},
    {'U', "XU", "no move takes it"},
    {'W', "ZW", "no move takes it"},
    {'X', "X", "no move takes it"},
    {'Z', "Z", "no move takes it"},
};

const Letter* FindLetter(char letter) {
  const auto* found = std::ranges::find(kLetters, letter, &Letter::letter);
  return found == std::end(kLetters) ? nullptr : found;
}

bool Fits(const Word& word) {
  const auto* rule =
      std::ranges::find(ModCNC::kWordRules, word.Letter(), &ModCNC::WordRule::letter);
  return rule == std::end(ModCNC::kWordRules) ||
         ModCNC::WordValue(word.Number(), rule->scale).has_value();
}

}  // namespace

bool IsSpindleOn() {
  return !frmMain::StatusBar.Panels("SpindleDirection").Text.Get().empty();
}

void WordUse::OnRow(int row, std::span<const Word> words, std::int16_t function) {
  const Word* lastFunction = nullptr;
  for (const Word& word : words) {
    Write(row, word);
    if (IsModalWord(word)) lastFunction = &word;
  }
  for (const Word& word : words) {
    if (&word == lastFunction || (word.Letter() == 'G' && !IsModalWord(word))) {
      uses_[{row, word.offset}].isUsed = true;
    }
    // Its words are those of the function, which is told.
    if (IsNotSimulated(word)) TakeAllOf(row, words);
  }
  WriteSpeed(words);
  if (EndsRun(words)) {
    for (const Word& word : words) {
      if (HasLetter({&word, 1}, "XZUW")) {
        uses_[{row, word.offset}].why = "M02 and M30 end the run before their block moves";
      }
    }
    return;
  }
  TakeForMotion(function, ModCNC::RadiusGiven != kFalse || HasLetter(words, "R"));
}

void WordUse::Write(int row, const Word& word) {
  const auto [entry, isNew] = uses_.try_emplace({row, word.offset});
  Use& use = entry->second;
  use.word = word.text;
  if (!Fits(word)) {
    use.why = "its number doesn't fit, so the machine passes it over";
    return;
  }
  if (const Letter* letter = FindLetter(word.Letter())) {
    use.why = letter->takenBy;
    for (const char name : letter->registers) registers_[name] = &use;
  } else if (word.Letter() == 'M') {
    use.why = "the machine has no such M function";
    use.isUsed = ModCNC::IsMFunction(*ParseInt16(word.Number()));
  } else if (word.Letter() == 'G') {
    use.why = "another G word of its block takes its place";
  } else {
    use.isUsed = true;
  }
}

void WordUse::TakeAllOf(int row, std::span<const Word> words) {
  for (const Word& word : words) {
    if (word.Letter() != 'M' && Fits(word)) uses_[{row, word.offset}].isUsed = true;
  }
}

// S stands in its register before any M word of its block acts.
void WordUse::WriteSpeed(std::span<const Word> words) {
  bool isOn = IsSpindleOn();
  for (const Word& word : words) {
    if (IsMWord(word, kSpindleStarts)) {
      isOn = true;
      Take("S");
    } else if (IsWord(word, 'M', kSpindleStop)) {
      isOn = false;
      registers_.erase('S');
    }
  }
  if (isOn) Take("S");
}

void WordUse::TakeForMotion(std::int16_t function, bool hasRadius) {
  switch (function) {
    case kNoFunction:
      return;
    case 2:
    case 3:
      Take(hasRadius ? "XZR" : "XZIK");
      return;
    case 73:
      // The F of a cycle means something on other controls, and is often written for them.
      Take("PQRUWF");
      return;
    case 90:
    case 94:
      Take(hasRadius ? "XZR" : "XZ");
      return;
    default:
      Take("XZ");
  }
}

void WordUse::Take(std::string_view registers) {
  for (const char name : registers) {
    const auto found = registers_.find(name);
    if (found != registers_.end()) found->second->isUsed = true;
  }
}

std::vector<Finding> WordUse::Findings() const {
  std::vector<Finding> findings;
  for (const auto& [place, use] : uses_) {
    if (use.isUsed) continue;
    findings.push_back({.row = place.first,
                        .column = place.second,
                        .key = "unused-word",
                        .text = "Nothing uses " + use.word + ": " + use.why +
                                ". Take it out, or put it where it acts."});
  }
  return findings;
}

}  // namespace Inspection

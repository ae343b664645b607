#include <cstdint>
#include <optional>

#include "interpreter/decoder.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "motion/cycles.h"
#include "motion/moves.h"
#include "motion/pattern_cycle.h"
#include "platform/numbers.h"
#include "platform/text.h"

namespace ModCNC {

namespace {

enum class Scale { Plain, TimesTen, Diameter };

std::optional<std::int16_t> WordValue(std::string_view digits, Scale scale) {
  const auto number = ParseNumber(digits);
  if (!number) return std::nullopt;
  switch (scale) {
    case Scale::Plain:
      return RoundToInt16(*number);
    case Scale::TimesTen:
      return RoundToInt16(*number * 10);
    case Scale::Diameter:
      return RoundToInt16(*number / 2 * 10);
  }
  return std::nullopt;
}

void ShowFeedRate() {
  frmMain::StatusBar.Panels("FeedRate").Text = "Feed: " + DecimalText(FeedRate);
}
void MarkRadiusGiven() {
  RadiusGiven = kTrue;
}

struct WordRule {
  char letter;
  Scale scale;
  std::int16_t* value;
  // For incremental words: the target becomes position plus value.
  std::int16_t* target = nullptr;
  const std::int16_t* position = nullptr;
  void (*afterwards)() = nullptr;
};

// N and S have no rule: a sequence number means nothing to the machine, and S is read by the
// pre-scan alone.
constexpr WordRule kWordRules[] = {
    {'F', Scale::Plain, &FeedRate, nullptr, nullptr, ShowFeedRate},
    {'I', Scale::TimesTen, &WordI},
    {'K', Scale::TimesTen, &WordK},
    {'P', Scale::TimesTen, &WordP},
    {'Q', Scale::TimesTen, &WordQ},
    {'R', Scale::TimesTen, &WordR, nullptr, nullptr, MarkRadiusGiven},
    {'T', Scale::Plain, &ToolNumber},
    {'U', Scale::Diameter, &WordU, &TargetX, &CurrentX},
    {'W', Scale::TimesTen, &WordW, &TargetZ, &CurrentZ},
    {'X', Scale::Diameter, &TargetX},
    {'Z', Scale::TimesTen, &TargetZ},
};

void ApplyRule(const WordRule& rule, std::string_view digits) {
  const auto value = WordValue(digits, rule.scale);
  if (!value) return;
  if (rule.target != nullptr) {
    const auto target = RoundToInt16(*rule.position + *value);
    if (!target) return;
    *rule.target = *target;
  }
  *rule.value = *value;
  if (rule.afterwards != nullptr) rule.afterwards();
}

// Calls `act` for each part between blanks, empty parts included, without building a list.
template <class Action>
void ForEachWord(std::string_view text, Action act) {
  for (;;) {
    const std::size_t end = text.find(' ');
    act(text.substr(0, end));
    if (end == std::string_view::npos) return;
    text.remove_prefix(end + 1);
  }
}

// S and T act before any other word, wherever they stand. Only a capital brings the scan about,
// which then takes either case.
void PreScan(std::string_view text) {
  if (text.find_first_of("ST") == std::string_view::npos) return;
  ForEachWord(text, [](std::string_view word) {
    if (word.empty()) return;
    const char letter = ToUpper(word.front());
    if (letter != 'S' && letter != 'T') return;
    if (const auto value = ParseInt16(word.substr(1))) {
      (letter == 'S' ? SpindleSpeed : ToolNumber) = *value;
    }
  });
}

struct MotionRule {
  std::int16_t function;
  void (*executor)();
};

constexpr MotionRule kMotionRules[] = {
    {0, GCodes::ExecuteG00},  {1, GCodes::ExecuteG01},  {2, GCodes::ExecuteG02},
    {3, GCodes::ExecuteG03},  {28, GCodes::ExecuteG28}, {73, GCodes::ExecuteG73},
    {90, GCodes::ExecuteG90}, {94, GCodes::ExecuteG94},
};

}  // namespace

void ExecuteBlock(std::string_view text) {
  PreScan(text);
  ForEachWord(text, DecodeWord);
  DispatchMotion();
}

void DecodeWord(std::string_view word) {
  if (word.empty()) return;
  switch (word.front()) {
    case 'G':
      DecodeGWord(word);
      return;
    case 'M':
      DecodeMWord(word);
      return;
    default:
      break;
  }
  for (const WordRule& rule : kWordRules) {
    if (rule.letter == word.front()) {
      ApplyRule(rule, word.substr(1));
      return;
    }
  }
}

void DispatchMotion() {
  for (const MotionRule& rule : kMotionRules) {
    if (rule.function == ActiveG) {
      rule.executor();
      return;
    }
  }
}

}  // namespace ModCNC

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <optional>

#include "interpreter/decoder.h"
#include "interpreter/g_functions.h"
#include "interpreter/machine.h"
#include "interpreter/run_observer.h"
#include "interpreter/words.h"
#include "mainwindow/control_surface.h"
#include "platform/numbers.h"
#include "platform/text.h"

namespace ModCNC {

namespace {

void StoreValue(const WordRule& rule, std::string_view digits) {
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

void ApplyRule(const WordRule& rule, std::string_view word) {
  if (rule.decode != nullptr) {
    rule.decode(word);
    return;
  }
  if (rule.value != nullptr) StoreValue(rule, word.substr(1));
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

constexpr std::int16_t kNoFunction = -1;

const GFunction* FindGFunction(std::optional<std::int16_t> number) {
  const auto* found = std::ranges::find(kGFunctions, number, &GFunction::number);
  return found == std::end(kGFunctions) ? nullptr : found;
}

}  // namespace

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

bool ExecuteRow(std::string_view row) {
  const std::size_t comment = row.find('[');
  if (comment == 0) return false;
  const std::string_view block = row.substr(0, comment);
  if (Observer != nullptr) Observer->OnRow(block);
  ExecuteBlock(block);
  return true;
}

void ExecuteBlock(std::string_view text) {
  PreScan(text);
  ForEachWord(text, DecodeWord);
  DispatchMotion();
}

void DecodeWord(std::string_view word) {
  if (word.empty()) return;
  const auto* rule = std::ranges::find(kWordRules, word.front(), &WordRule::letter);
  if (rule != std::end(kWordRules)) ApplyRule(*rule, word);
}

void DecodeGWord(std::string_view word) {
  const std::string_view digits = word.substr(1);
  if (!IsNumeric(digits)) return;
  const GFunction* function = FindGFunction(ParseInt16(digits));
  if (function != nullptr && function->unit != nullptr) {
    frmMain::StatusBar.Panels("Dim").Text = function->unit;
    return;
  }
  ActiveG = function != nullptr && function->isModal ? function->number : kNoFunction;
}

void DispatchMotion() {
  const GFunction* function = FindGFunction(ActiveG);
  if (function != nullptr && function->executor != nullptr) function->executor();
}

}  // namespace ModCNC

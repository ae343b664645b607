#include "inspection/pattern_blocks.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "mainwindow/control_surface.h"
#include "motion/pattern_cycle.h"
#include "platform/numbers.h"

namespace Inspection {

namespace {

// P and Q, and the row that each finds.
struct End {
  char letter;
  const char* role;
  const char* key;
};
constexpr End kFirst = {'P', "first", "pattern-first-row"};
constexpr End kLast = {'Q', "last", "pattern-last-row"};

const std::string& RowText(int row) {
  return frmMain::DebugWindow.TextMatrix(row, frmMain::kTextColumn);
}

const Word* FindLetter(std::span<const Word> words, char letter) {
  const auto found = std::ranges::find(words, letter, &Word::Letter);
  return found == words.end() ? nullptr : &*found;
}

// The number of a P or Q word, as the cycle takes it.
std::optional<std::int16_t> SequenceNumber(const Word& word) {
  const auto number = ParseNumber(word.Number());
  const auto tenfold = number ? RoundToInt16(*number * 10) : std::nullopt;
  return tenfold ? RoundToInt16(*tenfold / 10.0) : std::nullopt;
}

bool BearsNumber(int row, std::int16_t number) {
  const std::string_view text = RowText(row);
  const std::string wanted = 'N' + DecimalText(number);
  return std::ranges::any_of(WordsOf(text.substr(0, text.find('['))),
                             [&](const Word& word) { return word.text == wanted; });
}

// Why the first row from `from` on that holds the number isn't the one that bears it.
std::string WrongRow(std::string_view wanted, std::string_view text) {
  const std::size_t found = text.find(wanted);
  if (text.find('[') < found) return "in a comment";
  return "inside " + std::string(text.substr(found, text.find(' ', found) - found));
}

// Judges P or Q. Returns the row that it finds.
std::optional<std::int16_t> Judge(const End& end, int row, std::span<const Word> words, int from,
                                  std::vector<Finding>& findings) {
  const std::string role = end.role;
  const Word* word = FindLetter(words, end.letter);
  const auto number = word != nullptr ? SequenceNumber(*word) : std::nullopt;
  if (!number) {
    findings.push_back({row, 0, end.key,
                        std::string("The second block of G73 has no ") + end.letter +
                            ". Name the " + role + " row of the contour by its N number."});
    return std::nullopt;
  }
  const auto found = GCodes::FindSequenceNumber(*number, from);
  if (found && BearsNumber(*found, *number)) return found;
  const std::string wanted = 'N' + DecimalText(*number);
  std::string text(word->text);
  if (!found) {
    text += std::string(": no row") + (from > 0 ? " behind the first of the contour" : "") +
            " bears " + wanted + ". Give the " + role + " row of the contour that number.";
  } else {
    text += " finds " + wanted + ' ' + WrongRow(wanted, RowText(*found)) +
            ", the first text that holds it. Number the " + role +
            " row of the contour so that none above holds its number.";
  }
  findings.push_back({row, word->offset, end.key, text});
  return found;
}

}  // namespace

std::vector<Finding> SecondBlockFindings(int row, std::span<const Word> words) {
  if (!HasLetter(words, "PQ") && !HasWord(words, 'G', 73)) {
    return {{row, 0, "pattern-interrupted",
             Written(words) +
                 " stands between the two blocks of G73 and counts as the second one. Put it "
                 "ahead of the first."}};
  }
  std::vector<Finding> findings;
  const auto first = Judge(kFirst, row, words, 0, findings);
  Judge(kLast, row, words, first.value_or(0) + 1, findings);
  return findings;
}

}  // namespace Inspection

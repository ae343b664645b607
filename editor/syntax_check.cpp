#include "editor/syntax_check.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "interpreter/g_functions.h"
#include "interpreter/words.h"
#include "mainwindow/view_toggles.h"
#include "platform/code_page.h"
#include "platform/host/desktop.h"
#include "platform/numbers.h"
#include "platform/text.h"

namespace frmMain {

namespace {

constexpr std::string_view kNumberCharacters = "0123456789.-+";

enum class FaultKind { invalidCharacter, missingLetter, badNumber, badGCode };

struct Fault {
  FaultKind kind = FaultKind::invalidCharacter;
  // The selection that shows it, in bytes of the text.
  std::size_t start = 0;
  std::size_t length = 0;
};

template <class Table, class Value>
bool Contains(const Table& table, const Value& value) {
  return std::ranges::find(table, value) != std::ranges::end(table);
}

bool IsAllowed(char c) {
  return Contains(ModCNC::kWordLetters, ToUpper(c)) || Contains(kNumberCharacters, c);
}

// Judges a word that stands at `start` of the text and isn't empty.
std::optional<Fault> FaultOfWord(std::string_view word, std::size_t start) {
  const auto invalid = std::find_if_not(word.begin(), word.end(), IsAllowed);
  if (invalid != word.end()) {
    const auto place = static_cast<std::size_t>(invalid - word.begin());
    return Fault{FaultKind::invalidCharacter, start + place, 1};
  }
  const char letter = ToUpper(word.front());
  if (letter < 'A' || letter > 'Z') return Fault{FaultKind::missingLetter, start, 1};
  const std::string_view number = word.substr(1);
  if (!IsNumeric(number)) return Fault{FaultKind::badNumber, start + 1, number.size()};
  if (letter == 'G' && !Contains(ModCNC::kCheckedGNumbers, ParseInt16(number))) {
    return Fault{FaultKind::badGCode, start, word.size()};
  }
  return std::nullopt;
}

std::size_t OffsetIn(std::string_view text, std::string_view part) {
  return static_cast<std::size_t>(part.data() - text.data());
}

std::optional<Fault> FaultOfLine(std::string_view line, std::size_t start) {
  for (const std::string_view word : Split(line, " ")) {
    if (word.empty()) continue;
    if (word.front() == '[') return std::nullopt;
    if (const auto fault = FaultOfWord(word, start + OffsetIn(line, word))) return fault;
  }
  return std::nullopt;
}

std::optional<Fault> FindFault(std::string_view text) {
  for (const std::string_view line : Split(text, kLineEnd)) {
    if (const auto fault = FaultOfLine(line, OffsetIn(text, line))) return fault;
  }
  return std::nullopt;
}

void Select(RichText& editor, const Fault& fault) {
  editor.SetSelStart(fault.start);
  editor.SetSelLength(fault.length);
}

// The selection becomes a blank over which the missing letter can be typed.
void OpenPlaceForLetter(RichText& editor, const Fault& fault) {
  editor.SetSelText(' ' + editor.SelText());
  Select(editor, fault);
}

std::string Message(FaultKind kind, const std::string& selected) {
  switch (kind) {
    case FaultKind::invalidCharacter:
      return "An invalid character '" + selected + "' was found.";
    case FaultKind::missingLetter:
      return "Missing Character at this position.";
    case FaultKind::badNumber:
      return "This is not a valid numeric value";
    case FaultKind::badGCode:
      return selected + " is not a valid G Code";
  }
  return {};
}

void Report(RichText& editor, const Fault& fault) {
  if (!editor.Visible) mnuViewTextEditor_Click();
  Select(editor, fault);
  if (fault.kind == FaultKind::missingLetter) OpenPlaceForLetter(editor, fault);
  Desktop::MessageBox(Message(fault.kind, CodePageToUtf8(editor.SelText())), Desktop::kInformation,
                      "Syntax Error!");
}

}  // namespace

bool CheckSyntax(RichText& editor) {
  const auto fault = FindFault(editor.Text());
  if (fault) Report(editor, *fault);
  return fault.has_value();
}

}  // namespace frmMain

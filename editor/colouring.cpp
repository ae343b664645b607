#include "editor/colouring.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "mainwindow/control_surface.h"
#include "platform/host/desktop.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "settings/settings.h"

namespace frmMain {

using GlobalVariables::Settings;

namespace {

constexpr char kCommentStart = '[';

using ColourSetting = Colour GlobalVariables::SettingsRecord::*;

// The setting that colours a character outside comments; null leaves it as it is.
ColourSetting ColourOf(char c) {
  const char upper = ToUpper(c);
  if (upper >= 'A' && upper <= 'Z') return &GlobalVariables::SettingsRecord::EditorCharacterColor;
  if ((c >= '0' && c <= '9') || c == '-' || c == ' ' || c == '.') {
    return &GlobalVariables::SettingsRecord::EditorIntegerColor;
  }
  return nullptr;
}

// Where the comment, or the stretch of characters of one class, that begins at `start` ends.
std::size_t EndOfStretch(const std::string& text, std::size_t start) {
  if (text[start] == kCommentStart) return std::min(text.find(kLineEnd, start), text.size());
  std::size_t end = start + 1;
  while (end < text.size() && text[end] != kCommentStart &&
         ColourOf(text[end]) == ColourOf(text[start])) {
    ++end;
  }
  return end;
}

void Select(RichText& control, std::size_t start, std::size_t end) {
  control.SetSelStart(start);
  control.SetSelLength(end - start);
}

void ColourStretches(RichText& buffer) {
  const std::string& text = buffer.Text();
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = EndOfStretch(text, start);
    const ColourSetting colour = text[start] == kCommentStart
                                     ? &GlobalVariables::SettingsRecord::EditorCommentColor
                                     : ColourOf(text[start]);
    if (colour != nullptr) {
      Select(buffer, start, end);
      buffer.SetSelColor(Settings.*colour);
    }
    start = end;
  }
}

// Gives the editor this text as an edit of what differs, which the user can undo.
void EditInto(RichText& editor, std::string_view text) {
  const std::string former = editor.Text();
  if (former == text) return;
  const std::size_t shorter = std::min(former.size(), text.size());
  const auto common = [](auto from, auto other, std::size_t most) {
    const auto end = from + static_cast<std::ptrdiff_t>(most);
    return static_cast<std::size_t>(std::mismatch(from, end, other).first - from);
  };
  const std::size_t front = common(former.begin(), text.begin(), shorter);
  const std::size_t back = common(former.rbegin(), text.rbegin(), shorter - front);
  Select(editor, front, former.size() - back);
  editor.SetSelText(text.substr(front, text.size() - back - front));
}

}  // namespace

void ColourText() {
  RichText& buffer = TextBuffer();
  const std::size_t length = buffer.Text().size();
  if (length > kMaxColouredLength) {
    Desktop::MessageBox("The text has " + DecimalText(static_cast<std::int64_t>(length)) +
                        " characters; at most " + DecimalText(kMaxColouredLength) +
                        " can be coloured.");
    return;
  }
  Select(buffer, 0, length);
  buffer.SetSelBold(Settings.EditorFontBold != 0);
  buffer.SetSelFontName(Settings.EditorFontName);
  buffer.SetSelFontSize(Settings.EditorFontSize);
  ColourStretches(buffer);
  TextEditor().SetTextRTF(buffer.TextRTF());
  TextEditor().BackColor = Settings.EditorBackColor;
  EnableCommands("Save", false);
}

void RecolourText(std::string text) {
  const bool saveWasEnabled = Toolbar.Buttons("Save").Enabled;
  if (text.size() <= kMaxColouredLength) EditInto(TextEditor(), text);
  TextBuffer().SetText(std::move(text));
  ColourText();
  EnableCommands("Save", saveWasEnabled);
}

}  // namespace frmMain

#include "editor/reformat.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "editor/colouring.h"
#include "mainwindow/control_surface.h"
#include "platform/text.h"

namespace frmMain {

namespace {

// Appends the words of the part of a line in front of its comment, a blank before each letter.
void AppendWords(std::string_view code, std::string& line) {
  for (const char c : code) {
    if (c == ' ' || c == '\t') continue;
    const char raised = ToUpper(c);
    const bool opensWord = raised >= 'A' && raised <= 'Z';
    // Blanks that kept a CR and an LF apart may not go: the two would become a line end.
    const bool wouldEndLine = raised == '\n' && !line.empty() && line.back() == '\r';
    if (opensWord || wouldEndLine) line += ' ';
    line += raised;
  }
}

std::string CanonicalLine(std::string_view line) {
  const std::string_view trimmed = Trim(line);
  const std::size_t comment = std::min(trimmed.find('['), trimmed.size());
  std::string result;
  AppendWords(trimmed.substr(0, comment), result);
  result += ' ';
  result += trimmed.substr(comment);
  return std::string(Trim(result));
}

std::string CanonicalText(std::string_view text) {
  const std::vector<std::string_view> lines = Split(text, kLineEnd);
  std::string result;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::string line = CanonicalLine(lines[i]);
    if (line.empty()) continue;
    result += line;
    if (i + 1 < lines.size()) result += kLineEnd;
  }
  return result;
}

}  // namespace

void ReformatText(RichText& editor) {
  RecolourText(CanonicalText(editor.Text()));
}

void mnuToolsReformatText_Click() {
  ReformatText(TextEditor());
}

}  // namespace frmMain

#include "editor/source_place.h"

#include <algorithm>
#include <string>
#include <vector>

#include "platform/text.h"

namespace frmMain {

namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

bool IsBlankLine(std::string_view line) {
  return std::all_of(line.begin(), line.end(), IsBlank);
}

std::size_t CountCharacters(std::string_view text) {
  return text.size() - static_cast<std::size_t>(std::count_if(text.begin(), text.end(), IsBlank));
}

// The column, from 1, of the character behind the first `count` that are no blanks.
int ColumnBehind(std::string_view line, std::size_t count) {
  std::size_t column = 0;
  while (column < line.size() && (count > 0 || IsBlank(line[column]))) {
    if (!IsBlank(line[column])) --count;
    ++column;
  }
  return static_cast<int>(column) + 1;
}

}  // namespace

TextPlace FindSourcePlace(std::string_view source, std::string_view reformatted,
                          std::size_t offset) {
  const std::vector<std::string_view> before = Split(reformatted.substr(0, offset), kLineEnd);
  std::size_t linesAhead = before.size() - 1;
  const std::size_t charactersAhead = CountCharacters(before.back());
  int number = 0;
  for (const std::string_view line : Split(source, kLineEnd)) {
    ++number;
    if (IsBlankLine(line)) continue;
    if (linesAhead == 0) return {number, ColumnBehind(line, charactersAhead)};
    --linesAhead;
  }
  return {number, 1};
}

}  // namespace frmMain

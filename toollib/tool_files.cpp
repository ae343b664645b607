#include "toollib/tool_files.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>
#include <vector>

#include "platform/code_page.h"
#include "platform/host/files.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "toollib/tool_folder.h"

namespace {

constexpr std::string_view kLineEnds = "\r\n";

// Calls `act(name, value)` for each line "name=value". What follows a second "=" is no part of the
// value. Empty lines and lines without "=" are passed over, so any mix of line ends will do.
template <class Action>
void ForEachRecord(std::string_view text, Action act) {
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of(kLineEnds), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    const std::string_view rest = line.substr(equals + 1);
    act(line.substr(0, equals), rest.substr(0, rest.find('=')));
  }
}

bool EqualsIgnoringCase(std::string_view text, std::string_view upperCase) {
  return std::equal(text.begin(), text.end(), upperCase.begin(), upperCase.end(),
                    [](char a, char b) { return ToUpper(a) == b; });
}

std::string ListPath() {
  return AssetPath(GlobalVariables::ToolFolder() + "ToolList.ini");
}

std::string ItemText(int toolNumber) {
  return "Tool " + DecimalText(toolNumber);
}

std::vector<int> AllNumbers() {
  std::vector<int> numbers(GlobalVariables::kToolCount);
  std::iota(numbers.begin(), numbers.end(), 0);
  return numbers;
}

void Offer(std::vector<int> numbers) {
  std::vector<std::string> items;
  items.reserve(numbers.size());
  for (const int number : numbers) items.push_back(ItemText(number));
  frmToolSelect::cmbTools.ItemData = std::move(numbers);
  frmToolSelect::cmbTools.List = std::move(items);
}

}  // namespace

namespace GlobalVariables {

std::array<std::string, kToolCount> ToolFiles;

bool IsBareBitmapName(std::string_view name) {
  constexpr std::size_t kExtension = 4;
  if (name.size() < kExtension || name[name.size() - kExtension] != '.') return false;
  return std::none_of(name.begin(), name.end(), [](char c) {
    return c == '/' || c == '\\' || static_cast<unsigned char>(c) < ' ';
  });
}

std::string DescriptionPath(const std::string& bitmapPath) {
  constexpr std::string_view kExtension = "ini";
  const std::size_t stem = bitmapPath.size() - std::min(bitmapPath.size(), kExtension.size());
  return bitmapPath.substr(0, stem).append(kExtension);
}

bool ReadToolSize(const std::string& bitmapPath, std::int16_t& height, std::int16_t& width,
                  std::string& reason) {
  const auto bytes = ReadFile(AssetPath(DescriptionPath(bitmapPath)), reason);
  if (!bytes) return false;
  ForEachRecord(*bytes, [&](std::string_view key, std::string_view value) {
    const auto number = ParseInt16(Trim(value));
    if (!number) return;
    if (EqualsIgnoringCase(key, "TOOLWIDTH")) width = *number;
    if (EqualsIgnoringCase(key, "TOOLHEIGHT")) height = *number;
  });
  return true;
}

std::optional<ToolDescription> ReadToolDescription(const std::string& bitmapPath,
                                                   std::string& reason) {
  struct Row {
    std::string_view key;
    std::optional<std::string> ToolDescription::*field;
  };
  constexpr Row kRows[] = {
      {"TOOLNAME", &ToolDescription::Name},
      {"TOOLWIDTH", &ToolDescription::Width},
      {"TOOLHEIGHT", &ToolDescription::Height},
      {"CUTTINGPOINT", &ToolDescription::CuttingPoint},
  };
  const auto bytes = ReadFile(AssetPath(DescriptionPath(bitmapPath)), reason);
  if (!bytes) return std::nullopt;
  ToolDescription description;
  ForEachRecord(*bytes, [&](std::string_view key, std::string_view value) {
    for (const Row& row : kRows) {
      if (EqualsIgnoringCase(key, row.key)) description.*row.field = CodePageToUtf8(Trim(value));
    }
  });
  return description;
}

}  // namespace GlobalVariables

namespace frmToolSelect {

using GlobalVariables::kToolCount;
using GlobalVariables::ToolFiles;

ComboBox cmbTools;
std::string ListTrouble;

void GetToolList() {
  ListTrouble.clear();
  const auto bytes = ReadFile(ListPath(), ListTrouble);
  if (!bytes) {
    Offer(AllNumbers());
    return;
  }
  std::vector<int> numbers;
  std::array<bool, kToolCount> listed{};
  ForEachRecord(*bytes, [&](std::string_view number, std::string_view fileName) {
    const auto n = ParseInt16(Trim(number));
    if (!n || *n < 0 || *n >= kToolCount) return;
    const auto index = static_cast<std::size_t>(*n);
    ToolFiles[index] = CodePageToUtf8(fileName);
    if (!listed[index]) numbers.push_back(*n);
    listed[index] = true;
  });
  Offer(std::move(numbers));
}

bool WriteToolList(std::string& reason) {
  std::string text;
  for (int n = 0; n < kToolCount; ++n) {
    const std::string& name = ToolFiles[static_cast<std::size_t>(n)];
    const auto bytes = Utf8ToCodePage(name);
    if (!bytes || bytes->find_first_of(kLineEnds) != std::string::npos) {
      reason = "The name \"" + name + "\" of " + ItemText(n) +
               " has a character that the tool list can't hold. Give the bitmap another name.";
      return false;
    }
    text += DecimalText(n) + '=' + *bytes;
    text += kLineEnd;
  }
  return ReplaceFile(ListPath(), text, reason);
}

void ResetToolFiles() {
  ToolFiles = {};
  cmbTools = {};
  ListTrouble.clear();
}

}  // namespace frmToolSelect

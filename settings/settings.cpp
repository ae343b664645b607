#include "settings/settings.h"

#include <optional>
#include <type_traits>

#include "platform/host/settings_store.h"
#include "platform/numbers.h"
#include "platform/text.h"

namespace GlobalVariables {

SettingsRecord Settings;

using Record = SettingsRecord;

namespace {

constexpr SettingRow kRows[] = {
    {"TextEditor", "Font", "Courier New", &Record::EditorFontName},
    {"TextEditor", "Size", "10", &Record::EditorFontSize},
    {"TextEditor", "Integer", "0", &Record::EditorIntegerColor},
    {"TextEditor", "Character", "16711680", &Record::EditorCharacterColor},
    {"TextEditor", "Background", "16777215", &Record::EditorBackColor},
    {"TextEditor", "Comment", "32768", &Record::EditorCommentColor},
    {"TextEditor", "Bold", "0", &Record::EditorFontBold},
    {"General", "AutoComplete", "1", &Record::AutoComplete},
    {"General", "SplashScreen", "1", &Record::SplashScreen},
    {"General", "AutoReformat", "1", &Record::AutoReformat},
    {"General", "OpenLastFile", "1", &Record::OpenLastFile},
    {"Debug", "Font", "Courier New", &Record::DebugFontName},
    {"Debug", "Size", "10", &Record::DebugFontSize},
    {"Debug", "BreakPointColor", "128", &Record::BreakPointColor},
    {"Debug", "BreakPointTextColor", "16777215", &Record::BreakPointTextColor},
    {"Debug", "ExecutionPointColor", "65535", &Record::ExecutionPointColor},
    {"Debug", "ExecutionPointTextColor", "0", &Record::ExecutionPointTextColor},
    {"Debug", "NormalBackColor", "16777215", &Record::NormalBackColor},
    {"Debug", "NormalTextColor", "0", &Record::NormalTextColor},
    {"Debug", "C0Width", "350", &Record::DebugC0Width},
    {"Debug", "C1Width", "300", &Record::DebugC1Width},
    {"Debug", "C2Width", "3500", &Record::DebugC2Width},
    {"Debug", "RowHeight", "285", &Record::DebugRowHeight},
    {"Debug", "Grid", "1", &Record::DebugGrid},
    {"Debug", "LineNumbers", "1", &Record::DebugLineNumbers},
    {"SimulationWindow", "WorkPieceColor", "16711680", &Record::WorkPieceColor},
    {"SimulationWindow", "BackColor", "16777215", &Record::SimBackColor},
    {"SimulationWindow", "EffectColor", "16750230", &Record::EffectColor},
};

constexpr std::int32_t kMaxColour = 0xFFFFFF;

std::optional<Colour> ParseColour(std::string_view text) {
  const auto number = ParseNumber(text);
  const auto value = number ? RoundToInt32(*number) : std::nullopt;
  if (!value || *value < 0 || *value > kMaxColour) return std::nullopt;
  return static_cast<Colour>(*value);
}

// Empty when the text is no value of the field's type.
template <class T>
std::optional<T> Convert(std::string_view text) {
  if constexpr (std::is_same_v<T, std::string>) {
    return text.empty() ? std::nullopt : std::optional(std::string(text));
  } else if constexpr (std::is_same_v<T, std::int16_t>) {
    return ParseInt16(Trim(text));
  } else {
    return ParseColour(Trim(text));
  }
}

// Leaves the field as it is when the text is no value of it.
void SetField(Record& record, const SettingRow& row, std::string_view text) {
  std::visit(
      [&](auto field) {
        using T = std::remove_reference_t<decltype(record.*field)>;
        if (auto value = Convert<T>(text)) record.*field = *std::move(value);
      },
      row.field);
}

}  // namespace

const std::span<const SettingRow> kSettingRows = kRows;

void LoadSettings() {
  const SettingRow& editorFont = kSettingRows.front();
  if (GetSetting(kApplication, editorFont.section, editorFont.key).empty()) WriteDefaultSettings();
  Settings = DefaultSettings();
  for (const SettingRow& row : kSettingRows) {
    SetField(Settings, row, GetSetting(kApplication, row.section, row.key));
  }
}

SettingsRecord DefaultSettings() {
  SettingsRecord defaults;
  for (const SettingRow& row : kSettingRows) SetField(defaults, row, row.defaultText);
  return defaults;
}

void WriteDefaultSettings() {
  for (const SettingRow& row : kSettingRows) {
    SaveSetting(kApplication, row.section, row.key, row.defaultText);
  }
}

}  // namespace GlobalVariables

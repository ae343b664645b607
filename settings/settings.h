#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "platform/colour.h"

namespace GlobalVariables {

// The application name under which everything is stored.
inline constexpr std::string_view kApplication = "CNC";

// All user settings. Filled by LoadSettings alone, read by all others.
// Sizes of fonts are points, widths and heights of the grid twips; flags are 1 or 0.
struct SettingsRecord {
  std::string EditorFontName;
  std::int16_t EditorFontSize = 0;
  Colour EditorIntegerColor = 0;
  Colour EditorCharacterColor = 0;
  Colour EditorBackColor = 0;
  Colour EditorCommentColor = 0;
  std::int16_t EditorFontBold = 0;
  std::int16_t AutoComplete = 0;
  std::int16_t SplashScreen = 0;
  std::int16_t AutoReformat = 0;
  std::int16_t OpenLastFile = 0;
  std::string DebugFontName;
  std::int16_t DebugFontSize = 0;
  Colour BreakPointColor = 0;
  Colour BreakPointTextColor = 0;
  Colour ExecutionPointColor = 0;
  Colour ExecutionPointTextColor = 0;
  Colour NormalBackColor = 0;
  Colour NormalTextColor = 0;
  std::int16_t DebugC0Width = 0;
  std::int16_t DebugC1Width = 0;
  std::int16_t DebugC2Width = 0;
  std::int16_t DebugRowHeight = 0;
  std::int16_t DebugGrid = 0;
  std::int16_t DebugLineNumbers = 0;
  Colour WorkPieceColor = 0;
  Colour SimBackColor = 0;
  Colour EffectColor = 0;

  bool operator==(const SettingsRecord&) const = default;
};

extern SettingsRecord Settings;

using SettingField = std::variant<std::string SettingsRecord::*, std::int16_t SettingsRecord::*,
                                  Colour SettingsRecord::*>;

// One row a key, in the order in which the defaults are written.
struct SettingRow {
  std::string_view section;
  std::string_view key;
  std::string_view defaultText;
  SettingField field;
};

extern const std::span<const SettingRow> kSettingRows;

// Fills Settings from the store. A store without an editor font counts as unused: all defaults are
// written first. A value that is absent or can't be read takes its default. Touches no control.
void LoadSettings();

// What an unused store makes of Settings.
SettingsRecord DefaultSettings();

// Writes the default text of every row, in order, over whatever is there.
void WriteDefaultSettings();

}  // namespace GlobalVariables

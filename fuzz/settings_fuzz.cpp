#include <string>
#include <type_traits>
#include <variant>
#include <vector>

#include "fuzz/bodies.h"
#include "fuzz/quiet_desktop.h"
#include "platform/text.h"
#include "settings/settings.h"

namespace Fuzz {

using GlobalVariables::SettingRow;

namespace {

constexpr Colour kWhite = 0xFFFFFF;

void RequireUsable(const SettingRow& row) {
  std::visit(
      [](auto field) {
        const auto& value = GlobalVariables::Settings.*field;
        using T = std::remove_cvref_t<decltype(value)>;
        if constexpr (std::is_same_v<T, std::string>) {
          Require(!value.empty(), "every font has a name");
        } else if constexpr (std::is_same_v<T, Colour>) {
          Require(value <= kWhite, "every colour is one");
        }
      },
      row.field);
}

}  // namespace

void Settings(std::string_view values) {
  QuietDesktop::Reset();
  std::size_t line = 0;
  for (const std::string_view value : Split(values, "\n")) {
    if (line == GlobalVariables::kSettingCount) break;
    const SettingRow& row = GlobalVariables::kSettingRows.at(line++);
    QuietDesktop::PutSetting(row.section, row.key, value);
  }
  GlobalVariables::LoadSettings();
  for (const SettingRow& row : GlobalVariables::kSettingRows) RequireUsable(row);
}

}  // namespace Fuzz

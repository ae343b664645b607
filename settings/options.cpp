#include "settings/options.h"

#include <string>
#include <type_traits>

#include "platform/host/settings_store.h"
#include "platform/numbers.h"

namespace GlobalVariables {

namespace {

std::string TextOf(const SettingsRecord& record, const SettingField& field) {
  return std::visit(
      [&](auto member) -> std::string {
        const auto& value = record.*member;
        if constexpr (std::is_integral_v<std::remove_cvref_t<decltype(value)>>) {
          return DecimalText(value);
        } else {
          return value;
        }
      },
      field);
}

void Save(const SettingsRecord& options, const SettingRow& row) {
  SaveSetting(kApplication, row.section, row.key, TextOf(options, row.field));
}

}  // namespace

void SaveOptions(const SettingsRecord& options) {
  const SettingRow* rowHeight = nullptr;
  for (const SettingRow& row : kSettingRows) {
    if (row.key == "RowHeight") {
      // Unlike the defaults, it is written behind the check boxes of the grid.
      rowHeight = &row;
    } else if (row.key != "C0Width" || options.DebugLineNumbers != 0) {
      Save(options, row);
    }
    if (row.key == "LineNumbers") Save(options, *rowHeight);
  }
}

}  // namespace GlobalVariables

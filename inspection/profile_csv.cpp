#include "inspection/profile_csv.h"

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/numbers.h"
#include "platform/text.h"

namespace Inspection {

namespace {

constexpr std::string_view kHead = "z_mm,radius_mm,taper";

// Tenths of a millimetre; empty when the text is finer than that, or no length of a part.
std::optional<std::int16_t> ParseTenths(std::string_view millimetres) {
  const std::optional<double> value = ParseNumber(millimetres);
  if (!value) return std::nullopt;
  const std::optional<std::int16_t> tenths = RoundToInt16(*value * 10);
  return tenths && *tenths / 10.0 == *value ? tenths : std::nullopt;
}

std::optional<Graphics::ProfileColumn> ParseColumn(std::string_view line, std::size_t column) {
  const std::vector<std::string_view> fields = Split(line, ",");
  if (fields.size() != 3) return std::nullopt;
  const auto z = ParseTenths(fields[0]);
  const auto radius = ParseTenths(fields[1]);
  const auto mark = ParseInt16(fields[2]);
  const bool isRight = z && radius && mark && -*z == static_cast<int>(column) && *radius >= 0 &&
                       (*mark == 0 || *mark == 1);
  if (!isRight) return std::nullopt;
  return Graphics::ProfileColumn{*radius, *mark};
}

}  // namespace

std::string ProfileCsv(const Profile& profile) {
  std::string csv = std::string(kHead) + '\n';
  int column = 0;
  for (const auto& [radius, mark] : profile) {
    csv += ZText(column++) + ',' + Millimetres(radius) + ',' + DecimalText(mark) + '\n';
  }
  return csv;
}

bool IsProfileCsv(std::string_view text) {
  return text.starts_with(kHead);
}

std::optional<Profile> ParseProfileCsv(std::string_view text, std::string& reason) {
  const std::string whole = WithCrLf(text);
  std::vector<std::string_view> lines = Split(whole, kLineEnd);
  if (lines.back().empty()) lines.pop_back();
  Profile profile;
  for (std::size_t row = 1; row < lines.size(); ++row) {
    const auto column = ParseColumn(lines[row], row - 1);
    if (!column) {
      reason = "Line " + DecimalText(static_cast<std::int64_t>(row) + 1) +
               " isn't that of a profile: \"" + std::string(lines[row]) + "\" has to be " +
               ZText(static_cast<int>(row) - 1) +
               ", a radius in tenths of a millimetre, and 0 or 1.";
      return std::nullopt;
    }
    profile.push_back(*column);
  }
  if (!profile.empty()) return profile;
  reason = "The profile has no columns.";
  return std::nullopt;
}

}  // namespace Inspection

#include "platform/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

constexpr double kPixelLimit = 1'000'000;

bool IsSign(char c) {
  return c == '+' || c == '-';
}
bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// The digits and the point, without the sign; the sign's factor goes to `sign`.
std::string_view CutSign(std::string_view text, double& sign) {
  sign = 1;
  if (!text.empty() && IsSign(text.front())) {
    sign = text.front() == '-' ? -1 : 1;
    text.remove_prefix(1);
  } else if (!text.empty() && IsSign(text.back())) {
    sign = text.back() == '-' ? -1 : 1;
    text.remove_suffix(1);
  }
  return text;
}

bool IsUnsignedNumber(std::string_view text) {
  const auto points = std::count(text.begin(), text.end(), '.');
  const auto digits = std::count_if(text.begin(), text.end(), IsDigit);
  return points <= 1 && digits >= 1 && points + digits == static_cast<std::ptrdiff_t>(text.size());
}

// nearbyint rounds a half to even: nothing in this program changes the rounding mode.
template <class Integer>
std::optional<Integer> RoundTo(double value) {
  const double rounded = std::nearbyint(value);
  const bool fits = rounded >= std::numeric_limits<Integer>::min() &&
                    rounded <= std::numeric_limits<Integer>::max();
  return fits ? std::optional(static_cast<Integer>(rounded)) : std::nullopt;
}

}  // namespace

bool IsNumeric(std::string_view text) {
  double sign = 1;
  return IsUnsignedNumber(CutSign(text, sign));
}

std::optional<double> ParseNumber(std::string_view text) {
  double sign = 1;
  const std::string_view digits = CutSign(text, sign);
  if (!IsUnsignedNumber(digits)) return std::nullopt;
  double value = 0;
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value,
                                      std::chars_format::fixed);
  if (result.ec == std::errc::result_out_of_range) {
    // Either too large, or so small that it is 0: only the former has a whole part.
    const std::string_view whole = digits.substr(0, digits.find('.'));
    if (whole.find_first_not_of('0') != std::string_view::npos) return std::nullopt;
    return 0.0;
  }
  return sign * value;
}

std::optional<std::int16_t> RoundToInt16(double value) {
  return RoundTo<std::int16_t>(value);
}

std::optional<std::int32_t> RoundToInt32(double value) {
  return RoundTo<std::int32_t>(value);
}

std::optional<std::int16_t> ParseInt16(std::string_view text) {
  const auto number = ParseNumber(text);
  return number ? RoundToInt16(*number) : std::nullopt;
}

int RoundToPixel(double value) {
  return static_cast<int>(std::nearbyint(std::clamp(value, -kPixelLimit, kPixelLimit)));
}

std::int16_t ClipToInt16(int value) {
  return static_cast<std::int16_t>(std::clamp<int>(value, std::numeric_limits<std::int16_t>::min(),
                                                   std::numeric_limits<std::int16_t>::max()));
}

std::string DecimalText(std::int64_t value) {
  std::array<char, 24> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return {buffer.data(), result.ptr};
}

std::string NumberText(double value) {
  std::array<char, 32> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return {buffer.data(), result.ptr};
}

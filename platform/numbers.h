#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The one place where text becomes a number, a number text, and a real number an integer. Nothing
// here looks at the locale, so "20.5" is the same number everywhere.

// True for digits with at most one point and at least one digit, and one sign at most, in front or
// behind: "20", "-40", ".5", "5.", "5-". Any length.
bool IsNumeric(std::string_view text);

// The value of a numeric text; empty when it isn't numeric or is beyond a double.
std::optional<double> ParseNumber(std::string_view text);

// Rounds to the nearest whole number, a half to the even neighbour; empty when the result doesn't
// fit 16 bits.
std::optional<std::int16_t> RoundToInt16(double value);

// The same for 32 bits.
std::optional<std::int32_t> RoundToInt32(double value);

// ParseNumber and RoundToInt16 in one.
std::optional<std::int16_t> ParseInt16(std::string_view text);

// Rounds as RoundToInt16 does, and clips far beyond any surface, so that sums of a few pixel
// positions stay exact in an int.
int RoundToPixel(double value);

// A sum of positions, clipped to the 16-bit range of the registers.
std::int16_t ClipToInt16(int value);

std::string DecimalText(std::int64_t value);
// The shortest text that reads back as the same number.
std::string NumberText(double value);

#pragma once

#include <cstdint>

// The key codes that handlers get. Letters and digits have the code of their character.
namespace VirtualKeys {

inline constexpr std::int16_t kEnter = 13;
inline constexpr std::int16_t kEscape = 27;
inline constexpr std::int16_t kSpaceBar = 32;
inline constexpr std::int16_t kRightArrow = 39;
// Its digits follow each other.
inline constexpr std::int16_t kNumberPad0 = 96;
inline constexpr std::int16_t kNumberPad9 = 105;
inline constexpr std::int16_t kNumberPadPlus = 107;
inline constexpr std::int16_t kNumberPadMinus = 109;
// The others up to F12 follow it.
inline constexpr std::int16_t kF1 = 112;
inline constexpr std::int16_t kF2 = kF1 + 1;
inline constexpr std::int16_t kF5 = kF1 + 4;
inline constexpr std::int16_t kF6 = kF1 + 5;
// The key of "[", with Shift as well.
inline constexpr std::int16_t kBracket = 219;

}  // namespace VirtualKeys

#pragma once

#include <cstdint>

// A 32-bit colour 0x00BBGGRR: red in the low byte.
using Colour = std::uint32_t;

constexpr Colour Rgb(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
  return red | (green << 8) | (blue << 16);
}
constexpr std::uint8_t RedOf(Colour colour) {
  return static_cast<std::uint8_t>(colour & 0xFF);
}
constexpr std::uint8_t GreenOf(Colour colour) {
  return static_cast<std::uint8_t>((colour >> 8) & 0xFF);
}
constexpr std::uint8_t BlueOf(Colour colour) {
  return static_cast<std::uint8_t>((colour >> 16) & 0xFF);
}

// What a pixel outside a bitmap reads as: equal to no colour.
constexpr Colour kNoColour = 0xFFFFFFFF;
// The key colour of tool bitmaps.
constexpr Colour kTransparent = Rgb(255, 0, 255);

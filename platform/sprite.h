#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/raster.h"

// A horizontal stretch of opaque pixels within a sprite.
struct PixelRun {
  std::int16_t x = 0;
  std::int16_t y = 0;
  std::int16_t length = 0;
};

// A pixel within a sprite.
struct SpritePixel {
  std::int16_t x = 0;
  std::int16_t y = 0;
};

// The moves by (dx, dy), each -1 to 1, and the place of each in a table.
constexpr std::size_t kDirections = 9;
constexpr std::size_t DirectionIndex(int dx, int dy) {
  const int index = (dy + 1) * 3 + dx + 1;
  return static_cast<std::size_t>(index);
}

// The opaque pixels of a picture: all but those of a key colour.
class Sprite {
 public:
  Sprite() = default;
  // `width` by `height` pixels (0 to 32,767) from the picture's top left corner; what the picture
  // doesn't cover is transparent.
  Sprite(const Raster& picture, int width, int height, Colour key);

  int Width() const { return width_; }
  int Height() const { return height_; }
  PixelRect AreaAt(int x, int y) const { return {x, y, x + width_, y + height_}; }

  // Copies the opaque pixels to `target`, the sprite's top left corner at (x, y), clipped.
  void Paint(Raster& target, int x, int y) const;

  // Fills the opaque shape with one colour, clipped. `Flipped` stands on its head.
  void FillShape(Raster& target, int x, int y, Colour colour) const;
  void FillShapeFlipped(Raster& target, int x, int y, Colour colour) const;

  // The opaque pixels that a move by (dx, dy), each -1 to 1, leaves bare: those with no opaque
  // pixel at (-dx, -dy) from them.
  const std::vector<SpritePixel>& Edge(int dx, int dy) const;

 private:
  int width_ = 0;
  int height_ = 0;
  // The opaque pixels of all runs, one run behind the other.
  std::vector<Colour> pixels_;
  std::vector<PixelRun> runs_;
  std::array<std::vector<SpritePixel>, kDirections> edges_;
};

#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "platform/raster.h"

// A horizontal stretch of opaque pixels within a sprite.
struct PixelRun {
  std::int16_t x = 0;
  std::int16_t y = 0;
  std::int16_t length = 0;
};

// The opaque pixels of a picture: all but those of a key colour. Knows for each one-pixel move
// which of its pixels the move uncovers, so that a step needs to write no more than those.
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

  // Fills what a move by (dx, dy), each -1 to 1, from (x, y) uncovers.
  void FillUncovered(Raster& target, int x, int y, int dx, int dy, Colour colour) const;
  // Fills what the flipped shape newly covers when it has moved by (dx, -dy) to (x, y), that is
  // the mirror image of a sprite that has moved by (dx, dy).
  void FillNewlyCoveredFlipped(Raster& target, int x, int y, int dx, int dy, Colour colour) const;

 private:
  const std::vector<PixelRun>& EdgeFor(int dx, int dy) const;

  int width_ = 0;
  int height_ = 0;
  // The opaque pixels of all runs, one run behind the other.
  std::vector<Colour> pixels_;
  std::vector<PixelRun> runs_;
  // By (dy + 1) * 3 + (dx + 1): the runs left bare by a move in that direction.
  std::array<std::vector<PixelRun>, 9> edges_;
};

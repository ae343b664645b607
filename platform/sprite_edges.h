#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "platform/sprite.h"

// The edges of a sprite as offsets into one raster, so that a one-pixel move of the sprite or of
// its mirror image writes no more than the pixels that the move changes.
class SpriteEdges {
 public:
  SpriteEdges() = default;
  // For rasters whose rows lie `pitch` pixels apart. The sprite must outlive it.
  SpriteEdges(const Sprite& sprite, std::ptrdiff_t pitch);

  // Fills what the sprite's move by (dx, dy), each -1 to 1, from (x, y) leaves bare; clipped.
  void FillUncovered(Raster& target, PixelPoint from, int dx, int dy, Colour colour) const;

  // Fills what the flipped sprite newly covers when it has come to `to` by (dx, -dy), as the
  // mirror image of a sprite does that moves by (dx, dy); clipped.
  void FillNewlyCoveredFlipped(Raster& target, PixelPoint to, int dx, int dy, Colour colour) const;

 private:
  struct Offsets {
    // From the pixel of the top left corner.
    std::vector<std::ptrdiff_t> upright;
    // From the pixel of the bottom left corner.
    std::vector<std::ptrdiff_t> flipped;
  };

  const Sprite* sprite_ = nullptr;
  std::array<Offsets, kDirections> offsets_;
};

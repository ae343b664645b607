#include "platform/sprite_edges.h"

SpriteEdges::SpriteEdges(const Sprite& sprite, std::ptrdiff_t pitch) : sprite_(&sprite) {
  for (int dy = -1; dy <= 1; ++dy) {
    for (int dx = -1; dx <= 1; ++dx) {
      Offsets& offsets = offsets_[DirectionIndex(dx, dy)];
      for (const SpritePixel& pixel : sprite.Edge(dx, dy)) {
        offsets.upright.push_back(pixel.y * pitch + pixel.x);
        offsets.flipped.push_back(-pixel.y * pitch + pixel.x);
      }
    }
  }
}

void SpriteEdges::FillUncovered(Raster& target, PixelPoint from, int dx, int dy,
                                Colour colour) const {
  if (Contains(target.Area(), sprite_->AreaAt(from.x, from.y))) {
    Colour* corner = target.Row(from.y) + from.x;
    for (const std::ptrdiff_t offset : offsets_[DirectionIndex(dx, dy)].upright) {
      corner[offset] = colour;
    }
    return;
  }
  for (const SpritePixel& pixel : sprite_->Edge(dx, dy)) {
    target.SetPixel(from.x + pixel.x, from.y + pixel.y, colour);
  }
}

void SpriteEdges::FillNewlyCoveredFlipped(Raster& target, PixelPoint to, int dx, int dy,
                                          Colour colour) const {
  // What a move newly covers is what the opposite move would leave bare.
  const int bottom = to.y + sprite_->Height() - 1;
  if (Contains(target.Area(), sprite_->AreaAt(to.x, to.y))) {
    Colour* corner = target.Row(bottom) + to.x;
    for (const std::ptrdiff_t offset : offsets_[DirectionIndex(-dx, -dy)].flipped) {
      corner[offset] = colour;
    }
    return;
  }
  for (const SpritePixel& pixel : sprite_->Edge(-dx, -dy)) {
    target.SetPixel(to.x + pixel.x, bottom - pixel.y, colour);
  }
}

#include "platform/raster.h"

#include <algorithm>

namespace {

// 16 pixels times an odd number: rows that lie a power of two apart fall into the same few cache
// lines, and a column of short runs is then up to 16 times slower.
std::ptrdiff_t PitchFor(int width) {
  const std::ptrdiff_t blocks = (width + 15) / 16;
  return 16 * (blocks | 1);
}

}  // namespace

PixelRect Union(const PixelRect& a, const PixelRect& b) {
  if (a.IsEmpty()) return b;
  if (b.IsEmpty()) return a;
  return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
          std::max(a.bottom, b.bottom)};
}

PixelRect Intersection(const PixelRect& a, const PixelRect& b) {
  return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
          std::min(a.bottom, b.bottom)};
}

bool Contains(const PixelRect& outer, const PixelRect& inner) {
  return !inner.IsEmpty() && inner.left >= outer.left && inner.top >= outer.top &&
         inner.right <= outer.right && inner.bottom <= outer.bottom;
}

Raster::Raster(int width, int height)
    : width_(std::max(width, 0)),
      height_(std::max(height, 0)),
      pitch_(PitchFor(width_)),
      pixels_(Offset(height_)) {}

Colour Raster::GetPixel(int x, int y) const {
  if (x < 0 || y < 0 || x >= width_ || y >= height_) return kNoColour;
  return Row(y)[x];
}

void Raster::SetPixel(int x, int y, Colour colour) {
  if (x < 0 || y < 0 || x >= width_ || y >= height_) return;
  Row(y)[x] = colour;
}

void Raster::Fill(const PixelRect& rect, Colour colour) {
  const PixelRect clipped = Intersection(rect, Area());
  if (clipped.IsEmpty()) return;
  for (int y = clipped.top; y < clipped.bottom; ++y) {
    std::fill(Row(y) + clipped.left, Row(y) + clipped.right, colour);
  }
}

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/colour.h"

// A pixel of a surface; may lie off it.
struct PixelPoint {
  int x = 0;
  int y = 0;

  bool operator==(const PixelPoint&) const = default;
};

// A rectangle of pixels; right and bottom lie outside it.
struct PixelRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  bool IsEmpty() const { return right <= left || bottom <= top; }
  bool operator==(const PixelRect&) const = default;
};

// The smallest rectangle around both; an empty one counts for nothing.
PixelRect Union(const PixelRect& a, const PixelRect& b);
PixelRect Intersection(const PixelRect& a, const PixelRect& b);
// An empty rectangle is contained nowhere.
bool Contains(const PixelRect& outer, const PixelRect& inner);

// A bitmap in memory, one Colour a pixel, (0, 0) at the top left. Whatever lies outside is neither
// read nor written.
class Raster {
 public:
  Raster() = default;
  // Sizes below 0 count as 0. Every pixel starts as 0 (black). Throws std::bad_alloc.
  Raster(int width, int height);

  int Width() const { return width_; }
  int Height() const { return height_; }
  PixelRect Area() const { return {0, 0, width_, height_}; }

  // kNoColour outside.
  Colour GetPixel(int x, int y) const;
  void SetPixel(int x, int y, Colour colour);
  void Fill(const PixelRect& rect, Colour colour);

  // First pixel of a row that must exist.
  const Colour* Row(int y) const { return pixels_.data() + Offset(y); }
  Colour* Row(int y) { return pixels_.data() + Offset(y); }
  // Pixels from one row to the next.
  std::ptrdiff_t Pitch() const { return pitch_; }

 private:
  std::size_t Offset(int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(pitch_);
  }

  int width_ = 0;
  int height_ = 0;
  std::ptrdiff_t pitch_ = 0;
  std::vector<Colour> pixels_;
};

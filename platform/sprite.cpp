#include "platform/sprite.h"

#include <algorithm>
#include <cstddef>

namespace {

// The opaque pixels of the top left `width` by `height` pixels of a picture.
struct OpaqueShape {
  const Raster& picture;
  int width = 0;
  int height = 0;
  Colour key = 0;

  bool Has(int x, int y) const {
    return x >= 0 && y >= 0 && x < width && y < height && picture.Row(y)[x] != key;
  }

  std::vector<PixelRun> Runs() const {
    std::vector<PixelRun> runs;
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        if (!Has(x, y)) continue;
        const int start = x;
        while (Has(x, y)) ++x;
        runs.push_back({static_cast<std::int16_t>(start), static_cast<std::int16_t>(y),
                        static_cast<std::int16_t>(x - start)});
      }
    }
    return runs;
  }

  std::vector<SpritePixel> Edge(int dx, int dy) const {
    std::vector<SpritePixel> edge;
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        if (Has(x, y) && !Has(x - dx, y - dy)) {
          edge.push_back({static_cast<std::int16_t>(x), static_cast<std::int16_t>(y)});
        }
      }
    }
    return edge;
  }
};

}  // namespace

Sprite::Sprite(const Raster& picture, int width, int height, Colour key)
    : width_(std::max(width, 0)), height_(std::max(height, 0)) {
  const OpaqueShape shape{picture, std::min(width_, picture.Width()),
                          std::min(height_, picture.Height()), key};
  runs_ = shape.Runs();
  for (const PixelRun& run : runs_) {
    const Colour* source = picture.Row(run.y) + run.x;
    pixels_.insert(pixels_.end(), source, source + run.length);
  }
  for (int dy = -1; dy <= 1; ++dy) {
    for (int dx = -1; dx <= 1; ++dx) edges_[DirectionIndex(dx, dy)] = shape.Edge(dx, dy);
  }
}

const std::vector<SpritePixel>& Sprite::Edge(int dx, int dy) const {
  return edges_[DirectionIndex(dx, dy)];
}

void Sprite::Paint(Raster& target, int x, int y) const {
  if (Intersection(target.Area(), AreaAt(x, y)).IsEmpty()) return;
  const Colour* source = pixels_.data();
  for (const PixelRun& run : runs_) {
    const int row = y + run.y;
    const int from = std::max(x + run.x, 0);
    const int to = std::min(x + run.x + run.length, target.Width());
    if (row >= 0 && row < target.Height() && from < to) {
      std::copy_n(source + (from - x - run.x), to - from, target.Row(row) + from);
    }
    source += run.length;
  }
}

void Sprite::FillShape(Raster& target, int x, int y, Colour colour) const {
  for (const PixelRun& run : runs_) {
    const int left = x + run.x;
    target.Fill({left, y + run.y, left + run.length, y + run.y + 1}, colour);
  }
}

void Sprite::FillShapeFlipped(Raster& target, int x, int y, Colour colour) const {
  for (const PixelRun& run : runs_) {
    const int left = x + run.x;
    const int row = y + height_ - 1 - run.y;
    target.Fill({left, row, left + run.length, row + 1}, colour);
  }
}

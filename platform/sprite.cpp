#include "platform/sprite.h"

#include <algorithm>
#include <cstddef>

namespace {

enum class Upright { Yes, No };

std::size_t DirectionIndex(int dx, int dy) {
  const int index = (dy + 1) * 3 + dx + 1;
  return static_cast<std::size_t>(index);
}

bool Contains(const PixelRect& outer, const PixelRect& inner) {
  return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
         inner.bottom <= outer.bottom;
}

// Collects the runs of `width` by `height` pixels for which `isIn(x, y)` holds, in row order.
template <class Predicate>
std::vector<PixelRun> RunsWhere(int width, int height, Predicate isIn) {
  std::vector<PixelRun> runs;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      if (!isIn(x, y)) continue;
      const int start = x;
      while (x < width && isIn(x, y)) ++x;
      runs.push_back({static_cast<std::int16_t>(start), static_cast<std::int16_t>(y),
                      static_cast<std::int16_t>(x - start)});
    }
  }
  return runs;
}

// Calls `write(pixels, run, skipped)` for the visible stretch of every run; `skipped` pixels of it
// are cut off at its left.
template <Upright upright, class Write>
void ForVisibleRuns(Raster& target, const std::vector<PixelRun>& runs, const PixelRect& area,
                    Write write) {
  const int bottomRow = area.bottom - 1;
  if (Contains(target.Area(), area)) {
    for (const PixelRun& run : runs) {
      const int row = upright == Upright::Yes ? area.top + run.y : bottomRow - run.y;
      write(target.Row(row) + area.left + run.x, run, 0, run.length);
    }
    return;
  }
  if (Intersection(target.Area(), area).IsEmpty()) return;
  for (const PixelRun& run : runs) {
    const int row = upright == Upright::Yes ? area.top + run.y : bottomRow - run.y;
    if (row < 0 || row >= target.Height()) continue;
    const int start = area.left + run.x;
    const int from = std::max(start, 0);
    const int to = std::min(start + run.length, target.Width());
    if (from < to) write(target.Row(row) + from, run, from - start, to - from);
  }
}

template <Upright upright>
void FillRuns(Raster& target, const std::vector<PixelRun>& runs, const PixelRect& area,
              Colour colour) {
  ForVisibleRuns<upright>(target, runs, area,
                          [colour](Colour* pixels, const PixelRun&, int, int length) {
                            std::fill_n(pixels, length, colour);
                          });
}

}  // namespace

Sprite::Sprite(const Raster& picture, int width, int height, Colour key)
    : width_(std::max(width, 0)), height_(std::max(height, 0)) {
  const int coveredWidth = std::min(width_, picture.Width());
  const int coveredHeight = std::min(height_, picture.Height());
  const auto isOpaque = [&](int x, int y) {
    return x >= 0 && y >= 0 && x < coveredWidth && y < coveredHeight && picture.Row(y)[x] != key;
  };
  runs_ = RunsWhere(coveredWidth, coveredHeight, isOpaque);
  for (const PixelRun& run : runs_) {
    const Colour* source = picture.Row(run.y) + run.x;
    pixels_.insert(pixels_.end(), source, source + run.length);
  }
  for (int dy = -1; dy <= 1; ++dy) {
    for (int dx = -1; dx <= 1; ++dx) {
      edges_[DirectionIndex(dx, dy)] = RunsWhere(coveredWidth, coveredHeight, [&](int x, int y) {
        return isOpaque(x, y) && !isOpaque(x - dx, y - dy);
      });
    }
  }
}

const std::vector<PixelRun>& Sprite::EdgeFor(int dx, int dy) const {
  return edges_[DirectionIndex(dx, dy)];
}

void Sprite::Paint(Raster& target, int x, int y) const {
  const Colour* source = pixels_.data();
  const PixelRect area = AreaAt(x, y);
  if (Intersection(target.Area(), area).IsEmpty()) return;
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
  FillRuns<Upright::Yes>(target, runs_, AreaAt(x, y), colour);
}

void Sprite::FillShapeFlipped(Raster& target, int x, int y, Colour colour) const {
  FillRuns<Upright::No>(target, runs_, AreaAt(x, y), colour);
}

void Sprite::FillUncovered(Raster& target, int x, int y, int dx, int dy, Colour colour) const {
  FillRuns<Upright::Yes>(target, EdgeFor(dx, dy), AreaAt(x, y), colour);
}

void Sprite::FillNewlyCoveredFlipped(Raster& target, int x, int y, int dx, int dy,
                                     Colour colour) const {
  // What a move newly covers is what the opposite move would uncover.
  FillRuns<Upright::No>(target, EdgeFor(-dx, -dy), AreaAt(x, y), colour);
}

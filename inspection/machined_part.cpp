#include "inspection/machined_part.h"

#include <algorithm>
#include <cstdlib>
#include <numbers>

#include "motion/stock.h"
#include "motion/tool.h"

namespace Inspection {

namespace {

// An edge that rises by less than this part of the way counts as flat: a tool that has just cut a
// face leaves it along the cut without being told of it.
constexpr int kFlatSlope = 8;
// Pixels by which the picture of a tool may be rough.
constexpr int kRoughness = 1;

constexpr Colour kShape = 1;

// The lowest pixel of each column of the tool, as a height above the cutting point, as it stands in
// the picture; where a column is empty, the tool's height.
std::vector<int> LowerEdge(const ToolImage& tool) {
  const int width = tool.sprite.Width();
  const int height = tool.sprite.Height();
  Raster shape(width, height);
  tool.sprite.FillShape(shape, 0, 0, kShape);
  std::vector<int> edge;
  for (int x = 0; x < width; ++x) {
    int rise = 0;
    while (rise < height && shape.GetPixel(x, height - 1 - rise) != kShape) ++rise;
    edge.push_back(rise);
  }
  return edge;
}

double DiscArea(int radius) {
  constexpr double kUnit = 0.1;
  return std::numbers::pi * radius * radius * kUnit * kUnit;
}

}  // namespace

void MachinedPart::TakeToolShape() {
  edge_ = LowerEdge(Graphics::ToolDC);
  for (std::size_t i = 0; i < edge_.size(); ++i) {
    edge_[i] = std::max(0, edge_[i] - kRoughness - static_cast<int>(i) / kFlatSlope);
  }
}

std::optional<std::size_t> MachinedPart::ColumnAt(int z) const {
  if (z > 0 || -z >= static_cast<int>(radii_.size())) return std::nullopt;
  return static_cast<std::size_t>(-z);
}

int MachinedPart::DepthAt(int z, int x) const {
  const auto column = ColumnAt(z);
  if (!column || *column == 0) return 0;
  return std::max(0, radii_[*column] - std::abs(x));
}

void MachinedPart::TakePoint(int z, int x) {
  const auto column = ColumnAt(z);
  if (column) radii_[*column] = std::min(radii_[*column], std::abs(x));
}

void MachinedPart::TakeShape(int z, int x) {
  const auto column = ColumnAt(z);
  TakePoint(z, x);
  if (column && radii_[*column] == 0) {
    for (; fallen_ < *column; ++fallen_) radii_[fallen_] = 0;
    return;
  }
  // Also from beside the clamped end: the shape lies to the right of the cutting point.
  const int columns = static_cast<int>(radii_.size());
  const int right = std::max(0, -z - static_cast<int>(edge_.size()) + 1);
  for (int i = std::min(-z, columns - 1); i >= right; --i) {
    int& radius = radii_[static_cast<std::size_t>(i)];
    radius = std::min(radius, std::abs(x) + edge_[static_cast<std::size_t>(-z - i)]);
  }
}

bool MachinedPart::Holds(int z, int x) const {
  const auto column = ColumnAt(z);
  if (!column) return false;
  const int height = std::abs(x);
  const std::size_t behind = *column + 1;
  if (behind < radii_.size() && height < radii_[behind]) return true;
  const auto begin = radii_.begin();
  return std::any_of(begin, begin + static_cast<std::ptrdiff_t>(behind),
                     [&](int radius) { return radius > 0 && height <= radius; });
}

double RemovedVolume(int radius) {
  constexpr double kColumn = 0.1;
  double volume = 0;
  for (std::size_t i = 1; i < Graphics::StockProfile.size(); ++i) {
    volume += (DiscArea(radius) - DiscArea(Graphics::StockProfile[i].Radius)) * kColumn;
  }
  return volume;
}

}  // namespace Inspection

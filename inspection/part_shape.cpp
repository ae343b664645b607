#include "inspection/part_shape.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <numbers>

#include "platform/numbers.h"

namespace Inspection {

namespace {

// Both are parts of one cylinder, or of one cone.
bool Continues(const Frustum& right, const Frustum& left) {
  if (right.farRadius != left.nearRadius) return false;
  const int rightRise = right.farRadius - right.nearRadius;
  const int leftRise = left.farRadius - left.nearRadius;
  return rightRise * (left.farColumn - left.nearColumn) ==
         leftRise * (right.farColumn - right.nearColumn);
}

// A taper goes on by a step to a column that it hasn't lowered, and the mark is missing there: no
// further than it rises beside that, or by the one unit to which radii are rounded.
bool RunsOn(int step, int riseBeside) {
  return std::abs(step) <= std::max(1, std::abs(riseBeside)) && step * riseBeside >= 0;
}

bool IsCone(const Profile& profile, std::size_t left) {
  const auto isMarked = [&](std::size_t i) {
    return i < profile.size() && profile[i].TaperMark != 0;
  };
  const auto rise = [&](std::size_t i) { return profile[i].Radius - profile[i - 1].Radius; };
  const std::size_t right = left - 1;
  if (isMarked(left) && isMarked(right)) return true;
  if (isMarked(left)) return isMarked(left + 1) && RunsOn(rise(left), rise(left + 1));
  // In front of column 0 there is none.
  return isMarked(right) && right > 0 && isMarked(right - 1) && RunsOn(rise(left), rise(right));
}

}  // namespace

Frustum PieceAt(const Profile& profile, int column) {
  const auto i = static_cast<std::size_t>(column);
  if (i >= profile.size()) return {};
  const int radius = profile[i].Radius;
  return {column - 1, column, IsCone(profile, i) ? profile[i - 1].Radius : radius, radius};
}

double Volume(const Frustum& piece) {
  const double a = piece.nearRadius;
  const double b = piece.farRadius;
  constexpr double kCubicTenths = 1000;
  return std::numbers::pi / 3 * (piece.farColumn - piece.nearColumn) * (a * a + a * b + b * b) /
         kCubicTenths;
}

std::vector<Frustum> PartShape(const Profile& profile) {
  std::vector<Frustum> pieces;
  for (int column = 1; column < static_cast<int>(profile.size()); ++column) {
    const Frustum piece = PieceAt(profile, column);
    if (!pieces.empty() && Continues(pieces.back(), piece)) {
      pieces.back().farColumn = piece.farColumn;
      pieces.back().farRadius = piece.farRadius;
    } else {
      pieces.push_back(piece);
    }
  }
  return pieces;
}

std::string Millimetres(int tenths) {
  return NumberText(tenths / 10.0);
}

}  // namespace Inspection

#include "inspection/part_shape.h"

#include <cstddef>
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

}  // namespace

Frustum PieceAt(const Profile& profile, int column) {
  const auto i = static_cast<std::size_t>(column);
  if (i >= profile.size()) return {column - 1, column, 0, 0};
  const Graphics::ProfileColumn& right = profile[i - 1];
  const Graphics::ProfileColumn& left = profile[i];
  const bool isCone = right.TaperMark != 0 && left.TaperMark != 0;
  return {column - 1, column, isCone ? right.Radius : left.Radius, left.Radius};
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

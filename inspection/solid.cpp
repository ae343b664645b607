#include "inspection/solid.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numbers>
#include <vector>

#include "platform/numbers.h"

namespace Inspection {

namespace {

constexpr double kChordError = 0.01;
// Of a circle of so many corners the area is right to 0.1 %.
constexpr int kFewestCorners = 128;
// How far two bodies stand apart that would meet in a point.
constexpr double kGap = 0.0005;
// A file of 1 GB.
constexpr std::int64_t kMostTriangles = 20'000'000;
constexpr std::size_t kHeadBytes = 80;
constexpr std::size_t kTriangleBytes = 50;

struct Point {
  float x = 0;
  float y = 0;
  float z = 0;
};

// A circle around the axis, in mm; a point when its radius is 0.
struct Ring {
  double z = 0;
  double radius = 0;
};

// Of four quarters, so that the diameter is exact along X and Y.
int CornersFor(double radius) {
  if (radius <= 0) return kFewestCorners;
  const double needed = std::numbers::pi / std::acos(1 - std::min(kChordError / radius, 1.0));
  const int corners = std::max(kFewestCorners, static_cast<int>(std::ceil(needed)));
  return (corners + 3) / 4 * 4;
}

class Mesh {
 public:
  explicit Mesh(int corners) {
    for (int k = 0; k < corners; ++k) {
      const double angle = 2 * std::numbers::pi * k / corners;
      directions_.push_back({std::cos(angle), std::sin(angle)});
    }
  }

  // The surface between two rings; seen with the first above the second it faces outwards. Rings of
  // the same Z are a face: it looks up when the first is the inner one.
  void AddBand(const Ring& first, const Ring& second) {
    for (std::size_t k = 0; k < directions_.size(); ++k) {
      const std::size_t next = (k + 1) % directions_.size();
      if (second.radius > 0) AddTriangle(At(first, k), At(second, k), At(second, next));
      if (first.radius > 0) AddTriangle(At(first, k), At(second, next), At(first, next));
    }
  }

  std::string Stl() && {
    std::string file = "Turned part, mm, axis Z";
    file.resize(kHeadBytes, ' ');
    Append(file, static_cast<std::uint32_t>(triangles_.size() / kTriangleBytes));
    return file + triangles_;
  }

 private:
  struct Direction {
    double x = 0;
    double y = 0;
  };

  [[nodiscard]] Point At(const Ring& ring, std::size_t corner) const {
    // Not 0 times a direction: -0 is another number to those who look for equal corners.
    if (ring.radius == 0) return {0, 0, static_cast<float>(ring.z)};
    return {static_cast<float>(ring.radius * directions_[corner].x),
            static_cast<float>(ring.radius * directions_[corner].y), static_cast<float>(ring.z)};
  }

  // Little endian, whatever the machine.
  static void Append(std::string& bytes, std::uint32_t value) {
    for (int shift = 0; shift < 32; shift += 8) {
      bytes += static_cast<char>(static_cast<unsigned char>(value >> shift));
    }
  }

  void Append(const Point& point) {
    for (const float value : {point.x, point.y, point.z}) {
      Append(triangles_, std::bit_cast<std::uint32_t>(value));
    }
  }

  void AddTriangle(const Point& a, const Point& b, const Point& c) {
    const Point u{b.x - a.x, b.y - a.y, b.z - a.z};
    const Point v{c.x - a.x, c.y - a.y, c.z - a.z};
    const Point normal{u.y * v.z - u.z * v.y, u.z * v.x - u.x * v.z, u.x * v.y - u.y * v.x};
    const float length = std::hypot(normal.x, normal.y, normal.z);
    Append({normal.x / length, normal.y / length, normal.z / length});
    for (const Point& corner : {a, b, c}) Append(corner);
    triangles_.append(2, '\0');
  }

  std::vector<Direction> directions_;
  std::string triangles_;
};

// The point of a cone draws back from a body that it would touch.
Ring End(int column, int radius, bool touches, double inwards) {
  const double z = -column / 10.0;
  return {radius == 0 && touches ? z + inwards : z, radius / 10.0};
}

}  // namespace

std::optional<std::string> SolidStl(const Profile& profile, std::string& reason) {
  const std::vector<Frustum> pieces = PartShape(profile);
  int largest = 0;
  for (const Frustum& piece : pieces) {
    largest = std::max({largest, piece.nearRadius, piece.farRadius});
  }
  const int corners = CornersFor(largest / 10.0);
  // Each piece has two a corner, and so has the face behind it.
  if (std::int64_t{4} * corners * static_cast<std::int64_t>(pieces.size()) > kMostTriangles) {
    reason = "The solid would have more than " + DecimalText(kMostTriangles) + " triangles.";
    return std::nullopt;
  }
  Mesh mesh(corners);
  Frustum right;
  for (std::size_t i = 0; i <= pieces.size(); ++i) {
    const int column = right.farColumn;
    const Frustum piece = i < pieces.size() ? pieces[i] : Frustum{column, column, 0, 0};
    // Nothing for equal radii: both rings would be the same.
    if (right.farRadius != piece.nearRadius) {
      mesh.AddBand(End(column, right.farRadius, false, 0), End(column, piece.nearRadius, false, 0));
    }
    if (!piece.IsEmpty()) {
      const bool touchesLeft = i + 1 < pieces.size() && !pieces[i + 1].IsEmpty();
      mesh.AddBand(End(piece.nearColumn, piece.nearRadius, !right.IsEmpty(), -kGap),
                   End(piece.farColumn, piece.farRadius, touchesLeft, kGap));
    }
    right = piece;
  }
  return std::move(mesh).Stl();
}

}  // namespace Inspection

// The solid of random profiles: closed, of the right volume, and exact where the part has corners.

#include "inspection/solid.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <numbers>
#include <random>
#include <set>

namespace {

using Inspection::Profile;
using Vertex = std::array<float, 3>;

std::uint32_t NumberAt(const std::string& stl, std::size_t offset) {
  std::uint32_t value = 0;
  for (int i = 3; i >= 0; --i)
    value = value << 8 | static_cast<unsigned char>(stl[offset + static_cast<std::size_t>(i)]);
  return value;
}

// The corners of each triangle, and in front of them its normal.
std::vector<std::array<Vertex, 4>> Triangles(const std::string& stl) {
  std::vector<std::array<Vertex, 4>> triangles(NumberAt(stl, 80));
  EXPECT_EQ(84 + 50 * triangles.size(), stl.size());
  for (std::size_t i = 0; i < 12 * triangles.size(); ++i) {
    const std::size_t offset = 84 + 50 * (i / 12) + 4 * (i % 12);
    triangles[i / 12][i % 12 / 3][i % 3] = std::bit_cast<float>(NumberAt(stl, offset));
  }
  return triangles;
}

// Stretches of cylinders, cones, steps and cuts through the part.
Profile RandomProfile(std::mt19937& random) {
  const auto below = [&](unsigned n) { return static_cast<int>(random() % n); };
  Profile profile(static_cast<std::size_t>(2 + below(80)));
  int radius = 1 + below(600);
  int rise = 0;
  std::int16_t mark = 0;
  for (auto& column : profile) {
    if (below(5) == 0) {
      mark = static_cast<std::int16_t>(below(2));
      rise = below(3) == 0 ? 0 : below(9) - 4;
      if (below(2) == 0) radius = 1 + below(600);
    }
    radius = std::max(radius + rise, 0);
    column = {static_cast<std::int16_t>(below(40) == 0 ? 0 : radius), mark};
  }
  return profile;
}

TEST(SolidTest, IsClosedAndExactAndOfTheRightVolume) {
  std::mt19937 random(20);
  const int rounds = std::getenv("TURNBAY_LONG_TESTS") != nullptr ? 400 : 20;
  for (int round = 0; round < rounds; ++round) {
    const Profile profile = RandomProfile(random);
    double expected = 0;
    // A taper may run on to the unmarked column beside it, no further than it rises.
    double allowed = 0;
    for (std::size_t i = 1; i < profile.size(); ++i) {
      const double left = profile[i].Radius / 10.0;
      const bool isCone = profile[i - 1].TaperMark == 1 && profile[i].TaperMark == 1;
      const double right = isCone ? profile[i - 1].Radius / 10.0 : left;
      expected += 0.1 * std::numbers::pi / 3 * (left * left + left * right + right * right);
      const bool marked = profile[i].TaperMark == 1;
      if (marked == (profile[i - 1].TaperMark == 1) || (marked ? i + 1 == profile.size() : i < 2)) {
        continue;
      }
      const int step = std::abs(profile[i].Radius - profile[i - 1].Radius);
      const std::size_t beside = marked ? i + 1 : i - 1;
      const int rise = std::abs(profile[beside].Radius - profile[beside - 1].Radius);
      if (step <= std::max(1, rise)) allowed += 0.2 * std::numbers::pi * left * step / 10 + 0.01;
    }

    std::string reason;
    double volume = 0;
    // The corner behind each edge of a triangle, by the edge.
    std::map<std::pair<Vertex, Vertex>, Vertex> edges;
    std::map<Vertex, std::size_t> triangles;
    for (const auto& [normal, a, b, c] : Triangles(*Inspection::SolidStl(profile, reason))) {
      volume += (a[0] * (b[1] * c[2] - b[2] * c[1]) + a[1] * (b[2] * c[0] - b[0] * c[2]) +
                 a[2] * (b[0] * c[1] - b[1] * c[0])) /
                6.0;
      EXPECT_NEAR(1, std::hypot(normal[0], normal[1], normal[2]), 1e-3);
      for (const auto& [from, to, third] : {std::array{a, b, c}, {b, c, a}, {c, a, b}}) {
        EXPECT_TRUE(edges.insert({{from, to}, third}).second) << "an edge is there twice";
        ++triangles[from];
        for (const float x : from) EXPECT_FALSE(x == 0 && std::signbit(x)) << "another 0";
      }
    }
    EXPECT_NEAR(expected, volume, 0.001 * expected + allowed) << round;
    for (const auto& [edge, third] : edges) {
      ASSERT_TRUE(edges.contains({edge.second, edge.first})) << round << ": an open edge";
    }
    // Around each corner lies one fan: bodies don't meet in a point.
    std::map<Vertex, std::size_t> fans;
    for (auto edge = edges.begin(); edge != edges.end(); ++edge) {
      const auto& [corner, first] = edge->first;
      if (fans.contains(corner)) continue;
      Vertex next = first;
      do {
        next = edges.at({corner, next});
        ++fans[corner];
      } while (next != first);
    }
    EXPECT_EQ(triangles, fans) << round;
    for (const auto& [corner, count] : triangles) {
      const auto column = static_cast<std::size_t>(std::lround(-10 * corner[2]));
      EXPECT_NEAR(static_cast<double>(column) / -10, corner[2], 0.001);
      const double radius = 10 * std::hypot(corner[0], corner[1]);
      const double beyond = column + 1 < profile.size() ? profile[column + 1].Radius : 0;
      const double nearest = std::min(
          {std::abs(radius), std::abs(radius - beyond), std::abs(radius - profile[column].Radius)});
      EXPECT_NEAR(0, nearest, 1e-3) << round << ": a corner beside the part at column " << column;
    }
  }
}

TEST(SolidTest, KeepsWithinItsChordErrorAndItsSize) {
  std::string reason;
  for (const std::int16_t radius : std::initializer_list<std::int16_t>{1, 100, 16'000}) {
    const auto triangles = Triangles(*Inspection::SolidStl(Profile(3, {radius, 0}), reason));
    const auto corners = static_cast<double>(triangles.size()) / 4;
    EXPECT_LE(radius / 10.0 * (1 - std::cos(std::numbers::pi / corners)), 0.01);
    EXPECT_GE(corners, 82) << "0.1 % of the circle's area";
    EXPECT_LE(corners, 1200) << "no more than that takes";
  }
  EXPECT_EQ(84U, Inspection::SolidStl({{0, 0}, {0, 0}}, reason)->size()) << "nothing is left";
  Profile endless;
  for (int i = 0; i < 20'000; ++i)
    endless.push_back({static_cast<std::int16_t>(16'000 + i % 2), 0});
  EXPECT_FALSE(Inspection::SolidStl(endless, reason));
  EXPECT_EQ("The solid would have more than 20000000 triangles.", reason);
}

}  // namespace

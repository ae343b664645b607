#pragma once

#include <optional>
#include <string>
#include <vector>

#include "inspection/part_shape.h"

// Is a part the one that was asked for? Its columns against those of a reference, from the free end
// on; where one of both has ended, it has a radius of 0.
namespace Inspection {

// What is known of a part. Stock units.
struct Part {
  Profile profile;
  // Of its billet; a profile alone doesn't tell it.
  std::optional<int> billetDiameter{};
};

// All that deviates in one direction.
struct Deviation {
  // The largest of the radius, in stock units, at least 0, and where.
  int radius = 0;
  int column = 0;
  // Cubic millimetres.
  double volume = 0;
};

// Neighbouring columns outside the tolerance on the same side.
struct Stretch {
  int nearColumn = 0;
  int farColumn = 0;
  // The largest, in stock units: above 0 the part is too large.
  int deviation = 0;
};

struct Comparison {
  // In mm, of the radius.
  double tolerance = 0;
  // Material that the reference doesn't have, and material that the part lacks.
  Deviation standing;
  Deviation cutAway;
  std::vector<Stretch> outside{};
  // Other billets, a sentence each.
  std::vector<std::string> notes{};

  [[nodiscard]] bool IsWithin() const { return outside.empty(); }
};

// The radius of a column in stock units, 0 beyond the profile.
int RadiusAt(const Profile& profile, int column);

Comparison Compare(const Part& part, const Part& reference, double tolerance);

// In words, a line each, with what begins each of them in front: the name of the part's program.
std::string ComparisonText(const Comparison& comparison, const std::string& part,
                           const std::string& reference);

// Cubic centimetres of a volume in cubic millimetres, to the nearest cubic millimetre.
double CubicCentimetres(double volume);

}  // namespace Inspection

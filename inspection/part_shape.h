#pragma once

#include <string>
#include <vector>

#include "motion/stock.h"

// A turned part as a solid, made of the columns of its profile. Lengths are counted in columns and
// radii in stock units, both 0.1 mm; column i lies at Z = -i. Column 0 is the face at the free end
// and has no length of its own; every other reaches from its neighbour on the right up to itself,
// so that a shoulder that faces the free end stands where its last cut ended.
namespace Inspection {

using Profile = std::vector<Graphics::ProfileColumn>;

// A cone between two columns, or a cylinder where both radii are the same. Either radius may be 0.
struct Frustum {
  int nearColumn = 0;
  int farColumn = 0;
  int nearRadius = 0;
  int farRadius = 0;

  [[nodiscard]] bool IsEmpty() const { return nearRadius == 0 && farRadius == 0; }
  [[nodiscard]] bool IsCylinder() const { return nearRadius == farRadius; }
};

// What lies between a column, from 1 on, and its neighbour on the right: a cone between two columns
// that both bear the taper mark, and where a taper runs on to the unmarked column where it began or
// left the part; else a cylinder. Beyond the profile it is empty.
Frustum PieceAt(const Profile& profile, int column);

// Cubic millimetres.
double Volume(const Frustum& piece);

// The whole part from the free end on without a gap, equal neighbours merged.
std::vector<Frustum> PartShape(const Profile& profile);

// A length of so many tenths of a millimetre in millimetres: "-12.3".
std::string Millimetres(int tenths);

// The Z of a column in millimetres.
inline std::string ZText(int column) {
  return Millimetres(-column);
}

}  // namespace Inspection

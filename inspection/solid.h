#pragma once

#include <optional>
#include <string>

#include "inspection/part_shape.h"

namespace Inspection {

// The part as a binary STL file in mm: its axis is Z, the free end lies at Z = 0, and the part
// below it. Closed and oriented outwards; corners lie on the part, chords up to 0.01 mm inside.
// Where the part is cut through it becomes several bodies; where two of them meet in a
// point they stand 0.0005 mm apart. Empty, with the reason, when there would be too many triangles.
// Throws std::bad_alloc.
std::optional<std::string> SolidStl(const Profile& profile, std::string& reason);

}  // namespace Inspection

#pragma once

#include <string>

#include "inspection/part_shape.h"

namespace Inspection {

// The part in section as a dimensioned drawing, an SVG file in mm that prints at 1:1: outline,
// hatch, centre line, diameter and length of each cylinder, and the length of each body.
std::string SectionSvg(const Profile& profile);

}  // namespace Inspection

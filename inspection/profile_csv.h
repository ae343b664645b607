#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "inspection/part_shape.h"

// A profile as text: a head, then one line a column from the free end: z in mm, radius in mm, taper
// mark.
namespace Inspection {

std::string ProfileCsv(const Profile& profile);

// True for a text that begins with the head.
bool IsProfileCsv(std::string_view text);

// Empty, with the reason, when a line isn't that of its column. Any line ends will do.
std::optional<Profile> ParseProfileCsv(std::string_view text, std::string& reason);

}  // namespace Inspection

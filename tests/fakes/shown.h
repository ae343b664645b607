#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What a user sees at a moment, or would lose, in words: everything that handlers leave behind in
// controls, registers, part and files. Each entry is a name and what there is of it.
using Shown = std::vector<std::pair<std::string, std::string>>;
Shown LookAround();

// In quotation marks, with " / " for a line end of the program's own kind, and escapes for what
// isn't ASCII or can't be seen.
std::string Quoted(std::string_view text);

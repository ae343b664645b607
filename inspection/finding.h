#pragma once

#include <cstddef>
#include <string>
#include <vector>

// Findings: what a part program may not mean, though it can be played.
namespace Inspection {

struct Figure {
  const char* name;
  // Millimetres, X as a diameter.
  double value;
};

struct Finding {
  // Row of DebugWindow, and the place in its text, both from 0.
  int row = 0;
  std::size_t column = 0;
  // Names the kind; stays the same from version to version.
  const char* key = "";
  // What, how much, and what to do, in one or more sentences.
  std::string text;
  std::vector<Figure> figures{};
};

}  // namespace Inspection

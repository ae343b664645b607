#pragma once

#include <span>
#include <vector>

#include "inspection/block_words.h"
#include "inspection/finding.h"

namespace Inspection {

// Judges a row that counts as the second block of G73: whether it is one, and whether its P and Q
// find the rows that they mean. Reads the rows of DebugWindow.
std::vector<Finding> SecondBlockFindings(int row, std::span<const Word> words);

}  // namespace Inspection

#pragma once

#include <cstdint>

namespace frmMain {

// Marks a row as under execution, and enters the paused state at a break point: no effect yet.
void HighLightExecutingLine(std::int16_t lineNum);

// Returns a row to its resting state; -1 means no row: no effect yet.
void RemoveHighLighting(std::int16_t lineNum);

}  // namespace frmMain

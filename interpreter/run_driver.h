#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace ModCNC {

// What a program's billet row begins with.
inline constexpr std::string_view kBilletMark = "[BILLET";

// The two words of a billet row, in stock units; a word that isn't there leaves the register of the
// last run.
struct BilletWords {
  std::optional<std::int16_t> diameter;
  std::optional<std::int16_t> length;
};

// Reads the first two words behind the mark, which the row is taken to begin with. Empty when there
// are fewer, or when a number can't be read, is below 0 or doesn't fit.
std::optional<BilletWords> ParseBillet(std::string_view row);

// Reads the row "[BILLET X20 Z40" (diameter and length in mm, in either order) into BilletX and
// BilletZ. Returns -1, or 0 after a message when the program has no billet line or its numbers
// can't be read; then nothing is changed. A word other than X or Z leaves its register as it was.
std::int16_t ReadBilletLine();

// Plays the rows of DebugWindow from the first to the last, or until StopRequested is seen.
// Called by mnuRunStart_Click only, and never while a run is active.
// Reads the rows and the Step button; writes the registers, CurrentRow, LastRun, the stock and
// ProgressBar.
// Yields twice a row and in every motion.
void RunProgram();

}  // namespace ModCNC

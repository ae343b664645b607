#pragma once

#include <cstdint>
#include <optional>

// The repetitive pattern cycle: runs a range of program rows several times, each pass shifted by an
// offset that shrinks toward the finished contour. It takes two blocks with G73.
namespace GCodes {

// Flag: the first block has been met, the second not yet.
extern std::int16_t CycleArmed;

// The total shifts in stock units, and the number of passes. Written by the first block.
extern double ReliefZ;
extern double ReliefX;
extern std::int16_t CyclePasses;

// The row of the contour whose block is being carried out; kNoRow outside of a pass.
inline constexpr std::int16_t kNoRow = -1;
extern std::int16_t ContourRow;

// The first row from `from` on that holds "N" and the sequence number anywhere in its text, also in
// a comment and as the beginning of a longer number: the row that a cycle takes.
std::optional<std::int16_t> FindSequenceNumber(std::int16_t number, int from);

// The first block takes the relief from U and W and the passes from R. The second runs the rows
// from the one that holds "N" and the P number to the one that holds "N" and the Q number, once a
// pass; the driver goes on behind its own row afterwards. Within a running cycle a second block
// starts no other one.
// Reads the rows of DebugWindow. Writes the registers, CycleOffsetX, CycleOffsetZ,
// ContourRow and CurrentRow.
// The first block clears RadiusGiven. Yields, through the blocks that it runs, and
// between them by the clock.
void ExecuteG73();

void ResetPatternCycle();

}  // namespace GCodes

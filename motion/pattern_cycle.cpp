#include "motion/pattern_cycle.h"

#include <string>

#include "debugger/debug_grid.h"
#include "interpreter/decoder.h"
#include "interpreter/machine.h"
#include "interpreter/tool_change.h"
#include "mainwindow/control_surface.h"
#include "motion/moves.h"
#include "motion/player.h"
#include "platform/numbers.h"

namespace GCodes {

using namespace ModCNC;
using frmMain::DebugWindow;

std::int16_t CycleArmed;
double ReliefZ;
double ReliefX;
std::int16_t CyclePasses;
std::int16_t ContourRow = kNoRow;

namespace {

// A range can reach the row of its own second block, which would run the cycle without end.
bool cycleRunning;

// The row that bears the execution mark of the cycle.
std::int16_t markedRow;

struct RowRange {
  std::int16_t first = 0;
  std::int16_t last = 0;
};

std::int16_t Rounded(double value) {
  return ClipToInt16(RoundToPixel(value));
}

// Takes back what the decoder did for U and W: neither block moves the tool.
void TakeBackIncrements() {
  TargetX = ClipToInt16(TargetX - WordU);
  TargetZ = ClipToInt16(TargetZ - WordW);
}

void ArmCycle() {
  CycleArmed = kTrue;
  ReliefZ = WordW;
  ReliefX = 2.0 * WordU;
  CyclePasses = Rounded(WordR / 10.0);
  RadiusGiven = kFalse;
  TakeBackIncrements();
}

void DisarmCycle() {
  CycleArmed = kFalse;
  WordP = Rounded(WordP / 10.0);
  WordQ = Rounded(WordQ / 10.0);
  TakeBackIncrements();
}

void MoveMarkTo(std::int16_t row) {
  frmMain::RemoveHighLighting(static_cast<std::int16_t>(row - 1));
  // The mark may come from elsewhere: from the cycle's own block, or from the end of a pass.
  frmMain::RemoveHighLighting(markedRow);
  frmMain::HighLightExecutingLine(row);
  markedRow = row;
}

// False when the run was stopped.
bool RunRows(RowRange rows) {
  for (int row = rows.first; row <= rows.last; ++row) {
    YieldByClock();
    if (GlobalVariables::StopRequested == kTrue) return false;
    MoveMarkTo(static_cast<std::int16_t>(row));
    // A copy: the row may be edited in place while its block runs.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const std::string text = DebugWindow.TextMatrix(row, frmMain::kTextColumn);
    ContourRow = static_cast<std::int16_t>(row);
    ExecuteRow(text);
    ContourRow = kNoRow;
  }
  return GlobalVariables::StopRequested != kTrue;
}

// The part of a length that falls to one of the steps between the passes; a single pass has none.
double ShareOf(double length) {
  const int steps = CyclePasses - 1;
  return steps == 0 ? 0 : length / steps;
}

void RepositionForNextPass(std::int16_t startX, std::int16_t startZ) {
  TargetX = Rounded(startX + CycleOffsetX + WordU);
  TargetZ = Rounded(CycleOffsetZ + startZ + WordW);
  CurrentX = Rounded(CurrentX + ShareOf(CycleOffsetX));
  CurrentZ = Rounded(ShareOf(CycleOffsetZ) + CurrentZ);
  ExecuteG01();
}

void ShrinkOffsets() {
  CycleOffsetX = CycleOffsetX - ShareOf(ReliefX) + WordU;
  CycleOffsetZ = CycleOffsetZ - ShareOf(ReliefZ) + WordW;
}

// False when the run was stopped.
bool RunPasses(RowRange rows, std::int16_t startX, std::int16_t startZ) {
  // Read once: a row of the range may be a first block and change it.
  const int passes = CyclePasses;
  for (int pass = 1; pass <= passes; ++pass) {
    if (!RunRows(rows)) return false;
    RepositionForNextPass(startX, startZ);
    ShrinkOffsets();
  }
  return true;
}

void RunCycle(std::int16_t startX, std::int16_t startZ) {
  cycleRunning = true;
  TellToolTroubleOnce(true);
  markedRow = GlobalVariables::CurrentRow;
  CycleOffsetX = ReliefX;
  CycleOffsetZ = ReliefZ;
  RowRange rows;
  // A number that stands nowhere counts as that of the first row.
  rows.first = FindSequenceNumber(WordP, 0).value_or(0);
  rows.last = FindSequenceNumber(WordQ, rows.first + 1).value_or(0);
  if (RunPasses(rows, startX, startZ)) GlobalVariables::CurrentRow = rows.last;
  CycleOffsetX = 0;
  CycleOffsetZ = 0;
  frmMain::RemoveHighLighting(markedRow);
  TellToolTroubleOnce(false);
  cycleRunning = false;
}

}  // namespace

std::optional<std::int16_t> FindSequenceNumber(std::int16_t number, int from) {
  const std::string wanted = 'N' + DecimalText(number);
  for (int row = from; row < DebugWindow.Rows(); ++row) {
    const std::string& text = DebugWindow.TextMatrix(row, frmMain::kTextColumn);
    if (text.find(wanted) != std::string::npos) return ClipToInt16(row);
  }
  return std::nullopt;
}

void ExecuteG73() {
  if (CycleArmed == kFalse) {
    ArmCycle();
    return;
  }
  DisarmCycle();
  if (!cycleRunning) RunCycle(CurrentX, CurrentZ);
}

void ResetPatternCycle() {
  CycleArmed = kFalse;
  ReliefZ = 0;
  ReliefX = 0;
  CyclePasses = 0;
  ContourRow = kNoRow;
  TellToolTroubleOnce(false);
  cycleRunning = false;
  markedRow = 0;
}

}  // namespace GCodes

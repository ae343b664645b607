#include "motion/cycles.h"

#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "motion/moves.h"
#include "motion/tool.h"
#include "platform/numbers.h"

namespace GCodes {

using namespace ModCNC;

namespace {

// Gaps between the home position's sprite and the edges of the simulation area, in pixels.
constexpr int kHomeMarginTop = 5;
constexpr int kHomeMarginRight = 10;

void MoveTo(void (*executor)(), std::int16_t x, std::int16_t z) {
  TargetX = x;
  TargetZ = z;
  executor();
}

// The R word of this block, used up.
int TakeTaper() {
  const int taper = RadiusGiven != kFalse ? WordR : 0;
  RadiusGiven = kFalse;
  return taper;
}

}  // namespace

void ExecuteG28() {
  ExecuteG01();
  const double halfHeight = GlobalVariables::SimHeight / 2.0;
  const auto homeX = RoundToPixel(halfHeight - Graphics::ToolHeight - kHomeMarginTop);
  const int homeZ =
      GlobalVariables::SimWidth - GlobalVariables::BilletZ - Graphics::ToolWidth - kHomeMarginRight;
  MoveTo(ExecuteG00, ClipToInt16(homeX), ClipToInt16(homeZ));
}

void ExecuteG90() {
  const std::int16_t startX = CurrentX;
  const std::int16_t startZ = CurrentZ;
  const std::int16_t targetX = TargetX;
  const std::int16_t targetZ = TargetZ;
  MoveTo(ExecuteG00, ClipToInt16(targetX + TakeTaper()), startZ);
  MoveTo(ExecuteG01, targetX, targetZ);
  MoveTo(ExecuteG01, startX, targetZ);
  MoveTo(ExecuteG00, startX, startZ);
  TargetX = targetX;
  TargetZ = targetZ;
}

void ExecuteG94() {
  const std::int16_t startX = CurrentX;
  const std::int16_t startZ = CurrentZ;
  const std::int16_t targetX = TargetX;
  const std::int16_t targetZ = TargetZ;
  MoveTo(ExecuteG00, startX, ClipToInt16(targetZ + TakeTaper()));
  MoveTo(ExecuteG01, targetX, targetZ);
  MoveTo(ExecuteG01, targetX, startZ);
  MoveTo(ExecuteG00, startX, startZ);
  TargetX = targetX;
  TargetZ = targetZ;
}

}  // namespace GCodes

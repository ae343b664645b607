#include "motion/player.h"

#include <cstddef>
#include <cstdlib>

#include "interpreter/machine.h"
#include "interpreter/run_observer.h"
#include "mainwindow/control_surface.h"
#include "motion/stock.h"
#include "platform/host/desktop.h"
#include "platform/host/files.h"
#include "platform/numbers.h"

namespace GCodes {

std::vector<PathPoint> PathPoints;
std::int16_t RapidMove;
std::int16_t FastSoundOn;
double CycleOffsetX;
double CycleOffsetZ;
std::int64_t PointsPlayed;

namespace {

// Delay of a point at a Slider value of 0 or less, in milliseconds for each step below 0.
constexpr int kDelayStep = 5;
// The longest stretch of work without a yield, in milliseconds.
constexpr int kLongestStretch = 50;
// Points that a rapid move leaves out behind each point played.
constexpr std::size_t kRapidSkip = 5;

// False when the run was stopped, also while it was paused.
bool WaitWhilePaused() {
  while (GlobalVariables::StopRequested != kTrue) {
    if (!frmMain::IsRunPaused()) return true;
    Desktop::WaitForEvent();
  }
  return false;
}

void PlayPoint(const PathPoint& point) {
  Graphics::MoveTool(RoundToPixel(CycleOffsetZ + point.Z), RoundToPixel(CycleOffsetX + point.X));
  ++PointsPlayed;
}

void Pace(std::size_t index) {
  const int speed = frmMain::Slider.Value;
  if (speed <= 0) {
    Desktop::Sleep(kDelayStep * std::abs(speed));
  } else if (index % static_cast<std::size_t>(speed) != 0) {
    return;
  }
  Graphics::DrawSurface();
  Desktop::Yield();
}

void SwitchSound() {
  if (!frmMain::mnuToolsPlaySound.Checked || FastSoundOn == RapidMove) return;
  // A pause is silent, and may just have come: the change waits until the run goes on.
  if (frmMain::IsRunPaused()) return;
  const char* sound = RapidMove == kTrue ? "\\sound\\fast.wav" : "\\sound\\SLOW.wav";
  PlaySoundFile(ApplicationFolder() + sound);
  FastSoundOn = RapidMove;
}

}  // namespace

void YieldByClock() {
  if (Desktop::MillisecondsSinceYield() >= kLongestStretch) Desktop::Yield();
}

void PlayPath() {
  if (ModCNC::Observer != nullptr && GlobalVariables::StopRequested != kTrue) {
    ModCNC::Observer->OnMove();
  }
  const std::size_t count = PathPoints.size();
  for (std::size_t i = 0; i < count; ++i) {
    if (!WaitWhilePaused()) return;
    PlayPoint(PathPoints[i]);
    if (GlobalVariables::RunToBreakpoint == kTrue) {
      YieldByClock();
      continue;
    }
    Pace(i);
    SwitchSound();
    if (RapidMove == kTrue) i += kRapidSkip;
  }
}

void PlaySoundFile(const std::string& path) {
  Desktop::sndPlaySoundA(path, Desktop::kSoundAsync | Desktop::kSoundLoop);
}

void ResetPlayer() {
  PathPoints.clear();
  RapidMove = kFalse;
  FastSoundOn = kFalse;
  CycleOffsetX = 0;
  CycleOffsetZ = 0;
  PointsPlayed = 0;
}

}  // namespace GCodes

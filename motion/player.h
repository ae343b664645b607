#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace GCodes {

// A point of a move in stock units, rounded only when it is played. X is a radius.
struct PathPoint {
  double Z = 0;
  double X = 0;
};

// The points of one move; belong to the executor that filled them last.
extern std::vector<PathPoint> PathPoints;

// Flag: a rapid move is being played. Set by ExecuteG00 around its PlayPath.
extern std::int16_t RapidMove;

// Flag: the moving sound that was started last is that of a rapid move. Outlives the run.
extern std::int16_t FastSoundOn;

// Added to every point as it is played, in stock units. 0 outside the repetitive cycle.
extern double CycleOffsetX;
extern double CycleOffsetZ;

// Points played since the program started.
extern std::int64_t PointsPlayed;

// Yields when the last yield is 50 ms ago: for stretches of work that have no yield of their own.
void YieldByClock();

// Plays PathPoints: moves the tool, paces by the Slider, shows the surface, switches the sound,
// waits here while the run is paused and leaves when it is stopped. A rapid move plays every sixth
// point; while RunToBreakpoint is set every point is played and nothing shown.
// Yields at the rate of the Slider, and while paused; without a picture, by the clock.
void PlayPath();

// Plays a wave file in a loop until the next sound replaces it.
void PlaySoundFile(const std::string& path);

void ResetPlayer();

}  // namespace GCodes

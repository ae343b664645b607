#include <algorithm>
#include <cstddef>
#include <cstdlib>

#include "interpreter/machine.h"
#include "motion/moves.h"
#include "motion/player.h"
#include "motion/stock.h"

namespace GCodes {

using namespace ModCNC;

namespace {

// Computed in int: two positions can lie further apart than 16 bits hold.
struct Distance {
  int z;
  int x;
  int steps;
};

Distance DistanceToTarget() {
  const int z = TargetZ - CurrentZ;
  const int x = TargetX - CurrentX;
  return {z, x, std::max(std::abs(z), std::abs(x))};
}

int SignOf(int value) {
  return (value > 0) - (value < 0);
}

void StartPath(int steps) {
  PathPoints.clear();
  PathPoints.reserve(static_cast<std::size_t>(steps) + 1);
  PathPoints.push_back({static_cast<double>(CurrentZ), static_cast<double>(CurrentX)});
}

void ArriveAtTarget() {
  CurrentX = TargetX;
  CurrentZ = TargetZ;
}

}  // namespace

void ExecuteG00() {
  const Distance distance = DistanceToTarget();
  StartPath(distance.steps);
  int z = CurrentZ;
  int x = CurrentX;
  for (int i = 1; i <= distance.steps; ++i) {
    if (z != TargetZ) z += SignOf(distance.z);
    if (x != TargetX) x += SignOf(distance.x);
    PathPoints.push_back({static_cast<double>(z), static_cast<double>(x)});
  }
  RapidMove = kTrue;
  PlayPath();
  ArriveAtTarget();
  RapidMove = kFalse;
}

void ExecuteG01() {
  const Distance distance = DistanceToTarget();
  if (distance.steps == 0) return;
  const double stepZ = static_cast<double>(distance.z) / distance.steps;
  const double stepX = static_cast<double>(distance.x) / distance.steps;
  Graphics::TaperCut = distance.z != 0 && distance.x != 0 ? 1 : 0;
  StartPath(distance.steps);
  // Repeated addition, not multiplication: it decides which way a half is rounded when played.
  double z = CurrentZ;
  double x = CurrentX;
  for (int i = 1; i <= distance.steps; ++i) {
    z += stepZ;
    x += stepX;
    PathPoints.push_back({z, x});
  }
  RapidMove = kFalse;
  PlayPath();
  ArriveAtTarget();
}

}  // namespace GCodes

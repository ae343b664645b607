#include <cmath>
#include <cstdlib>
#include <optional>

#include "interpreter/machine.h"
#include "motion/moves.h"
#include "motion/player.h"
#include "platform/host/desktop.h"

namespace GCodes {

using namespace ModCNC;

namespace {

// The constants of the arc are part of its result: a more exact pi would move points.
constexpr double kPi = 3.14159;
constexpr double kTwoPi = 6.28318;
// Radians from point to point.
constexpr double kAngleStep = 0.002;
// Stock units. Below the tolerance two coordinates count as equal, and are moved apart so that no
// division meets zero.
constexpr double kAxisTolerance = 0.1;
constexpr double kNudgeX = 0.01;

enum class Turn { Clockwise, CounterClockwise };

struct Arc {
  double startZ;
  double startX;
  double endZ;
  double endX;
};

Arc ArcToTarget() {
  return {.startZ = static_cast<double>(CurrentZ),
          .startX = static_cast<double>(CurrentX),
          .endZ = static_cast<double>(TargetZ),
          .endX = static_cast<double>(TargetX)};
}

double SignOf(double value) {
  return value < 0 ? -1 : 1;
}

double TakeRadius() {
  const double radius =
      RadiusGiven != kFalse
          ? WordR
          : std::sqrt(static_cast<double>(WordI) * WordI + static_cast<double>(WordK) * WordK);
  RadiusGiven = kFalse;
  return radius;
}

// The angle of a vector, from the +Z axis toward the +X axis, 0 to two pi.
double AngleOf(double dZ, double dX) {
  const double b = std::atan(std::abs(dX) / std::abs(dZ));
  if (dX >= 0) return dZ >= 0 ? b : kPi - b;
  return dZ < 0 ? b + kPi : kTwoPi - b;
}

// Finds the centre from the radius and the chord; empty when the radius is too small. Moves the
// arc's start a little when the chord lies along Z.
std::optional<PathPoint> FindCentre(Arc& arc, double radius, Turn turn) {
  double halfChord = 0;
  double slope = 0;
  if (std::abs(arc.endX - arc.startX) < kAxisTolerance) {
    arc.startX -= kNudgeX;
    halfChord = std::abs(arc.startZ - arc.endZ) * 0.5;
    slope = (arc.startZ - arc.endZ) / kNudgeX;
  } else {
    halfChord = 0.5 * std::sqrt((arc.startZ - arc.endZ) * (arc.startZ - arc.endZ) +
                                (arc.startX - arc.endX) * (arc.startX - arc.endX));
    slope = (arc.startZ - arc.endZ) / (arc.endX - arc.startX);
  }
  if (std::abs(radius) < std::abs(halfChord)) return std::nullopt;
  const double theta = std::atan(slope);
  const double distance = std::sqrt(radius * radius - halfChord * halfChord);
  // A chord along X gives no side of its own; it counts as one that runs along Z as well.
  const double side =
      SignOf(radius) * SignOf(arc.endX - arc.startX) * (turn == Turn::Clockwise ? 1 : -1);
  return PathPoint{(arc.startZ + arc.endZ) / 2 + distance * std::cos(theta) * side,
                   (arc.startX + arc.endX) / 2 + distance * std::sin(theta) * side};
}

void FillPath(Arc& arc, const PathPoint& centre, double radius, Turn turn) {
  if (std::abs(arc.startZ - centre.Z) < kAxisTolerance) arc.startZ += kAxisTolerance;
  const double startAngle = AngleOf(arc.startZ - centre.Z, arc.startX - centre.X);
  if (std::abs(arc.endZ - centre.Z) < kAxisTolerance) arc.endZ += kAxisTolerance;
  double endAngle = AngleOf(arc.endZ - centre.Z, arc.endX - centre.X);

  PathPoints.clear();
  PathPoints.push_back({arc.startZ, arc.startX});
  const auto addPoint = [&](double angle) {
    PathPoints.push_back({std::abs(radius) * std::cos(angle) + centre.Z,
                          std::abs(radius) * std::sin(angle) + centre.X});
  };
  // The angle grows by repeated addition, which decides whether a last point is still played.
  if (turn == Turn::Clockwise) {
    if (endAngle > startAngle) endAngle -= kTwoPi;
    double angle = startAngle;
    while (angle >= endAngle) {
      addPoint(angle);
      angle -= kAngleStep;
    }
  } else {
    double angle = endAngle < startAngle ? startAngle - kTwoPi : startAngle;
    while (angle <= endAngle) {
      addPoint(angle);
      angle += kAngleStep;
    }
  }
}

void PlayArc(Turn turn) {
  const double radius = TakeRadius();
  if (TargetX == CurrentX && TargetZ == CurrentZ) return;
  Arc arc = ArcToTarget();
  const auto centre = FindCentre(arc, radius, turn);
  if (!centre) {
    Desktop::MessageBox("Value of Radius is too small to draw", Desktop::kInformation,
                        Desktop::kErrorTitle);
    return;
  }
  FillPath(arc, *centre, radius, turn);
  RapidMove = kFalse;
  PlayPath();
  CurrentX = TargetX;
  CurrentZ = TargetZ;
}

}  // namespace

void ExecuteG02() {
  PlayArc(Turn::Clockwise);
}

void ExecuteG03() {
  PlayArc(Turn::CounterClockwise);
}

}  // namespace GCodes

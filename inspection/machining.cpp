#include "inspection/machining.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "interpreter/machine.h"
#include "motion/player.h"

namespace Inspection {

namespace {

constexpr double kUnit = 0.1;
constexpr double kSecondsPerMinute = 60;

double Distance(const GCodes::PathPoint& a, const GCodes::PathPoint& b) {
  return std::hypot(b.Z - a.Z, b.X - a.X) * kUnit;
}

// An arc's last point may lie a little before its end.
double LengthOfMove() {
  const auto& points = GCodes::PathPoints;
  double length = Distance(
      points.back(), {static_cast<double>(ModCNC::TargetZ), static_cast<double>(ModCNC::TargetX)});
  for (std::size_t i = 1; i < points.size(); ++i) length += Distance(points[i - 1], points[i]);
  return length;
}

}  // namespace

Work& Work::operator+=(const Work& other) {
  for (double Work::*const member : {&Work::cuttingLength, &Work::cuttingTime, &Work::untimedLength,
                                     &Work::rapidLength, &Work::rapidTime, &Work::volume}) {
    this->*member += other.*member;
  }
  return *this;
}

void Machining::AddMove() {
  Work& work = tools_[loaded_].work;
  const double length = LengthOfMove();
  if (GCodes::RapidMove == kTrue) {
    work.rapidLength += length;
    work.rapidTime += length / rapidRate_ * kSecondsPerMinute;
    return;
  }
  work.cuttingLength += length;
  if (ModCNC::FeedRate > 0) {
    work.cuttingTime += length / ModCNC::FeedRate * kSecondsPerMinute;
  } else {
    work.untimedLength += length;
  }
}

void Machining::AddVolume(double removedInAll) {
  tools_[loaded_].work.volume += removedInAll - removed_;
  removed_ = removedInAll;
}

void Machining::ChangeTool(std::int16_t tool) {
  ++toolChanges_;
  const auto found = std::ranges::find(tools_, tool, &ToolWork::tool);
  loaded_ = static_cast<std::size_t>(std::distance(tools_.begin(), found));
  if (found == tools_.end()) tools_.push_back({tool, {}});
}

std::vector<ToolWork> Machining::Tools() const {
  std::vector<ToolWork> tools;
  std::ranges::copy_if(tools_, std::back_inserter(tools), [](const ToolWork& entry) {
    return entry.work.cuttingLength + entry.work.rapidLength > 0;
  });
  return tools;
}

Work Machining::Total() const {
  Work total;
  for (const ToolWork& entry : tools_) total += entry.work;
  return total;
}

}  // namespace Inspection

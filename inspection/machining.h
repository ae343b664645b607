#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace Inspection {

// Lengths in mm along the way of the cutting point, times in s, volumes in cubic mm.
struct Work {
  double cuttingLength = 0;
  double cuttingTime = 0;
  // The part of cuttingLength that was made without a feed, and so takes no time that is known.
  double untimedLength = 0;
  double rapidLength = 0;
  double rapidTime = 0;
  double volume = 0;

  Work& operator+=(const Work& other);
};

struct ToolWork {
  // Empty: the tool that a run starts with.
  std::optional<std::int16_t> tool;
  Work work;
};

// What a run has done, by the tools that did it.
class Machining {
 public:
  // `rapidRate` in mm/min, above 0.
  explicit Machining(double rapidRate) : rapidRate_(rapidRate) {}

  // The move that is about to be played. Reads PathPoints, RapidMove, FeedRate and the target.
  void AddMove();
  // The volume that the loaded tool has taken since the last call.
  void AddVolume(double removedInAll);
  void ChangeTool(std::int16_t tool);

  // In the order of their first use. A tool that has done nothing isn't there.
  std::vector<ToolWork> Tools() const;
  Work Total() const;
  int ToolChanges() const { return toolChanges_; }

 private:
  double rapidRate_;
  std::vector<ToolWork> tools_{{}};
  std::size_t loaded_ = 0;
  int toolChanges_ = 0;
  double removed_ = 0;
};

}  // namespace Inspection

#pragma once

#include <cstddef>
#include <optional>
#include <vector>

// The part as a machinist sees it while it is cut, to judge moves by.
namespace Inspection {

// Remaining radii by column. StockProfile knows the tool's cutting point alone, so in front of a
// face that was cut it leaves a disc standing which has long fallen. Here a feed move takes what
// lies under the whole shape of the tool, and what is cut off at the centre falls. All lengths are
// stock units, X a radius.
class MachinedPart {
 public:
  MachinedPart() = default;
  // A billet of as many columns and that radius.
  MachinedPart(std::size_t columns, int radius) : radii_(columns, radius) {}

  // Takes the lower edge of the tool that is loaded now.
  void TakeToolShape();

  // The column of a position; empty beside the billet. Column 0 is the face at Z0.
  std::optional<std::size_t> ColumnAt(int z) const;
  bool IsLastColumn(int z) const { return -z + 1 == static_cast<int>(radii_.size()); }

  // How much radius the cutting point would take; 0 when nothing. The face at Z0 has no thickness:
  // a tool that touches it takes nothing.
  int DepthAt(int z, int x) const;

  // Takes what the cutting point takes alone, as in a rapid move.
  void TakePoint(int z, int x);
  // Takes what the tool takes.
  void TakeShape(int z, int x);

  // Whether a tool there isn't clear of the part: it touches it, or something higher stands between
  // it and the free end.
  bool Holds(int z, int x) const;

 private:
  std::vector<int> radii_;
  // Columns that have been cut off, from the free end on.
  std::size_t fallen_ = 0;
  // How far above the cutting point the tool's lower edge lies, from the cutting point rightward.
  std::vector<int> edge_;
};

// Volume between a billet of that radius and StockProfile, in cubic millimetres: of each column but
// that of the face at Z0 an annulus of 0.1 mm.
double RemovedVolume(int radius);

}  // namespace Inspection

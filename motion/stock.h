#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "motion/stock_surface.h"

// The billet, in two faces that are written side by side and never derived from one another: a
// height field (StockProfile), and a surface from which the tool's shape takes material.
// Machine to surface: column = BilletZ + Z, row = CentreLine - X.
namespace Graphics {

struct ProfileColumn {
  // Remaining radius in stock units; only ever falls.
  std::int16_t Radius = 0;
  // 1 when the column was cut while TaperCut was 1.
  std::int16_t TaperMark = 0;

  bool operator==(const ProfileColumn&) const = default;
};

// BilletZ + 1 columns; column i stands for Z = -i. Made anew by InitStock, outlives the run.
extern std::vector<ProfileColumn> StockProfile;

// Pixel row of the spindle axis.
extern std::int16_t CentreLine;

// 1 when the last ExecuteG01 moved both axes, else 0; written there only.
extern std::int16_t TaperCut;

// Makes a new surface of SimWidth by SimHeight in SimBackColor, and computes CentreLine. The
// earlier picture is lost. When there is no memory for it a message box says so.
void CreateSurface();

// Fills the whole surface with SimBackColor.
void ClearSurface();

// A new billet of length z and diameter x, neither negative: StockProfile and its rectangle.
void InitStock(std::int16_t z, std::int16_t x);

// Moves the cutting point, the lower left corner of the sprite, to (z, x): cuts StockProfile at
// that column and the surface under the tool's shape and its mirror image. Any position will do:
// off the billet nothing is cut, off the surface nothing is drawn.
// Writes StockProfile, StockDC, LastToolX, LastToolY.
void MoveTool(int z, int x);

// Writes the panel "ToolPosition" alone. MoveTool's positions stand there from the next DrawSurface
// on, but the last one that a rapid move plays lies up to 5 units before its end.
void ShowToolAt(int z, int x);

// Copies what has changed of the surface to picSim, and the tool's position to its panel.
void DrawSurface();

// What lies at a pixel of the surface, for the user: the machine's position there as it is
// programmed, and the part's diameter at that column, in millimetres and UTF-8, such as
// "X 42.0  Z -21.3   Ø 28.0". Beside the part without a diameter; empty while there is no part and
// while a run is active.
std::string Measure(int column, int row);

// Draws a line in EffectColor across each shoulder that faces right, then calls DrawSurface.
void ApplyEffect();

void ResetStock();

}  // namespace Graphics

#include "motion/stock.h"

#include <cstdlib>
#include <new>
#include <optional>
#include <string>

#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "motion/tool.h"
#include "platform/host/desktop.h"
#include "platform/numbers.h"
#include "settings/settings.h"

namespace Graphics {

using GlobalVariables::BilletZ;
using GlobalVariables::Settings;
using GlobalVariables::SimHeight;
using GlobalVariables::SimWidth;

std::vector<ProfileColumn> StockProfile;
std::int16_t CentreLine;
std::int16_t TaperCut;

namespace {

constexpr const char* kNoMemory = "There is not enough memory for the simulation picture.";

std::int16_t BilletRadius(std::int16_t diameter) {
  // Half of a 16-bit value always fits.
  return *RoundToInt16(diameter / 2.0);
}

void CutProfile(int z, int x) {
  const int column = -z;
  const int radius = std::abs(x);
  if (column < 0 || column >= static_cast<int>(StockProfile.size())) return;
  ProfileColumn& entry = StockProfile[static_cast<std::size_t>(column)];
  if (entry.Radius <= radius) return;
  if (TaperCut == 1) entry.TaperMark = 1;
  entry.Radius = static_cast<std::int16_t>(radius);
}

// Colours the work piece pixels of a column from row `top` down to its mirror row and a little on.
void MarkShoulder(int column, int top) {
  for (int row = top; row <= SimHeight - top + 2; ++row) {
    if (StockDC.Read().GetPixel(column, row) == Settings.WorkPieceColor) {
      StockDC.SetPixel(column, row, Settings.EffectColor);
    }
  }
}

// Where the tool stands, as the panel tells it.
std::optional<int> toolZ;
int toolX;

// A length of so many tenths of a millimetre in millimetres, with one decimal.
std::string Millimetres(int tenths) {
  const std::string sign = tenths < 0 ? "-" : "";
  return sign + DecimalText(std::abs(tenths) / 10) + "." + DecimalText(std::abs(tenths) % 10);
}

// As it is programmed: X is a diameter.
std::string Position(int z, int x) {
  return "X " + Millimetres(2 * x) + "  Z " + Millimetres(z);
}

void ShowToolPosition() {
  if (toolZ) frmMain::StatusBar.Panels("ToolPosition").Text = Position(*toolZ, toolX);
}

// Null beside the part.
const ProfileColumn* ColumnAt(int z) {
  if (z > 0 || -z >= static_cast<int>(StockProfile.size())) return nullptr;
  return &StockProfile[static_cast<std::size_t>(-z)];
}

}  // namespace

void CreateSurface() {
  try {
    StockDC.Create(SimWidth, SimHeight, Settings.SimBackColor);
  } catch (const std::bad_alloc&) {
    Desktop::MessageBox(kNoMemory);
    return;
  }
  CentreLine = static_cast<std::int16_t>(SimHeight / 2);
}

void ClearSurface() {
  StockDC.Fill({0, 0, StockDC.Width(), StockDC.Height()}, Settings.SimBackColor);
}

void InitStock(std::int16_t z, std::int16_t x) {
  BilletZ = z;
  const std::int16_t radius = BilletRadius(x);
  try {
    StockProfile.assign(static_cast<std::size_t>(z) + 1, {radius, 0});
  } catch (const std::bad_alloc&) {
    Desktop::MessageBox(kNoMemory);
    return;
  }
  StockDC.Fill({0, CentreLine - radius, z, CentreLine + radius}, Settings.WorkPieceColor);
}

void MoveTool(int z, int x) {
  toolZ = z;
  toolX = x;
  CutProfile(z, x);
  const PixelPoint from{LastToolX, LastToolY};
  const int column = BilletZ + z;
  LastToolX = column;
  LastToolY = CentreLine - x - ToolHeight;
  StockDC.MoveTool(ToolDC, from, {LastToolX, LastToolY}, {column, CentreLine + x});
}

void ShowToolAt(int z, int x) {
  toolZ = z;
  toolX = x;
  ShowToolPosition();
}

void DrawSurface() {
  ShowToolPosition();
  if (!frmMain::picSim.Blt) return;
  const Raster& surface = StockDC.Read();
  frmMain::picSim.Blt(surface, StockDC.TakeChanged());
}

std::string Measure(int column, int row) {
  if (StockProfile.empty() || frmMain::Toolbar.Buttons("Stop").Enabled) return {};
  const int z = column - BilletZ;
  const ProfileColumn* part = ColumnAt(z);
  const std::string diameter = part != nullptr ? "   Ø " + Millimetres(2 * part->Radius) : "";
  return Position(z, CentreLine - row) + diameter;
}

void ApplyEffect() {
  for (int column = 0; column <= BilletZ; ++column) {
    for (int row = 0; row <= CentreLine; ++row) {
      const Raster& surface = StockDC.Read();
      if (surface.GetPixel(column, row) == Settings.WorkPieceColor &&
          surface.GetPixel(column + 1, row) == Settings.SimBackColor) {
        MarkShoulder(column, row);
      }
    }
  }
  DrawSurface();
}

void ResetStock() {
  toolZ.reset();
  toolX = 0;
  StockProfile.clear();
  StockDC = {};
  CentreLine = 0;
  TaperCut = 0;
}

}  // namespace Graphics

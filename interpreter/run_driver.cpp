#include "interpreter/run_driver.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "debugger/debug_grid.h"
#include "debugger/run_commands.h"
#include "interpreter/decoder.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "motion/stock.h"
#include "motion/tool.h"
#include "platform/host/desktop.h"
#include "platform/numbers.h"
#include "platform/text.h"

namespace ModCNC {

using namespace GlobalVariables;
using frmMain::DebugWindow;

namespace {

// Gap between the waiting tool and the right edge of the simulation area, in pixels.
constexpr int kStartMargin = 20;

std::optional<std::string_view> FindBilletRow() {
  if (frmMain::TextEditor().Find(kBilletMark) < 0) return std::nullopt;
  for (int row = 0; row < DebugWindow.Rows(); ++row) {
    const std::string_view text = DebugWindow.TextMatrix(row, frmMain::kTextColumn);
    if (text.find(kBilletMark) != std::string_view::npos) return text;
  }
  return std::nullopt;
}

void PlaceTool() {
  CurrentX = BilletX;
  CurrentZ = ClipToInt16(SimWidth - Graphics::ToolWidth - kStartMargin - BilletZ);
  Graphics::MoveTool(CurrentZ, CurrentX);
  Graphics::DrawSurface();
}

// A copy, since the row may be edited in place during a yield.
std::string RowText(std::int16_t row) {
  return DebugWindow.TextMatrix(row, frmMain::kTextColumn);
}

void PlayRow(std::string_view text) {
  if (!ExecuteRow(text)) return;
  // Stop has zeroed the position, and a run to a break point shows nothing.
  if (StopRequested == kFalse && RunToBreakpoint == kFalse) {
    Graphics::ShowToolAt(CurrentZ, CurrentX);
  }
  Desktop::Yield();
}

}  // namespace

std::optional<BilletWords> ParseBillet(std::string_view row) {
  const std::string_view words = Trim(Trim(row).substr(kBilletMark.size()));
  std::vector<std::string_view> parts = Split(words, " ");
  std::erase(parts, std::string_view());
  if (parts.size() < 2) return std::nullopt;
  BilletWords billet;
  for (const std::string_view part : {parts[0], parts[1]}) {
    if (part.front() != 'X' && part.front() != 'Z') continue;
    const auto millimetres = ParseNumber(part.substr(1));
    if (!millimetres) return std::nullopt;
    const auto units = RoundToInt16(*millimetres * 10);
    if (!units || *units < 0) return std::nullopt;
    (part.front() == 'X' ? billet.diameter : billet.length) = *units;
  }
  return billet;
}

std::int16_t ReadBilletLine() {
  const auto row = FindBilletRow();
  const auto billet = row ? ParseBillet(*row) : std::nullopt;
  if (!billet) {
    Desktop::MessageBox("Billet Size Not Found", Desktop::kCritical);
    return kFalse;
  }
  BilletX = billet->diameter.value_or(BilletX);
  BilletZ = billet->length.value_or(BilletZ);
  return kTrue;
}

void RunProgram() {
  if (ReadBilletLine() == kFalse) {
    LastRun = RunOutcome::NoBillet;
    return;
  }
  Graphics::InitStock(BilletZ, BilletX);
  PlaceTool();
  const std::int16_t rows = ClipToInt16(DebugWindow.Rows());
  frmMain::ProgressBar.Max = rows;
  frmMain::ProgressBar.Value = 0;
  for (std::int16_t row = 0; row < rows; ++row) {
    frmMain::ProgressBar.Value = row + 1;
    CurrentRow = row;
    // After a Stop the rows may be those of another program.
    if (StopRequested != kFalse) return;
    const std::string text = RowText(row);
    frmMain::RemoveHighLighting(static_cast<std::int16_t>(row - 1));
    frmMain::HighLightExecutingLine(row);
    Desktop::Yield();
    PlayRow(text);
    if (frmMain::Toolbar.Buttons("Step").Value == 1) {
      frmMain::mnuRunPause_Click();
      frmMain::EnableCommands("Step", true);
    }
  }
}

}  // namespace ModCNC

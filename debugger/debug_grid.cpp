#include "debugger/debug_grid.h"

#include <string>
#include <string_view>
#include <vector>

#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "motion/stock.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "settings/settings.h"

namespace frmMain {

using GlobalVariables::Settings;

namespace {

constexpr std::uint8_t kCentred = 4;
// The view follows the executing row in jumps of so many rows.
constexpr int kScrollStep = 10;

bool IsBreakPoint(int row) {
  return DebugWindow.TextMatrix(row, kBreakColumn) == kBreakPoint;
}

// The three looks of the text column.
void PaintText(int row, Colour back, Colour fore, bool bold) {
  DebugWindow.Select(row, kTextColumn);
  DebugWindow.SetCellBackColor(back);
  DebugWindow.SetCellForeColor(fore);
  DebugWindow.SetCellFontBold(bold);
}
void ColourAsNormal(int row) {
  PaintText(row, Settings.NormalBackColor, Settings.NormalTextColor, false);
}
void ColourAsBreakPoint(int row) {
  PaintText(row, Settings.BreakPointColor, Settings.BreakPointTextColor, true);
}
void ColourAsExecuting(int row) {
  PaintText(row, Settings.ExecutionPointColor, Settings.ExecutionPointTextColor, false);
}

void SetMark(int row, GridPicture picture) {
  DebugWindow.Select(row, kMarkColumn);
  DebugWindow.SetCellPicture(picture);
  if (picture != GridPicture::None) DebugWindow.SetCellPictureAlignment(kCentred);
}

void ShowAtRest(int row) {
  if (IsBreakPoint(row)) {
    SetMark(row, GridPicture::Break);
    ColourAsBreakPoint(row);
  } else {
    SetMark(row, GridPicture::None);
    ColourAsNormal(row);
  }
}

void SizeRow(int row) {
  DebugWindow.Select(row, kTextColumn);
  DebugWindow.SetCellFontName(Settings.DebugFontName);
  DebugWindow.SetCellFontSize(Settings.DebugFontSize);
  DebugWindow.SetRowHeight(row, Settings.DebugRowHeight);
}

void FillRow(int row, std::string_view line) {
  DebugWindow.SetTextMatrix(row, kLineNumberColumn, DecimalText(row + 1));
  DebugWindow.SetTextMatrix(row, kTextColumn, std::string(line));
  DebugWindow.SetTextMatrix(row, kBreakColumn, "");
  ColourAsNormal(row);
  SizeRow(row);
  SetMark(row, GridPicture::None);
  DebugWindow.SetCellBackColor(kMarkColumnColour);
}

// The paused state, without the sound of a pause and without unlocking the editor.
void PauseAtBreakPoint() {
  EnableCommands("Pause", false);
  EnableCommands("Start", true);
  if (GlobalVariables::RunToBreakpoint == kFalse) return;
  GlobalVariables::RunToBreakpoint = kFalse;
  Graphics::DrawSurface();
  Graphics::ApplyEffect();
}

}  // namespace

void FillDebugWindow() {
  txtDebug.Visible = false;
  // A copy: watchers of the grid may ask the editor for its text.
  const std::string text = TextEditor().Text();
  std::vector<std::string_view> lines;
  if (!text.empty()) lines = Split(text, kLineEnd);
  DebugWindow.SetRedraw(false);
  DebugWindow.SetRows(static_cast<int>(lines.size()));
  for (int row = 0; row < DebugWindow.Rows(); ++row) {
    FillRow(row, lines[static_cast<std::size_t>(row)]);
  }
  DebugWindow.SetRedraw(true);
}

void ApplyDebugWindowLayout() {
  DebugWindow.SetColWidth(kLineNumberColumn,
                          ClipToInt16(Settings.DebugLineNumbers * Settings.DebugC0Width));
  DebugWindow.SetColWidth(kMarkColumn, Settings.DebugC1Width);
  DebugWindow.SetColWidth(kTextColumn, Settings.DebugC2Width);
  DebugWindow.SetColWidth(kBreakColumn, 0);
  DebugWindow.SetFontName(Settings.DebugFontName);
  DebugWindow.SetGridLines(Settings.DebugGrid != 0 ? 1 : 0);
}

void ApplyDebugWindowFormats() {
  DebugWindow.SetRedraw(false);
  for (int row = 0; row < DebugWindow.Rows(); ++row) {
    SizeRow(row);
    if (IsBreakPoint(row)) {
      ColourAsBreakPoint(row);
    } else {
      ColourAsNormal(row);
    }
  }
  DebugWindow.SetRedraw(true);
}

void HighLightExecutingLine(std::int16_t lineNum) {
  if (!HasRow(lineNum)) return;
  if (IsBreakPoint(lineNum)) {
    SetMark(lineNum, GridPicture::Both);
    PauseAtBreakPoint();
  } else {
    SetMark(lineNum, GridPicture::Step);
    ColourAsExecuting(lineNum);
  }
  if (lineNum % kScrollStep == 0 && lineNum > kScrollStep) {
    DebugWindow.TopRow = lineNum - kScrollStep;
  }
}

void RemoveHighLighting(std::int16_t lineNum) {
  if (HasRow(lineNum)) ShowAtRest(lineNum);
}

void DebugWindow_Click() {
  const int row = DebugWindow.MouseRow;
  if (!HasRow(row)) return;
  DebugWindow.ToolTipText = DebugWindow.TextMatrix(row, kTextColumn);
  if (DebugWindow.MouseCol != kMarkColumn) return;
  DebugWindow.SetTextMatrix(row, kBreakColumn, IsBreakPoint(row) ? "" : std::string(kBreakPoint));
  ShowAtRest(row);
}

bool HasRow(int row) {
  return row >= 0 && row < DebugWindow.Rows();
}

}  // namespace frmMain

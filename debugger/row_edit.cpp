#include "debugger/row_edit.h"

#include <limits>
#include <string>

#include "debugger/debug_grid.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "platform/text.h"
#include "platform/virtual_keys.h"
#include "settings/settings.h"

namespace frmMain {

using GlobalVariables::Settings;

std::int16_t EditRow;

namespace {

// Gap between the edit box and the grid's right edge, in pixels.
constexpr double kRightMargin = 4;

// With the text in the edit box for the row `editedRow`; -1 for none.
std::string TextOfRows(int editedRow = -1) {
  std::string text;
  for (int row = 0; row < DebugWindow.Rows(); ++row) {
    if (row > 0) text += kLineEnd;
    text += row == editedRow ? txtDebug.Text.Get() : DebugWindow.TextMatrix(row, kTextColumn);
  }
  return text;
}

// The text goes through empty, so that the change is heard as one that empties the document and one
// that fills it anew.
void RewriteEditor() {
  TextEditor().SetText("");
  TextEditor().SetText(TextOfRows());
}

// As RewriteEditor, but the commands stay those of the run, and the change can be saved after it.
void RewriteEditorDuringRun() {
  const CommandStates states = OpenCommands();
  RewriteEditor();
  RestoreCommands(states);
  SaveWasEnabled = kTrue;
}

double Pixels(int twips) {
  return static_cast<double>(twips) / kTwipsPerPixel;
}

// Places txtDebug over the current cell.
void PlaceEditBox() {
  const ControlBounds& grid = DebugWindow.Bounds;
  const double left = Pixels(DebugWindow.CellLeft());
  txtDebug.Bounds = {.Left = left,
                     .Top = grid.Top + Pixels(DebugWindow.CellTop()),
                     .Width = grid.Width - left - kRightMargin,
                     .Height = Pixels(Settings.DebugRowHeight)};
}

bool EditChangesRow() {
  return HasRow(EditRow) && txtDebug.Text.Get() != DebugWindow.TextMatrix(EditRow, kTextColumn);
}

void TakeEditOver() {
  // First, since hiding the box takes the focus from it.
  txtDebug.Visible = false;
  if (!HasRow(EditRow)) return;
  DebugWindow.SetTextMatrix(EditRow, kTextColumn, txtDebug.Text);
  if (Toolbar.Buttons("Stop").Enabled) {
    RewriteEditorDuringRun();
  } else {
    RewriteEditor();
  }
  TextChanged = kFalse;
}

}  // namespace

void DebugWindow_DblClick() {
  txtDebug_LostFocus();
  const int row = DebugWindow.MouseRow;
  if (!HasRow(row) || row > std::numeric_limits<std::int16_t>::max()) return;
  EditRow = static_cast<std::int16_t>(row);
  DebugWindow.Select(EditRow, kTextColumn);
  txtDebug.Text = DebugWindow.TextMatrix(EditRow, kTextColumn);
  txtDebug.FontName = Settings.DebugFontName;
  txtDebug.FontSize = Settings.DebugFontSize;
  PlaceEditBox();
  txtDebug.SelStart = static_cast<int>(txtDebug.Text.Get().size());
  txtDebug.Visible = true;
}

void txtDebug_KeyUp(std::int16_t keyCode, std::int16_t /*shift*/) {
  if (!txtDebug.Visible) return;
  if (keyCode == VirtualKeys::kEnter) TakeEditOver();
  if (keyCode == VirtualKeys::kEscape) txtDebug.Visible = false;
}

void txtDebug_LostFocus() {
  if (!txtDebug.Visible) return;
  if (EditChangesRow()) {
    TakeEditOver();
  } else {
    txtDebug.Visible = false;
  }
}

std::string TextWithOpenEdit() {
  const bool isChanged = txtDebug.Visible && EditChangesRow();
  return isChanged ? TextOfRows(EditRow) : TextEditor().Text();
}

void txtDebug_Follow() {
  if (!txtDebug.Visible || !HasRow(EditRow)) return;
  // Whoever scrolls may be at work on the current cell.
  const int row = DebugWindow.Row;
  const int column = DebugWindow.Col;
  DebugWindow.Select(EditRow, kTextColumn);
  PlaceEditBox();
  DebugWindow.Select(row, column);
}

void ResetRowEdit() {
  EditRow = 0;
}

}  // namespace frmMain

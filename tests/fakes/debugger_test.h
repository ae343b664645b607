#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "debugger/debug_grid.h"
#include "debugger/row_edit.h"
#include "mainwindow/view_toggles.h"
#include "settings/settings.h"
#include "tests/fakes/machine_test.h"

// A machine with the editor in view, as at the first start, in a window whose simulation area is
// 400 by 300 pixels with the left pane shown.
class DebuggerTest : public MachineTest {
 protected:
  void SetUp() override {
    MachineTest::SetUp();
    frmMain::mnuViewTextEditor.Checked = true;
    frmMain::TextEditor().Visible = true;
    frmMain::ScaleWidth = 519;
    frmMain::Form_Resize();
  }

  // The program of these lines in the editor, saved, the rows still behind.
  static void Write(const std::vector<std::string>& lines) {
    Load(lines);
    frmMain::DebugWindow.SetRows(0);
    frmMain::EnableCommands("Save", false);
  }

  // As Write, with the grid in view and filled.
  static void Show(const std::vector<std::string>& lines) {
    Write(lines);
    if (!frmMain::mnuViewDebugWindow.Checked) frmMain::mnuViewDebugWindow_Click();
    frmMain::FillDebugWindow();
    frmMain::TextChanged = kFalse;
  }

  static void Click(int row, int column) {
    frmMain::DebugWindow.MouseRow = row;
    frmMain::DebugWindow.MouseCol = column;
    frmMain::DebugWindow_Click();
  }
  static void ClickMark(int row) { Click(row, frmMain::kMarkColumn); }

  static void OpenEdit(int row, const std::string& text) {
    Click(row, frmMain::kTextColumn);
    frmMain::DebugWindow_DblClick();
    frmMain::txtDebug.Text = text;
  }
  static void PressEnter() { frmMain::txtDebug_KeyUp(13, 0); }

  static std::string RowText(int row) {
    return frmMain::DebugWindow.TextMatrix(row, frmMain::kTextColumn);
  }
  static std::string RowsJoined() {
    std::string text;
    for (int row = 0; row < frmMain::DebugWindow.Rows(); ++row) {
      text += (row > 0 ? "\r\n" : "") + RowText(row);
    }
    return text;
  }

  // A row as the user sees it: "3 [*]> G01 X20" is row 2 with a break point and the run on it.
  // Break flag, picture, colours and weight must belong to one and the same state.
  static std::string ShownRow(int row) {
    const auto& settings = GlobalVariables::Settings;
    const GridTable& grid = frmMain::DebugWindow;
    const CellFormat& text = grid.Format(row, frmMain::kTextColumn);
    const CellFormat& mark = grid.Format(row, frmMain::kMarkColumn);
    const GridPicture picture = mark.Picture;
    EXPECT_TRUE(picture == GridPicture::None || mark.PictureAlignment == 4) << "in the middle";
    const bool runs = picture == GridPicture::Step || picture == GridPicture::Both;
    const bool breaks = picture == GridPicture::Break || picture == GridPicture::Both;
    EXPECT_EQ(breaks ? "BP" : "", grid.TextMatrix(row, frmMain::kBreakColumn)) << "row " << row;
    EXPECT_EQ(breaks, text.FontBold) << "row " << row;
    const auto colours =
        breaks ? std::pair{settings.BreakPointColor, settings.BreakPointTextColor}
        : runs ? std::pair{settings.ExecutionPointColor, settings.ExecutionPointTextColor}
               : std::pair{settings.NormalBackColor, settings.NormalTextColor};
    EXPECT_EQ(colours, std::pair(text.BackColor, text.ForeColor)) << "row " << row;
    return grid.TextMatrix(row, frmMain::kLineNumberColumn) + (breaks ? " [*]" : " [ ]") +
           (runs ? "> " : "  ") + RowText(row);
  }

  // The row that carries the execution mark, -1 for none.
  static int ExecutingRow() {
    int found = -1;
    for (int row = 0; row < frmMain::DebugWindow.Rows(); ++row) {
      if (ShownRow(row).find("]>") == std::string::npos) continue;
      EXPECT_EQ(-1, found) << "two rows are marked";
      found = row;
    }
    return found;
  }

  static bool IsOpen(std::string_view command) { return frmMain::Toolbar.Find(command)->Enabled; }

  // What the user can choose: commands, then "Menus" where those that a run closes are open.
  static std::string OpenCommands() {
    std::string open;
    for (const ToolButton& button : frmMain::Toolbar) {
      if (button.Enabled) open += std::string(button.Key) + ' ';
    }
    for (const MenuEntry* menu : {&frmMain::mnuView, &frmMain::mnuTools, &frmMain::mnuHelp}) {
      EXPECT_EQ(frmMain::mnuFile.Enabled, menu->Enabled);
    }
    return frmMain::mnuFile.Enabled ? open + "Menus" : open;
  }

  static constexpr const char* kIdle = "New Open Print Step Start Options Menus";
  static constexpr const char* kRunning = "Pause Stop ";
  static constexpr const char* kPaused = "Start Stop ";
};

#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "debugger/debug_grid.h"
#include "debugger/row_edit.h"
#include "editor/editor_events.h"
#include "mainwindow/view_toggles.h"
#include "platform/text.h"
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

  static std::string Joined(const std::vector<std::string>& lines) {
    std::string text;
    for (std::size_t i = 0; i < lines.size(); ++i) text += (i > 0 ? "\r\n" : "") + lines[i];
    return text;
  }

  // The program of these lines in the editor, saved, the rows still behind.
  static void Write(const std::vector<std::string>& lines) {
    frmMain::TextEditor().SetText(Joined(lines));
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
  static void Edit(int row, const std::string& text) {
    OpenEdit(row, text);
    PressEnter();
  }

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

  // A row as the user sees it: "  3 [*] >G01 X20" is row 2 with a break point and the run on it.
  // Break flag, picture, colours and weight must belong to one and the same state.
  static std::string ShownRow(int row) {
    const auto& settings = GlobalVariables::Settings;
    struct State {
      const char* shown;
      std::string_view flag;
      Colour back;
      Colour fore;
      GridPicture picture;
      bool bold;
    };
    const State states[] = {
        {" [ ]  ", "", settings.NormalBackColor, settings.NormalTextColor, GridPicture::None,
         false},
        {" [*]  ", "BP", settings.BreakPointColor, settings.BreakPointTextColor, GridPicture::Break,
         true},
        {" [ ] >", "", settings.ExecutionPointColor, settings.ExecutionPointTextColor,
         GridPicture::Step, false},
        {" [*] >", "BP", settings.BreakPointColor, settings.BreakPointTextColor, GridPicture::Both,
         true},
    };
    const GridTable& grid = frmMain::DebugWindow;
    const CellFormat& mark = grid.Format(row, frmMain::kMarkColumn);
    const CellFormat& text = grid.Format(row, frmMain::kTextColumn);
    const State& state = *std::find_if(std::begin(states), std::end(states),
                                       [&](const State& s) { return s.picture == mark.Picture; });
    EXPECT_EQ(state.flag, grid.TextMatrix(row, frmMain::kBreakColumn)) << "row " << row;
    EXPECT_EQ(state.back, text.BackColor) << "row " << row;
    EXPECT_EQ(state.fore, text.ForeColor) << "row " << row;
    EXPECT_EQ(state.bold, text.FontBold) << "row " << row;
    if (mark.Picture != GridPicture::None) {
      EXPECT_EQ(4, mark.PictureAlignment);
    }
    const std::string& number = grid.TextMatrix(row, frmMain::kLineNumberColumn);
    return std::string(3 - std::min<std::size_t>(3, number.size()), ' ') + number + state.shown +
           RowText(row);
  }

  static std::vector<std::string> ShownRows() {
    std::vector<std::string> rows(static_cast<std::size_t>(frmMain::DebugWindow.Rows()));
    for (std::size_t row = 0; row < rows.size(); ++row) rows[row] = ShownRow(static_cast<int>(row));
    return rows;
  }

  // The row that carries the execution mark, -1 for none.
  static int ExecutingRow() {
    int found = -1;
    for (int row = 0; row < frmMain::DebugWindow.Rows(); ++row) {
      if (ShownRow(row).find("] >") == std::string::npos) continue;
      EXPECT_EQ(-1, found) << "two rows are marked";
      found = row;
    }
    return found;
  }

  static bool IsOpen(std::string_view command) { return frmMain::Toolbar.Buttons(command).Enabled; }

  // What the user can choose: commands, then menus.
  static std::string OpenCommands() {
    std::string open;
    for (const ToolButton& button : frmMain::Toolbar) {
      if (button.Enabled) open += std::string(button.Key) + ' ';
    }
    for (const auto& [name, menu] : {std::pair{"File ", &frmMain::mnuFile},
                                     {"View ", &frmMain::mnuView},
                                     {"Tools ", &frmMain::mnuTools},
                                     {"Help ", &frmMain::mnuHelp}}) {
      if (menu->Enabled) open += name;
    }
    return open;
  }

  static constexpr const char* kIdle = "New Open Print Step Start Options File View Tools Help ";
  static constexpr const char* kRunning = "Pause Stop ";
  static constexpr const char* kPaused = "Start Stop ";
};

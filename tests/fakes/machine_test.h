#pragma once

#include <gtest/gtest.h>
#include <string>

#include "debugger/debug_grid.h"
#include "debugger/row_edit.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/layout.h"
#include "mainwindow/program_start.h"
#include "mainwindow/start_up.h"
#include "tests/fakes/fakes.h"

// Its opaque shape rises to the right of its tip.
inline Raster TriangleTool(int width, int height) {
  Raster picture(width, height);
  picture.Fill(picture.Area(), kTransparent);
  for (int x = 0; x < width; ++x) picture.Fill({x, 0, x + 1, height - x}, Rgb(90, 90, 90));
  return picture;
}

// The program after its first start: the editor in view beside a simulation area of 400 by 300
// pixels, a triangle for a default tool, the Slider on the right, sound off.
inline void StartMachine() {
  Fakes::Reset();
  frmMain::ResetToProgramStart();
  frmMain::Form_Load();
  Fakes::PutPicture("/app/tools/tool.bmp", TriangleTool(67, 101));
  frmMain::ScaleWidth = 519;
  frmMain::ScaleHeight = 363;
  frmMain::Form_Resize();
  frmMain::Slider.Value = SliderControl::kMax;
  frmMain::mnuToolsPlaySound.Checked = false;
}

// `row` counts from 0.
inline void ClickRow(int row, int column) {
  frmMain::DebugWindow.MouseRow = row;
  frmMain::DebugWindow.MouseCol = column;
  frmMain::DebugWindow_Click();
}
inline void EditRowAs(int row, const std::string& text) {
  ClickRow(row, frmMain::kTextColumn);
  frmMain::DebugWindow_DblClick();
  frmMain::txtDebug.Text = text;
}

class MachineTest : public testing::Test {
 protected:
  void SetUp() override { StartMachine(); }
  void TearDown() override {
    Fakes::Verify();
    Fakes::Reset();
    frmMain::ResetToProgramStart();
  }
};

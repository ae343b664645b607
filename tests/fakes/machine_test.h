#pragma once

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "debugger/debug_grid.h"
#include "debugger/run_commands.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/layout.h"
#include "mainwindow/program_start.h"
#include "mainwindow/start_up.h"
#include "motion/stock.h"
#include "platform/numbers.h"
#include "tests/fakes/fakes.h"

// A machine as it stands after start-up, with a simulation area of 400 by 300 pixels, the Slider at
// 10, sound off, and a default tool whose opaque shape is a triangle that rises to the right of
// its tip.
class MachineTest : public testing::Test {
 protected:
  void SetUp() override {
    Fakes::Reset();
    frmMain::ResetToProgramStart();
    frmMain::Form_Load();
    Fakes::PutPicture("/app/tools/tool.bmp", TriangleTool(67, 101));
    ShowSimulationAlone(400, 300);
    frmMain::Slider.Value = 10;
    frmMain::mnuToolsPlaySound.Checked = false;
  }
  void TearDown() override {
    Fakes::Verify();
    frmMain::ResetToProgramStart();
  }

  // With both panes hidden Start leaves the size of the simulation area as it is.
  static void ShowSimulationAlone(int width, int height) {
    frmMain::mnuViewTextEditor.Checked = false;
    frmMain::TextEditor().Visible = false;
    const double bars =
        frmMain::Toolbar.Bounds.Get().Height + frmMain::StatusBar.Bounds.Get().Height;
    frmMain::ScaleWidth = width;
    frmMain::ScaleHeight = height + RoundToPixel(bars);
    frmMain::Form_Resize();
  }

  static Raster TriangleTool(int width, int height) {
    Raster picture(width, height);
    picture.Fill(picture.Area(), kTransparent);
    for (int x = 0; x < width; ++x) {
      picture.Fill({x, 0, x + 1, height - x}, Rgb(90, 90, 90));
    }
    return picture;
  }

  // Makes the program of these lines the one that is loaded.
  static void Load(const std::vector<std::string>& lines) {
    std::string text;
    for (std::size_t i = 0; i < lines.size(); ++i) text += (i > 0 ? "\r\n" : "") + lines[i];
    frmMain::TextEditor().SetText(text);
    frmMain::FillDebugWindow();
    frmMain::EnableCommands("Start", true);
  }

  // A document as it stands when it has just been opened.
  static RichText& Open(const std::string& text) {
    frmMain::TextEditor().SetText(text);
    frmMain::FillDebugWindow();
    frmMain::EnableCommands("Save", false);
    frmMain::TextChanged = kFalse;
    return frmMain::TextEditor();
  }

  // Loads the program and presses Start.
  static void Play(const std::vector<std::string>& lines) {
    Load(lines);
    frmMain::mnuRunStart_Click();
  }

  static int RadiusAt(int z) {
    return Graphics::StockProfile.at(static_cast<std::size_t>(-z)).Radius;
  }
};

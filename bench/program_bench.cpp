// Whole programs and the decoder alone. Growth: the same program with 4 and 16 times the rows.

#include <QCoreApplication>
#include <benchmark/benchmark.h>
#include <string>
#include <string_view>

#include "debugger/run_commands.h"
#include "interpreter/decoder.h"
#include "interpreter/machine.h"
#include "interpreter/run_driver.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/layout.h"
#include "mainwindow/program_start.h"
#include "mainwindow/start_up.h"
#include "motion/player.h"
#include "motion/stock.h"
#include "motion/tool.h"
#include "platform/numbers.h"
#include "toollib/tool_folder.h"

namespace {

constexpr int kBlocks = 1'000;

// A staircase that is roughed again and again: rapid and feed moves, tapers and arcs.
std::string BlockText(int i) {
  const int z = i % 60;
  switch (i % 4) {
    case 0:
      return "N10 G00 X" + DecimalText(62 - i % 40) + " Z" + DecimalText(2 - z);
    case 1:
      return "N20 G01 W-2.5 F0.2";
    case 2:
      return "N30 G01 U1.5 W-1";
    default:
      return "N40 G03 U4 W-2 R2";
  }
}

void LoadProgram(int blocks) {
  // The rows are filled past the editor, which takes no text as long as 16,000 blocks.
  frmMain::TextEditor().SetText("[BILLET X60 Z80");
  frmMain::DebugWindow.SetRows(blocks + 1);
  frmMain::DebugWindow.SetTextMatrix(0, frmMain::kTextColumn, "[BILLET X60 Z80");
  for (int i = 0; i < blocks; ++i) {
    frmMain::DebugWindow.SetTextMatrix(i + 1, frmMain::kTextColumn, BlockText(i));
  }
}

void StartProgram() {
  frmMain::ResetToProgramStart();
  frmMain::Form_Load();
  // With both panes hidden the rows are filled only when the text has changed.
  frmMain::mnuViewTextEditor.Checked = false;
  frmMain::TextEditor().Visible = false;
  frmMain::ScaleWidth = 1000;
  frmMain::ScaleHeight = 703;
  frmMain::Form_Resize();
  frmMain::Slider.Value = SliderControl::kMax;
  frmMain::mnuToolsPlaySound.Checked = false;
}

void WholeProgram(benchmark::State& state) {
  StartProgram();
  const int blocks = kBlocks * static_cast<int>(state.range(0));
  LoadProgram(blocks);
  // A window takes what has changed at each picture.
  frmMain::picSim.Blt = [](const Raster& surface, const PixelRect& changed) {
    benchmark::DoNotOptimize(surface.Row(0));
    benchmark::DoNotOptimize(changed);
  };
  frmMain::EnableCommands("Pause,Stop", true);
  Graphics::LoadTool(GlobalVariables::ToolFolder() + "tool.bmp", frmMain::kDefaultToolWidth,
                     frmMain::kDefaultToolHeight);
  GCodes::PointsPlayed = 0;
  // The run alone: Start would fill the rows from the editor.
  for ([[maybe_unused]] auto iteration : state) {
    GlobalVariables::StopRequested = kFalse;
    Graphics::ClearSurface();
    ModCNC::RunProgram();
  }
  state.counters["blocks"] = benchmark::Counter(static_cast<double>(state.iterations()) * blocks,
                                                benchmark::Counter::kIsRate);
  state.counters["points"] =
      benchmark::Counter(static_cast<double>(GCodes::PointsPlayed), benchmark::Counter::kIsRate);
}
BENCHMARK(WholeProgram)->Arg(1)->Arg(4)->Arg(16)->Unit(benchmark::kMillisecond);

// G73 with 20 passes over a contour of so many rows.
void PatternCycle(benchmark::State& state) {
  StartProgram();
  std::string text =
      "[BILLET X60 Z80\r\nG00 X62 Z2\r\nG73 U20 W2 R20\r\nG73 P1000 Q2000 U0 W0\r\n"
      "N1000 G01 X20 Z0\r\n";
  const auto rows = static_cast<int>(state.range(0));
  for (int i = 2; i < rows; ++i) text += i % 2 == 0 ? "G01 U0.2 W-0.5\r\n" : "G01 W-0.5\r\n";
  text += "N2000 G01 X62";
  frmMain::TextEditor().SetText(text);
  frmMain::EnableCommands("Start", true);
  GCodes::PointsPlayed = 0;
  for ([[maybe_unused]] auto iteration : state) frmMain::mnuRunStart_Click();
  state.counters["points"] =
      benchmark::Counter(static_cast<double>(GCodes::PointsPlayed), benchmark::Counter::kIsRate);
}
BENCHMARK(PatternCycle)->Arg(20)->Arg(80)->Unit(benchmark::kMillisecond);

void DecodeAlone(benchmark::State& state) {
  StartProgram();
  ModCNC::ActiveG = -1;  // no executor
  for ([[maybe_unused]] auto iteration : state) {
    ModCNC::ExecuteBlock("N120 X24.5 Z-12.35 F0.2 S800 T2");
    benchmark::DoNotOptimize(ModCNC::TargetX);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(DecodeAlone);

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);  // knows the application folder
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

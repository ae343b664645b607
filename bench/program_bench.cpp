// Whole programs and the decoder alone. Growth: the same program with 4 and 16 times the rows.

#include <benchmark/benchmark.h>
#include <string>
#include <string_view>

#include "debugger/run_commands.h"
#include "interpreter/decoder.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/program_start.h"
#include "mainwindow/start_up.h"
#include "motion/player.h"
#include "motion/stock.h"
#include "platform/numbers.h"

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
  GlobalVariables::SimWidth = 1000;
  GlobalVariables::SimHeight = 640;
  Graphics::CreateSurface();
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
  GCodes::PointsPlayed = 0;
  for (auto _ : state) frmMain::mnuRunStart_Click();
  state.counters["blocks"] = benchmark::Counter(static_cast<double>(state.iterations()) * blocks,
                                                benchmark::Counter::kIsRate);
  state.counters["points"] =
      benchmark::Counter(static_cast<double>(GCodes::PointsPlayed), benchmark::Counter::kIsRate);
}
BENCHMARK(WholeProgram)->Arg(1)->Arg(4)->Arg(16)->Unit(benchmark::kMillisecond);

void DecodeAlone(benchmark::State& state) {
  StartProgram();
  ModCNC::ActiveG = -1;  // no executor
  for (auto _ : state) {
    ModCNC::ExecuteBlock("N120 X24.5 Z-12.35 F0.2 S800 T2");
    benchmark::DoNotOptimize(ModCNC::TargetX);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(DecodeAlone);

}  // namespace

BENCHMARK_MAIN();

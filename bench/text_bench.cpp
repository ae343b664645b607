// Everything done to a program text, at the largest size the editor takes and below, with a plain
// scan over the same text as the peer of the check.

#include <algorithm>
#include <benchmark/benchmark.h>
#include <string>

#include "debugger/debug_grid.h"
#include "editor/colouring.h"
#include "editor/reformat.h"
#include "editor/syntax_check.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/program_start.h"
#include "mainwindow/start_up.h"
#include "platform/numbers.h"

namespace {

// A program of at most `length` characters, comments among its blocks, no line end at its end.
std::string ProgramOf(std::size_t length) {
  std::string text = "[BILLET X60 Z80";
  for (int i = 10;; i += 10) {
    const std::string line = "\r\nN" + DecimalText(i) + " G01 X" + DecimalText(20 + i % 40) +
                             ".5 Z-" + DecimalText(i % 70) + (i % 50 == 0 ? " [next step" : "");
    if (text.size() + line.size() > length) return text;
    text += line;
  }
}

void Start() {
  frmMain::ResetToProgramStart();
  frmMain::Form_Load();
}

void PlainScan(benchmark::State& state) {
  const std::string text = ProgramOf(static_cast<std::size_t>(state.range(0)));
  for ([[maybe_unused]] auto iteration : state) {
    benchmark::DoNotOptimize(std::count_if(text.begin(), text.end(), [](char c) {
      return std::string_view("FGIKMNPQRSTUWXZ0123456789.-+").find(c) != std::string_view::npos;
    }));
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void Check(benchmark::State& state) {
  Start();
  const std::string text = ProgramOf(static_cast<std::size_t>(state.range(0)));
  frmMain::TextEditor().SetText(text);
  for ([[maybe_unused]] auto iteration : state) {
    if (frmMain::CheckSyntax(frmMain::TextEditor())) state.SkipWithError("the program has a fault");
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void Colour(benchmark::State& state) {
  Start();
  const std::string text = ProgramOf(static_cast<std::size_t>(state.range(0)));
  for ([[maybe_unused]] auto iteration : state) {
    frmMain::TextBuffer().SetText(text);
    frmMain::ColourText();
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

// Includes the colouring, as at each Start.
void Reformat(benchmark::State& state) {
  Start();
  const std::string text = ProgramOf(static_cast<std::size_t>(state.range(0)));
  frmMain::TextEditor().SetText(text);
  for ([[maybe_unused]] auto iteration : state) frmMain::ReformatText(frmMain::TextEditor());
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void FindBilletAtTheEnd(benchmark::State& state) {
  Start();
  frmMain::TextEditor().SetText(ProgramOf(static_cast<std::size_t>(state.range(0))).substr(15) +
                                "\r\n[BILLET X1 Z1");
  for ([[maybe_unused]] auto iteration : state)
    benchmark::DoNotOptimize(frmMain::TextEditor().Find("[BILLET"));
}

void FillRows(benchmark::State& state) {
  Start();
  std::string text;
  for (int i = 1; i < state.range(0); ++i) text += "G01 X20\r\n";
  frmMain::TextEditor().SetText(text);
  for ([[maybe_unused]] auto iteration : state) frmMain::FillDebugWindow();
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

#define AT_LENGTHS(name) \
  BENCHMARK(name)->Arg(8'191)->Arg(16'383)->Arg(32'766)->Unit(benchmark::kMicrosecond)
AT_LENGTHS(PlainScan);
AT_LENGTHS(Check);
AT_LENGTHS(Colour);
AT_LENGTHS(Reformat);
AT_LENGTHS(FindBilletAtTheEnd);
BENCHMARK(FillRows)->Arg(8'192)->Arg(32'767)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();

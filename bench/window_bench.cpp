// The main window as the user sees it: a run with its pictures, and the answer to Pause. Peers: the
// same number of repaints of the whole simulation area, and a run that shows nothing.

#include <QApplication>
#include <QTemporaryDir>
#include <QToolButton>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <memory>
#include <string>
#include <thread>

#include "debugger/run_commands.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/frm_main.h"
#include "motion/player.h"
#include "motion/stock.h"
#include "platform/host/desktop.h"
#include "platform/host/settings_store.h"
#include "settings/settings.h"

namespace {

using Clock = std::chrono::steady_clock;

// 20 cuts along a billet of 60 mm.
std::string Program() {
  std::string text = "[BILLET X50 Z60\r\n";
  for (int cut = 0; cut < 20; ++cut) {
    text += "G00 X" + std::to_string(48 - cut) + "\r\nG01 Z-50\r\nG00 Z2\r\n";
  }
  return text;
}

void PlayAtSlider(benchmark::State& state) {
  frmMain::TextEditor().SetText(Program());
  frmMain::Slider.Value = static_cast<int>(state.range(0));
  int frames = 0;
  const auto blt = frmMain::picSim.Blt;
  frmMain::picSim.Blt = [&](const Raster& surface, const PixelRect& changed) {
    ++frames;
    blt(surface, changed);
  };
  for ([[maybe_unused]] auto iteration : state) frmMain::mnuRunStart_Click();
  frmMain::picSim.Blt = blt;
  state.counters["frames"] = benchmark::Counter(frames, benchmark::Counter::kIsRate);
}
BENCHMARK(PlayAtSlider)->Arg(1)->Arg(10)->Unit(benchmark::kMillisecond)->UseRealTime();

void PlayWithoutPicture(benchmark::State& state) {
  frmMain::TextEditor().SetText(Program());
  for ([[maybe_unused]] auto iteration : state) frmMain::mnuRunRunToBreakpoint_Click();
}
BENCHMARK(PlayWithoutPicture)->Unit(benchmark::kMillisecond)->UseRealTime();

// One frame in which everything has changed.
void RepaintTheWholeArea(benchmark::State& state) {
  const Raster& surface = Graphics::StockDC.Read();
  for ([[maybe_unused]] auto iteration : state) {
    frmMain::picSim.Blt(surface, surface.Area());
    Desktop::Yield();
  }
}
BENCHMARK(RepaintTheWholeArea)->Unit(benchmark::kMicrosecond)->UseRealTime();

// From a press of Pause somewhere in a run to the closed button: the longest of 30.
void AnswerToPause(benchmark::State& state) {
  frmMain::TextEditor().SetText(Program());
  frmMain::Slider.Value = static_cast<int>(state.range(0));
  Clock::duration longest{};
  for ([[maybe_unused]] auto iteration : state) {
    int presses = 0;
    Clock::time_point pressed;
    std::jthread user([&](const std::stop_token& stop) {
      while (!stop.stop_requested()) {
        std::this_thread::sleep_for(std::chrono::milliseconds(37));
        const auto now = Clock::now();
        QMetaObject::invokeMethod(qApp, [&, now] {
          if (!frmMain::Toolbar.Buttons("Pause").Enabled) return;
          frmMain::mnuRunPause_Click();
          longest = std::max(longest, Clock::now() - now);
          frmMain::mnuRunStart_Click();
          if (++presses == 30) frmMain::mnuRunStop_Click();
        });
      }
    });
    frmMain::mnuRunStart_Click();
    user.request_stop();
  }
  state.counters["longest_ms"] = std::chrono::duration<double, std::milli>(longest).count();
}
BENCHMARK(AnswerToPause)->Arg(-10)->Arg(0)->Arg(10)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  const QTemporaryDir settings;
  qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
  qputenv("XDG_STATE_HOME", settings.path().toUtf8());
  const QApplication application(argc, argv);
  GlobalVariables::LoadSettings();
  SaveSetting(GlobalVariables::kApplication, "General", "SplashScreen", "0");
  frmMain::Window window;
  window.Load();
  Desktop::Yield();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

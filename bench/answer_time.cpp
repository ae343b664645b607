// How long the window keeps a user waiting in a run: the longest time from one yield to the next,
// and from a press of Stop at a random moment to the end of the run. At each place of the slider,
// in a cycle that cuts, in one that moves nothing, and on the way to a break point. The figures are
// in docs/reliability.md.

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QTemporaryDir>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <optional>
#include <random>
#include <string>
#include <thread>

#include "debugger/run_commands.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/frm_main.h"
#include "mainwindow/view_toggles.h"
#include "platform/host/desktop.h"
#include "platform/host/settings_store.h"
#include "settings/settings.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kStops = 20;
// The latest moment of a Stop, in milliseconds after the first yield.
constexpr int kLatestStop = 100;

std::string Repeated(const std::string& head, const std::string& row, const std::string& tail,
                     int count) {
  std::string text = head;
  for (int i = 0; i < count; ++i) text += row;
  return text + tail;
}

struct Case {
  const char* name;
  std::string program;
  void (*start)();
};

const Case kCases[] = {
    {"cycle that cuts",
     "[BILLET X50 Z60\r\nG73 U8 W2 R3276\r\nG73 P10 Q30 U0 W0\r\n"
     "N10 G01 X44 Z1\r\nN20 Z-40\r\nN30 X60",
     frmMain::mnuRunStart_Click},
    {"cycle of 3,276 passes over 7,000 rows",
     Repeated("[BILLET X50 Z60\r\nG73 U0 W0 R3276\r\nG73 P10 Q20\r\nN10 G04\r\n", "S1\r\n",
              "N20 S1", 7'000),
     frmMain::mnuRunStart_Click},
    {"arcs of R3000 to a break point",
     Repeated("[BILLET X3000 Z3000\r\nG00 X100 Z0", "\r\nG02 X20 Z-2000 R-3000\r\nX100 Z0 R-3000",
              "", 790),
     frmMain::mnuRunRunToBreakpoint_Click},
};

double Milliseconds(Clock::duration time) {
  return std::chrono::duration<double, std::milli>(time).count();
}

// In a run, from Start to the first yield, and from one to the next.
Clock::duration longestStart;
Clock::duration longestGap;
std::optional<Clock::time_point> start;
std::optional<Clock::time_point> lastYield;
// The run has yielded.
std::atomic_flag isHeard;

void HearYield() {
  if (!start) return;
  const auto now = Clock::now();
  auto& longest = lastYield ? longestGap : longestStart;
  longest = std::max(longest, now - lastYield.value_or(*start));
  lastYield = now;
  isHeard.test_and_set();
  isHeard.notify_one();
}

// The longest time from Stop to the end of the run.
Clock::duration StopAtRandom(const Case& run, std::mt19937& random) {
  Clock::duration longest{};
  for (int i = 0; i < kStops; ++i) {
    // A grid that is in view would keep the rows of the run before.
    if (!frmMain::mnuViewTextEditor.Checked) frmMain::mnuViewTextEditor_Click();
    frmMain::TextEditor().SetText(run.program);
    frmMain::TextChanged = kTrue;
    Desktop::Yield();
    auto pressed = Clock::time_point::max();
    const std::chrono::milliseconds moment(random() % kLatestStop);
    isHeard.clear();
    std::jthread user([&pressed, moment] {
      isHeard.wait(false);
      std::this_thread::sleep_for(moment);
      const auto now = Clock::now();
      QMetaObject::invokeMethod(qApp, [&pressed, now] {
        pressed = now;
        frmMain::mnuRunStop_Click();
      });
    });
    lastYield = {};
    start = Clock::now();
    run.start();
    const auto end = Clock::now();
    start = {};
    user.join();
    // A press behind the end of the run is heard here.
    Desktop::Yield();
    if (pressed < end) longest = std::max(longest, end - pressed);
  }
  return longest;
}

}  // namespace

int main(int argc, char** argv) {
  const QTemporaryDir settings;
  qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
  const QApplication application(argc, argv);
  GlobalVariables::LoadSettings();
  SaveSetting(GlobalVariables::kApplication, "General", "SplashScreen", "0");
  frmMain::Window window;
  window.Load();
  Desktop::Yield();
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake,
                   HearYield);
  std::mt19937 random(1);
  for (const Case& run : kCases) {
    std::printf("%s, ms, the longest of %d runs\nslider  to first yield  between  Stop to Idle\n",
                run.name, kStops);
    for (int place = SliderControl::kMin; place <= SliderControl::kMax; ++place) {
      frmMain::Slider.Value = place;
      longestStart = longestGap = {};
      const auto stop = StopAtRandom(run, random);
      std::printf("%6d  %14.1f  %7.1f  %12.1f\n", place, Milliseconds(longestStart),
                  Milliseconds(longestGap), Milliseconds(stop));
      std::fflush(stdout);
    }
  }
  return 0;
}

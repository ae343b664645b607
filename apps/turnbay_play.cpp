// Plays a part program without a window: for scripts, batch checks and tests.

#include <QCoreApplication>
#include <cstdio>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

#include "apps/play_options.h"
#include "apps/play_report.h"
#include "debugger/run_commands.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/layout.h"
#include "mainwindow/start_up.h"
#include "mainwindow/view_toggles.h"
#include "motion/stock.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "platform/settings_store.h"
#include "platform/text.h"
#include "platform/windowless/windowless.h"
#include "settings/settings.h"
#include "toollib/tool_folder.h"

namespace {

constexpr int kPlayed = 0;
constexpr int kNotPlayable = 1;
constexpr int kFileTrouble = 2;

constexpr int kMaxRows = 32'767;

int resumes = 0;

void SayTrouble(const std::string& what) {
  std::fprintf(stderr, "turnbay-play: %s\n", what.c_str());
}

bool FillRows(const std::string& text) {
  const std::vector<std::string_view> lines = Split(text, kLineEnd);
  if (lines.size() > kMaxRows) return false;
  frmMain::DebugWindow.SetRows(static_cast<int>(lines.size()));
  for (std::size_t i = 0; i < lines.size(); ++i) {
    frmMain::DebugWindow.SetTextMatrix(static_cast<int>(i), frmMain::kTextColumn,
                                       std::string(lines[i]));
  }
  return true;
}

bool LoadProgram(const std::string& path) {
  std::string reason;
  const auto bytes = ReadFile(path, reason);
  if (!bytes) {
    SayTrouble(reason);
    return false;
  }
  const std::string text = WithCrLf(DecodeProgram(*bytes).text);
  if (!FillRows(text)) {
    SayTrouble("The file \"" + path + "\" has more than " + DecimalText(kMaxRows) +
               " lines, the most that a run can play.");
    return false;
  }
  frmMain::TextEditor().SetText(text);
  return true;
}

void ResumeRun() {
  ++resumes;
  frmMain::mnuRunStart_Click();
}

void ShowProgress(int row) {
  std::fprintf(stderr, "\rrow %d of %d", row, frmMain::ProgressBar.Max.Get());
}

// With every other view off the simulation area is as large as the window, and stays so.
void ShowSimulationAlone() {
  for (const std::string_view view : {"Toolbar", "StatusBar", "TextEditor", "DebugWindow"}) {
    SaveSetting(GlobalVariables::kApplication, "ViewOptions", view, frmMain::FlagText(false));
  }
}

void Play(const PlayOptions& options) {
  ShowSimulationAlone();
  frmMain::ScaleWidth = options.width;
  frmMain::ScaleHeight = options.height;
  frmMain::Form_Load();
  frmMain::Form_Resize();
  GlobalVariables::SetToolFolder(options.tools);
  frmMain::Slider.Value = SliderControl::kMax;
  frmMain::mnuToolsPlaySound.Checked = false;
  Windowless::SetHooks({}, ResumeRun);
  const bool showsProgress = isatty(STDERR_FILENO) != 0;
  if (showsProgress) frmMain::ProgressBar.Value.Watch(ShowProgress);
  frmMain::EnableCommands("Start", true);
  if (options.runToBreakpoint) {
    frmMain::mnuRunRunToBreakpoint_Click();
  } else {
    frmMain::mnuRunStart_Click();
  }
  if (showsProgress) std::fputc('\n', stderr);
}

// Where the billet line stands, or should stand, as LINE:COLUMN.
std::string BilletPlace(const std::string& text) {
  const std::ptrdiff_t found = frmMain::TextEditor().Find("[BILLET");
  if (found < 0) return "1:1";
  const std::string before = text.substr(0, static_cast<std::size_t>(found));
  const std::vector<std::string_view> lines = Split(before, kLineEnd);
  return DecimalText(static_cast<int>(lines.size())) + ':' +
         DecimalText(static_cast<int>(lines.back().size()) + 1);
}

bool WriteFile(const std::string& path, std::string_view bytes) {
  if (path.empty()) return true;
  if (path == "-") {
    return std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size() &&
           std::fflush(stdout) == 0;
  }
  std::string reason;
  if (ReplaceFile(path, bytes, reason)) return true;
  SayTrouble(reason);
  return false;
}

std::string_view View(const QByteArray& bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

bool WriteResults(const PlayOptions& options, const PlayOutcome& outcome) {
  bool written = true;
  if (!options.picture.empty()) {
    written &= WriteFile(options.picture, View(SurfacePng(Graphics::StockDC.Read())));
  }
  if (!options.profile.empty()) written &= WriteFile(options.profile, ProfileCsv());
  if (!options.report.empty()) written &= WriteFile(options.report, View(ReportJson(outcome)));
  return written;
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const ParsedOptions parsed = ParsePlayOptions(QCoreApplication::arguments());
  if (!parsed.options) {
    std::fputs(qPrintable(parsed.message), parsed.exitStatus == 0 ? stdout : stderr);
    return parsed.exitStatus;
  }
  const PlayOptions& options = *parsed.options;
  if (!LoadProgram(options.program)) return kFileTrouble;
  Play(options);

  // Every run that found its billet has made a profile.
  const bool hasBillet = !Graphics::StockProfile.empty();
  const std::string text = frmMain::TextEditor().Text();
  if (!hasBillet) {
    std::fprintf(stderr, "%s:%s: Billet Size Not Found\n", options.program.c_str(),
                 BilletPlace(text).c_str());
  }
  if (!WriteResults(options, {hasBillet ? "done" : "no billet", text, resumes})) {
    return kFileTrouble;
  }
  return hasBillet ? kPlayed : kNotPlayable;
}

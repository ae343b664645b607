// Plays a part program without a window: for scripts, batch checks and tests.

#include <QCoreApplication>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <string_view>
#include <unistd.h>

#include "apps/play_options.h"
#include "apps/play_report.h"
#include "apps/turned_part_picture.h"
#include "debugger/run_commands.h"
#include "editor/program_file.h"
#include "editor/reformat.h"
#include "editor/source_place.h"
#include "editor/syntax_check.h"
#include "interpreter/machine.h"
#include "interpreter/run_driver.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/layout.h"
#include "mainwindow/program_start.h"
#include "mainwindow/start_up.h"
#include "mainwindow/view_toggles.h"
#include "motion/stock.h"
#include "platform/code_page.h"
#include "platform/host/files.h"
#include "platform/host/settings_store.h"
#include "platform/numbers.h"
#include "platform/windowless/windowless.h"
#include "settings/settings.h"
#include "toollib/tool_folder.h"

namespace {

using GlobalVariables::RunOutcome;

constexpr int kPlayed = 0;
constexpr int kNotPlayable = 1;
constexpr int kFileTrouble = 2;

int resumes = 0;

void SayTrouble(const std::string& what) {
  std::fprintf(stderr, "turnbay-play: %s\n", what.c_str());
}

// With every other view off the simulation area is as large as the window, and stays so.
void ShowSimulationAlone() {
  for (const std::string_view view : {"Toolbar", "StatusBar", "TextEditor", "DebugWindow"}) {
    SaveSetting(GlobalVariables::kApplication, "ViewOptions", view, frmMain::FlagText(false));
  }
}

void StartUp(const PlayOptions& options) {
  frmMain::ResetToProgramStart();
  ShowSimulationAlone();
  frmMain::ScaleWidth = options.size.width;
  frmMain::ScaleHeight = options.size.height;
  frmMain::Form_Load();
  frmMain::Form_Resize();
  GlobalVariables::SetToolFolder(options.tools);
  frmMain::Slider.Value = SliderControl::kMax;
  frmMain::mnuToolsPlaySound.Checked = false;
}

bool LoadProgram(const std::string& path) {
  std::string reason;
  if (frmMain::LoadProgram(path, reason)) return true;
  SayTrouble(reason);
  return false;
}

void ResumeRun() {
  ++resumes;
  frmMain::mnuRunStart_Click();
}

void ShowProgress(int row) {
  std::fprintf(stderr, "\rrow %d of %d", row, frmMain::ProgressBar.Max.Get());
}

void Play(bool runToBreakpoint) {
  Windowless::SetHooks({}, ResumeRun);
  const bool showsProgress = isatty(STDERR_FILENO) != 0;
  if (showsProgress) frmMain::ProgressBar.Value.Watch(ShowProgress);
  if (runToBreakpoint) {
    frmMain::mnuRunRunToBreakpoint_Click();
  } else {
    frmMain::mnuRunStart_Click();
  }
  if (showsProgress) std::fputc('\n', stderr);
}

bool Print(std::string_view bytes) {
  if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size() &&
      std::fflush(stdout) == 0) {
    return true;
  }
  SayTrouble(std::string("Standard output can't be written: ") + std::strerror(errno) + '.');
  return false;
}

bool WriteFile(const std::string& path, std::string_view bytes) {
  if (path == "-") return Print(bytes);
  std::string reason;
  if (ReplaceFile(path, bytes, reason)) return true;
  SayTrouble(reason);
  return false;
}

bool PrintProgram() {
  const std::string& text = frmMain::TextEditor().Text();
  return Print(frmMain::DocumentIsUtf8 ? CodePageToUtf8(text) : text);
}

// Tells where in the file the last message belongs. `offset` counts in the text as played.
void SayPlace(const PlayOptions& options, std::string_view source, std::size_t offset) {
  const frmMain::TextPlace place =
      frmMain::FindSourcePlace(source, frmMain::TextEditor().Text(), offset);
  std::fprintf(stderr, "%s:%d:%d: %s\n", options.program.c_str(), place.line, place.column,
               Windowless::Messages().back().text.c_str());
}

// Where the billet line stands, or should stand.
std::size_t BilletOffset() {
  const std::ptrdiff_t found = frmMain::TextEditor().Find(ModCNC::kBilletMark);
  return found < 0 ? 0 : static_cast<std::size_t>(found);
}

std::string_view View(const QByteArray& bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

bool WriteTurnedPart(const PlayOptions& options) {
  const auto [width, height] = options.turnedPartSize;
  Raster picture;
  std::string reason;
  if (!DrawTurnedPart(width, height, picture, reason)) {
    SayTrouble(options.turnedPart + ": " + reason);
    return false;
  }
  return WriteFile(options.turnedPart, View(RasterPng(picture)));
}

bool WriteResults(const PlayOptions& options, const PlayOutcome& outcome) {
  bool written = true;
  if (!options.picture.empty()) {
    written &= WriteFile(options.picture, View(RasterPng(Graphics::StockDC.Read())));
  }
  if (!options.profile.empty()) written &= WriteFile(options.profile, ProfileCsv());
  if (!options.report.empty()) written &= WriteFile(options.report, View(ReportJson(outcome)));
  // Last: it alone asks for OpenGL, which some machines lack.
  if (!options.turnedPart.empty()) written &= WriteTurnedPart(options);
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
  if (!options.tools.empty() && !std::filesystem::is_directory(options.tools)) {
    SayTrouble("The tool folder \"" + options.tools + "\" can't be found.");
    return kFileTrouble;
  }
  StartUp(options);
  if (!LoadProgram(options.program)) return kFileTrouble;
  const std::string source = frmMain::TextEditor().Text();

  PlayOutcome outcome;
  if (options.check || options.reformat) {
    frmMain::ReformatText(frmMain::TextEditor());
    if (options.reformat && !PrintProgram()) return kFileTrouble;
    if (options.check && frmMain::CheckSyntax(frmMain::TextEditor())) {
      outcome.run = RunOutcome::SyntaxFault;
    }
  } else {
    Play(options.runToBreakpoint);
    outcome.run = GlobalVariables::LastRun;
  }
  const bool hasFault = outcome.run == RunOutcome::SyntaxFault;
  const bool lacksBillet = outcome.run == RunOutcome::NoBillet;
  if (hasFault) SayPlace(options, source, frmMain::TextEditor().SelStart());
  if (lacksBillet) SayPlace(options, source, BilletOffset());
  outcome.text = frmMain::TextEditor().Text();
  outcome.resumes = resumes;
  if (!WriteResults(options, outcome)) return kFileTrouble;
  return hasFault || lacksBillet ? kNotPlayable : kPlayed;
}

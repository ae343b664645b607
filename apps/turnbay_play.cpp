// Plays a part program without a window: for scripts, batch checks and tests.

#include <QCoreApplication>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

#include "apps/play_inspection.h"
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
#include "platform/posix/error_words.h"
#include "platform/text.h"
#include "platform/windowless/windowless.h"
#include "settings/settings.h"
#include "toollib/tool_folder.h"

namespace {

using GlobalVariables::RunOutcome;

constexpr int kPlayed = 0;
constexpr int kNotPlayable = 1;
constexpr int kFileTrouble = 2;
constexpr int kFindings = 3;

int resumes = 0;

// Whole, also where the text holds a NUL.
void Say(const std::string& text) {
  const std::string line = text + '\n';
  std::fwrite(line.data(), 1, line.size(), stderr);
}

void SayTrouble(const std::string& what) {
  Say("turnbay-play: " + what);
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
  const auto bytes = path == "-" ? ReadStandardInput(reason) : ReadFile(path, reason);
  if (bytes && frmMain::ShowProgram(path, *bytes, reason)) return true;
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
  SayTrouble("Standard output can't be written: " + ErrorWords(errno) + '.');
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

// As FILE:LINE:COLUMN: text.
void SayAt(const PlayOptions& options, const frmMain::TextPlace& place, const std::string& text) {
  Say(options.program + ':' + DecimalText(place.line) + ':' + DecimalText(place.column) + ": " +
      text);
}

// Where in the file stands what is at `offset` of the text as played.
frmMain::TextPlace PlaceOf(std::string_view source, std::size_t offset) {
  return frmMain::FindSourcePlace(source, frmMain::TextEditor().Text(), offset);
}

// Where the billet line stands, or should stand.
std::size_t BilletOffset() {
  const std::ptrdiff_t found = frmMain::TextEditor().Find(ModCNC::kBilletMark);
  return found < 0 ? 0 : static_cast<std::size_t>(found);
}

// Of a billet line that leaves a size open.
std::vector<PlayWarning> BilletWarnings(std::string_view source) {
  const std::string_view text = frmMain::TextEditor().Text();
  const std::size_t mark = text.find(ModCNC::kBilletMark);
  if (mark == std::string_view::npos) return {};
  const std::size_t lineEnd = text.rfind(kLineEnd, mark);
  const std::size_t row = lineEnd == std::string_view::npos ? 0 : lineEnd + kLineEnd.size();
  const auto billet = ModCNC::ParseBillet(text.substr(row, text.find(kLineEnd, mark) - row));
  std::vector<PlayWarning> warnings;
  const auto warn = [&](const char* size) {
    warnings.push_back({std::string("The billet line names no ") + size + ", which stays 0.",
                        PlaceOf(source, mark)});
  };
  if (billet && !billet->diameter) warn("diameter (X)");
  if (billet && !billet->length) warn("length (Z)");
  return warnings;
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

// Writes what `make` makes, if it was asked for. What there is no memory for is told.
template <class Make>
bool WriteResult(const std::string& path, Make make) {
  if (path.empty()) return true;
  try {
    return make();
  } catch (const std::bad_alloc&) {
    SayTrouble("The file \"" + path + "\" can't be made: there isn't enough memory.");
    return false;
  }
}

bool WriteResults(const PlayOptions& options, const PlayOutcome& outcome) {
  bool written = WriteResult(options.picture, [&] {
    return WriteFile(options.picture, View(RasterPng(Graphics::StockDC.Read())));
  });
  written &= WriteResult(options.profile, [&] { return WriteFile(options.profile, ProfileCsv()); });
  written &= WriteResult(options.report,
                         [&] { return WriteFile(options.report, View(ReportJson(outcome))); });
  // Last: it alone asks for OpenGL, which some machines lack.
  written &= WriteResult(options.turnedPart, [&] { return WriteTurnedPart(options); });
  return written;
}

// Tells the findings and what was done. Returns whether there are findings.
bool TellInspection(const PlayOptions& options, const Inspection::Inspector& inspector,
                    std::string_view source, PlayOutcome& outcome) {
  const auto findings = PlaceFindings(inspector, outcome.warnings, source);
  // They are findings now.
  outcome.warnings.clear();
  outcome.inspection = InspectionJson(findings, inspector.Done());
  for (const PlacedFinding& finding : findings) {
    SayAt(options, finding.place, "warning: " + finding.text);
  }
  return !findings.empty();
}

int Run(const PlayOptions& options) {
  StartUp(options);
  if (!LoadProgram(options.program)) return kFileTrouble;
  const std::string source = frmMain::TextEditor().Text();

  PlayOutcome outcome;
  std::optional<Inspection::Inspector> inspector;
  if (options.inspect) inspector.emplace(options.rapidRate);
  if (options.check || options.reformat) {
    frmMain::ReformatText(frmMain::TextEditor());
    if (options.reformat && !PrintProgram()) return kFileTrouble;
    if (options.check && frmMain::CheckSyntax(frmMain::TextEditor())) {
      outcome.run = RunOutcome::SyntaxFault;
    }
  } else {
    Play(options.runToBreakpoint);
    outcome.run = GlobalVariables::LastRun;
    if (inspector) inspector->Finish();
  }
  const bool hasFault = outcome.run == RunOutcome::SyntaxFault;
  bool hasFindings = false;
  const bool lacksBillet = outcome.run == RunOutcome::NoBillet;
  if (hasFault || lacksBillet) {
    const std::size_t offset = hasFault ? frmMain::TextEditor().SelStart() : BilletOffset();
    SayAt(options, PlaceOf(source, offset), Windowless::Messages().back().text);
  } else {
    outcome.warnings = BilletWarnings(source);
    if (inspector) hasFindings = TellInspection(options, *inspector, source, outcome);
  }
  for (const auto& [text, place] : outcome.warnings) SayAt(options, place, "warning: " + text);
  // A fault has been shown in the editor, which takes its place from the simulation area.
  if (frmMain::mnuViewTextEditor.Checked) frmMain::mnuViewTextEditor_Click();
  // A message has told that there is no memory for it.
  if (Graphics::StockDC.Width() != options.size.width) return kFileTrouble;
  outcome.text = frmMain::TextEditor().Text();
  outcome.resumes = resumes;
  if (!WriteResults(options, outcome)) return kFileTrouble;
  if (hasFault || lacksBillet) return kNotPlayable;
  if (inspector) Say(MachiningLine(inspector->Done()));
  return hasFindings ? kFindings : kPlayed;
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const ParsedOptions parsed = ParsePlayOptions(QCoreApplication::arguments());
  if (!parsed.options) {
    const std::string message = parsed.message.toStdString();
    if (parsed.exitStatus == 0) return Print(message) ? kPlayed : kFileTrouble;
    std::fputs(message.c_str(), stderr);
    return parsed.exitStatus;
  }
  const PlayOptions& options = *parsed.options;
  if (!options.tools.empty() && !std::filesystem::is_directory(options.tools)) {
    SayTrouble("The tool folder \"" + options.tools + "\" can't be found.");
    return kFileTrouble;
  }
  try {
    return Run(options);
  } catch (const std::bad_alloc&) {
    SayTrouble("There isn't enough memory. Ask for a smaller --size.");
    return kFileTrouble;
  }
}

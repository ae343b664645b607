// Plays a part program without a window: for scripts, batch checks and tests.

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

#include "apps/difference_picture.h"
#include "apps/play_inspection.h"
#include "apps/play_options.h"
#include "apps/play_report.h"
#include "apps/turned_part_picture.h"
#include "debugger/run_commands.h"
#include "editor/program_file.h"
#include "editor/reformat.h"
#include "editor/source_place.h"
#include "editor/syntax_check.h"
#include "inspection/comparison.h"
#include "inspection/profile_csv.h"
#include "inspection/section.h"
#include "inspection/solid.h"
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

// What can't be read is told.
std::optional<std::string> ReadInput(const std::string& path) {
  std::string reason;
  auto bytes = path == "-" ? ReadStandardInput(reason) : ReadFile(path, reason);
  if (!bytes) SayTrouble(reason);
  return bytes;
}

bool ShowProgram(const std::string& path, std::string_view bytes) {
  std::string reason;
  if (frmMain::ShowProgram(path, bytes, reason)) return true;
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

void SayComparison(const PlayOptions& options, const Inspection::Comparison& comparison) {
  const std::string text = Inspection::ComparisonText(comparison, options.program, options.compare);
  std::fwrite(text.data(), 1, text.size(), stderr);
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

bool WriteSolid(const PlayOptions& options) {
  std::string reason;
  const auto stl = Inspection::SolidStl(Graphics::StockProfile, reason);
  if (!stl) SayTrouble(options.solid + ": " + reason);
  return stl && WriteFile(options.solid, *stl);
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

bool WriteResults(const PlayOptions& options, const PlayOutcome& outcome,
                  const std::optional<Inspection::Part>& reference) {
  bool written = WriteResult(options.picture, [&] {
    return WriteFile(options.picture, View(RasterPng(Graphics::StockDC.Read())));
  });
  written &= WriteResult(options.profile, [&] {
    return WriteFile(options.profile, Inspection::ProfileCsv(Graphics::StockProfile));
  });
  if (outcome.comparison) {
    written &= WriteResult(options.difference, [&] {
      const QByteArray png =
          DifferencePng(Graphics::StockProfile, reference->profile, *outcome.comparison);
      return WriteFile(options.difference, View(png));
    });
  }
  if (outcome.run == RunOutcome::Played) {
    written &= WriteResult(options.solid, [&] { return WriteSolid(options); });
    written &= WriteResult(options.section, [&] {
      return WriteFile(options.section, Inspection::SectionSvg(Graphics::StockProfile));
    });
  }
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

// What message boxes have told. The last one, why the program can't be played, gets its place in
// the file; false when it can be played.
bool TellMessages(const PlayOptions& options, std::string_view source, RunOutcome run) {
  const bool hasFault = run == RunOutcome::SyntaxFault;
  const bool isPlayable = !hasFault && run != RunOutcome::NoBillet;
  auto messages = Windowless::Messages();
  const std::string fault = isPlayable ? "" : messages.back().text;
  if (!isPlayable) messages.pop_back();
  for (const auto& [text, style, title] : messages) {
    std::string line = options.program + ": ";
    if (!title.empty()) line += title + ' ';
    Say(line += text);
  }
  if (isPlayable) return false;
  const std::size_t offset = hasFault ? frmMain::TextEditor().SelStart() : BilletOffset();
  SayAt(options, PlaceOf(source, offset), fault);
  return true;
}

Inspection::Part PlayedPart() {
  return {Graphics::StockProfile, GlobalVariables::BilletX};
}

// What the part is compared with. Why there is none is told.
std::optional<Inspection::Part> ReadReference(const PlayOptions& options) {
  const auto bytes = ReadInput(options.compare);
  if (!bytes) return std::nullopt;
  if (Inspection::IsProfileCsv(*bytes)) {
    std::string reason;
    const auto profile = Inspection::ParseProfileCsv(*bytes, reason);
    if (profile) return Inspection::Part{*profile};
    SayTrouble(options.compare + ": " + reason);
    return std::nullopt;
  }
  PlayOptions reference = options;
  reference.program = options.compare;
  StartUp(reference);
  if (!ShowProgram(reference.program, *bytes)) return std::nullopt;
  const std::string source = frmMain::TextEditor().Text();
  Play(reference.runToBreakpoint);
  if (TellMessages(reference, source, GlobalVariables::LastRun)) return std::nullopt;
  // What went wrong within it has been told, and isn't the program's.
  Windowless::ForgetMessages();
  resumes = 0;
  return PlayedPart();
}

int Run(const PlayOptions& options) {
  std::optional<Inspection::Part> reference;
  if (!options.compare.empty()) {
    reference = ReadReference(options);
    if (!reference) return kFileTrouble;
  }
  StartUp(options);
  const auto bytes = ReadInput(options.program);
  if (!bytes || !ShowProgram(options.program, *bytes)) return kFileTrouble;
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
  const bool isPlayable = !TellMessages(options, source, outcome.run);
  bool hasFindings = false;
  if (isPlayable) {
    outcome.warnings = BilletWarnings(source);
    if (inspector) hasFindings = TellInspection(options, *inspector, source, outcome);
    if (reference) {
      outcome.comparison = Inspection::Compare(PlayedPart(), *reference, options.tolerance);
      hasFindings |= !outcome.comparison->IsWithin();
    }
  }
  for (const auto& [text, place] : outcome.warnings) SayAt(options, place, "warning: " + text);
  // A fault has been shown in the editor, which takes its place from the simulation area.
  if (frmMain::mnuViewTextEditor.Checked) frmMain::mnuViewTextEditor_Click();
  // A message has told that there is no memory for it.
  if (Graphics::StockDC.Width() != options.size.width) return kFileTrouble;
  outcome.text = frmMain::TextEditor().Text();
  outcome.resumes = resumes;
  if (outcome.comparison) SayComparison(options, *outcome.comparison);
  if (!WriteResults(options, outcome, reference)) return kFileTrouble;
  if (!isPlayable) return kNotPlayable;
  if (inspector) Say(options.program + ": " + MachiningLine(inspector->Done()));
  return hasFindings ? kFindings : kPlayed;
}

QStringList Arguments(int argc, char** argv) {
  QStringList arguments;
  for (int i = 0; i < argc; ++i) arguments.append(QString::fromLocal8Bit(argv[i]));
  return arguments;
}

// Text in a picture needs fonts, which only an application of windows has; none is ever shown.
std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv, bool drawsText) {
  if (!drawsText) return std::make_unique<QCoreApplication>(argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // A session without a folder for run-time files is nothing that the user has to hear of.
  QLoggingCategory::setFilterRules("default.warning=false");
  return std::make_unique<QGuiApplication>(argc, argv);
}

}  // namespace

int main(int argc, char** argv) {
  const ParsedOptions parsed = ParsePlayOptions(Arguments(argc, argv));
  if (!parsed.options) {
    const std::string message = parsed.message.toStdString();
    if (parsed.exitStatus == 0) return Print(message) ? kPlayed : kFileTrouble;
    std::fputs(message.c_str(), stderr);
    return parsed.exitStatus;
  }
  const PlayOptions& options = *parsed.options;
  const auto application = MakeApplication(argc, argv, !options.difference.empty());
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

// The transcripts in tests/data/sessions: what a user does, a row each, and below it what is then
// to be seen, kept or lost, as far as it has changed. With TURNBAY_WRITE_GOLDEN=1 the latter is
// written anew.

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <sstream>

#include "debugger/debug_grid.h"
#include "debugger/row_edit.h"
#include "debugger/run_commands.h"
#include "editor/documents.h"
#include "editor/editor_events.h"
#include "editor/recovery_offer.h"
#include "editor/recovery_text.h"
#include "editor/reformat.h"
#include "interpreter/decoder.h"
#include "interpreter/machine.h"
#include "mainwindow/command.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/layout.h"
#include "mainwindow/program_start.h"
#include "mainwindow/start_up.h"
#include "mainwindow/view_toggles.h"
#include "motion/player.h"
#include "motion/stock.h"
#include "platform/host/settings_store.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "settings/options.h"
#include "settings/settings.h"
#include "tests/fakes/fakes.h"
#include "tests/fakes/shown.h"
#include "tests/session_file.h"
#include "toollib/tool_files.h"

using namespace frmMain;
using namespace GlobalVariables;
using Fakes::world;

namespace {

using Words = std::vector<std::string>;

// What has been seen since the row began, a line each.
std::vector<std::string> seen;
Shown before;
int picturesShown = 0;
std::int64_t playedBefore = 0;
int yieldsBefore = 0;

std::int16_t Number16(std::string_view word) {
  return ClipToInt16(Number(word));
}

// What has changed since the last look.
void Look() {
  Shown now = LookAround();
  for (const auto& entry : now) {
    const auto same = std::ranges::find(before, entry.first, &Shown::value_type::first);
    if (same != before.end() && *same == entry) continue;
    seen.push_back(entry.first + ": " + entry.second);
  }
  before = std::move(now);
}

void Hear(const std::string& what) {
  if (what.starts_with("stores RecentFilePaths")) return;
  if (what.starts_with("box") || what.starts_with("notification")) Look();
  seen.push_back(what);
}

// What was played and shown since the last row, with the pauses between.
void TellPace() {
  std::ostringstream pace;
  pace << "played: " << GCodes::PointsPlayed - playedBefore << " points, " << picturesShown
       << " pictures, " << world.yields - yieldsBefore << " yields";
  for (const auto& [length, count] : world.sleeps) {
    pace << ", " << count << " x " << length << " ms";
  }
  if (!pace.str().starts_with("played: 0 points, 0 pictures, 0 ")) seen.push_back(pace.str());
  playedBefore = GCodes::PointsPlayed;
  yieldsBefore = world.yields;
  world.sleeps.clear();
  picturesShown = 0;
}

void WatchPicture() {
  picSim.Blt = [](const Raster&, const PixelRect& at) {
    ++picturesShown;
    if (!world.atEachYield) return;
    std::ostringstream place;
    place << "shown: " << at.left << ' ' << at.top << " to " << at.right << ' ' << at.bottom;
    seen.push_back(place.str());
  };
  picSim.Cls = [] { seen.emplace_back("picture area cleared"); };
}

void Resize(int width, int height) {
  ScaleWidth = width;
  ScaleHeight = height;
  Form_Resize();
}

// Its opaque shape rises to the right of its tip.
Raster TriangleTool(int width, int height) {
  Raster picture(width, height);
  picture.Fill(picture.Area(), kTransparent);
  for (int x = 0; x < width; ++x) picture.Fill({x, 0, x + 1, height - x}, Rgb(90, 90, 90));
  return picture;
}

// The program after its first start: the editor in view beside a simulation area of 400 by 300
// pixels, a triangle for a default tool, the Slider on the right, sound off.
void StartMachine() {
  Fakes::Reset();
  ResetToProgramStart();
  Form_Load();
  Fakes::PutPicture("/app/tools/tool.bmp", TriangleTool(67, 101));
  ScaleWidth = 519;
  ScaleHeight = 363;
  Form_Resize();
  Slider.Value = SliderControl::kMax;
  mnuToolsPlaySound.Checked = false;
}

// `row` counts from 0.
void ClickRow(int row, int column) {
  DebugWindow.MouseRow = row;
  DebugWindow.MouseCol = column;
  DebugWindow_Click();
}
void EditRowAs(int row, const std::string& text) {
  ClickRow(row, kTextColumn);
  DebugWindow_DblClick();
  txtDebug.Text = text;
}

// Of the first start nothing is in the transcript.
void Begin() {
  Fakes::Verify();
  StartMachine();
  WatchPicture();
  Form_Paint();
  before = LookAround();
  picturesShown = 0;
  playedBefore = 0;
  yieldsBefore = world.yields;
  world.hear = Hear;
}

// Those of the menus and of the tool bar, with the entry or the menu that closes them.
struct NamedCommand {
  std::string_view name;
  Command click;
  const MenuEntry* entry = nullptr;
};
const NamedCommand kCommandsByName[] = {
    {"New", mnuFileNew_Click, &mnuFile},
    {"Open", mnuFileOpen_Click, &mnuFile},
    {"Save", mnuFileSave_Click, &mnuFileSave},
    {"Save As", mnuFileSaveAS_Click, &mnuFile},
    {"Exit", mnuFileExit_Click, &mnuFile},
    {"Text Editor", mnuViewTextEditor_Click, &mnuView},
    {"Debug Window", mnuViewDebugWindow_Click, &mnuView},
    {"Status Bar", Command::BesideEdit(mnuViewStatusBar_Click), &mnuView},
    {"Tool Bar", Command::BesideEdit(mnuViewToolBar_Click), &mnuView},
    {"Show Labels", Command::BesideEdit(mnuToolBarShowLabels_Click)},
    {"Start", mnuRunStart_Click, &mnuRunStart},
    {"Pause", Command::BesideEdit(mnuRunPause_Click), &mnuRunPause},
    {"Stop", Command::BesideEdit(mnuRunStop_Click), &mnuRunStop},
    {"Step", Command::BesideEdit(mnuRunStepInto_Click), &mnuRunStepInto},
    {"Run To Breakpoint", mnuRunRunToBreakpoint_Click},
    {"Play Sound", Command::BesideEdit(mnuToolsPlaySound_Click), &mnuTools},
    {"Reformat Text", mnuToolsReformatText_Click, &mnuTools},
};

void Press(const std::string& name) {
  const auto* command = std::ranges::find(kCommandsByName, name, &NamedCommand::name);
  ASSERT_NE(std::end(kCommandsByName), command) << name;
  if (command->entry != nullptr && !command->entry->Enabled) {
    seen.emplace_back("closed");
  } else {
    command->click.Choose();
  }
}

void Open(const std::string& path, const std::string& bytes) {
  Fakes::PutFile(path, bytes);
  world.chosen.push_back(path);
  Press("Open");
}

void PressKey(std::int16_t key, std::int16_t shift) {
  std::int16_t left = key;
  TextEditor_KeyDown(left, shift);
  if (left != key) seen.push_back("key left: " + DecimalText(left));
  Look();
  TextEditor_KeyUp(key, shift);
}

void Act(const std::string& row);

// Later, with the row in the transcript where it happens.
Fakes::Action Later(const std::string& row) {
  return [row] {
    Look();
    seen.push_back("> " + row);
    Act(row);
    Look();
  };
}

void SetOption(const std::string& name, const std::string& text) {
  const std::size_t slash = name.find('/');
  SaveSetting("CNC", name.substr(0, slash), name.substr(slash + 1), text);
}

// A row is one of these and its words, of which the last one holds the rest.
struct Verb {
  std::string_view name;
  std::size_t words;
  void (*act)(const Words& words);
};
const Verb kVerbs[] = {
    {"start again", 0, [](const Words&) { ResetToProgramStart(), Form_Load(), WatchPicture(); }},
    {"start", 0, [](const Words&) { Begin(); }},
    {"press", 1, [](const Words& w) { Press(w[0]); }},
    {"recent", 1, [](const Words& w) { mnuFileRecentFiles_Click(ClipToInt16(Number(w[0]) - 1)); }},
    {"close", 0,
     [](const Words&) {
       std::int16_t cancel = kFalse;
       Form_QueryUnload(cancel, kClosedByUser);
       if (cancel != kFalse) seen.emplace_back("the window stays");
     }},
    {"answer", 1,
     [](const Words& w) {
       world.answers.push_back(w[0] == "Yes"  ? Desktop::kYes
                               : w[0] == "No" ? Desktop::kNo
                                              : Desktop::kCancel);
     }},
    {"choose", 1, [](const Words& w) { world.chosen.push_back(w[0]); }},
    {"at yield", 2,
     [](const Words& w) { world.atYield[world.yields + Number(w[0])] = Later(w[1]); }},
    {"in pause", 1, [](const Words& w) { world.atWait.push_back(Later(w[0])); }},
    {"watch", 0, [](const Words&) { world.atEachYield = Look; }},
    {"each step takes", 1, [](const Words& w) { world.stepTime = Number(w[0]); }},
    // Files and settings as they are found.
    {"file", 2, [](const Words& w) { Fakes::PutFile(w[0], Unquoted(w[1])); }},
    {"no file", 1, [](const Words& w) { Fakes::RemoveFile(w[0]); }},
    {"bitmap", 2, [](const Words& w) { Fakes::PutPicture(w[0], TriangleTool(Number(w[1]), 30)); }},
    {"disk", 1, [](const Words& w) { world.writeFailure = w[0]; }},
    {"recovery fails", 1, [](const Words& w) { world.recoveryFails = Number(w[0]) != 0; }},
    {"left behind", 4,
     [](const Words& w) {
       const auto text = [&](std::size_t i) { return w[i] == "-" ? "" : Unquoted(w[i]); };
       world.endedRecoveryFiles.push_back(
           EncodeRecovery({text(0), w[1] == "utf-8", text(3), text(2)}));
     }},
    {"left as", 1, [](const Words& w) { world.endedRecoveryFiles.push_back(Unquoted(w[0])); }},
    {"offer", 0, [](const Words&) { OfferRecovery(); }},
    {"empty store", 0, [](const Words&) { world.settings.clear(); }},
    {"store", 2, [](const Words& w) { SetOption(w[0], Unquoted(w[1])); }},
    {"options", 2, [](const Words& w) { SetOption(w[0], w[1]), LoadSettings(), ApplyOptions(); }},
    {"save options", 0, [](const Words&) { SaveOptions(Settings); }},
    // The program.
    {"open", 2, [](const Words& w) { Open(w[0], Unquoted(w[1])); }},
    {"program", 1, [](const Words& w) { Open("/part.cnc", Unquoted(w[0])); }},
    {"type", 1, [](const Words& w) { TextEditor().SetText(Unquoted(w[0])); }},
    {"select", 2,
     [](const Words& w) {
       TextEditor().SetSelStart(static_cast<std::size_t>(Number(w[0])));
       TextEditor().SetSelLength(static_cast<std::size_t>(Number(w[1])));
     }},
    {"key", 2, [](const Words& w) { PressKey(Number16(w[0]), Number16(w[1])); }},
    {"window key", 1, [](const Words& w) { Form_KeyUp(Number16(w[0]), 0); }},
    {"a second passes", 0, [](const Words&) { RecoveryTimer_Timer(); }},
    // As a row that was edited in place, which no check has seen.
    {"block", 1, [](const Words& w) { ModCNC::ExecuteBlock(Unquoted(w[0])); }},
    // The grid.
    {"click row", 2, [](const Words& w) { ClickRow(Number(w[0]) - 1, Number(w[1])); }},
    {"mark row", 1, [](const Words& w) { ClickRow(Number(w[0]) - 1, kMarkColumn); }},
    {"edit row", 2,
     [](const Words& w) {
       const int row = Number(w[0]) - 1;
       EditRowAs(row, w[1].empty()  ? DebugWindow.TextMatrix(row, kTextColumn)
                      : w[1] == "-" ? ""
                                    : Unquoted(w[1]));
     }},
    {"edit key", 1, [](const Words& w) { txtDebug_KeyUp(Number16(w[0]), 0); }},
    {"leave edit", 0, [](const Words&) { txtDebug_LostFocus(); }},
    {"scroll", 1, [](const Words& w) { DebugWindow.TopRow = Number(w[0]) - 1, txtDebug_Follow(); }},
    // The window.
    {"resize", 2, [](const Words& w) { Resize(Number(w[0]), Number(w[1])); }},
    {"window state", 1, [](const Words& w) { WindowState = Number(w[0]); }},
    {"slide", 1, [](const Words& w) { Slider.Value = Number(w[0]); }},
    {"point at", 2,
     [](const Words& w) { seen.push_back(Quoted(Graphics::Measure(Number(w[0]), Number(w[1])))); }},
    {"assign", 2,
     [](const Words& w) {
       ToolFiles.at(static_cast<std::size_t>(Number(w[0]))) = Unquoted(w[1]);
       std::string reason;
       if (!frmToolSelect::WriteToolList(reason)) seen.push_back(Quoted(reason));
     }},
};

void Act(const std::string& row) {
  for (const Verb& verb : kVerbs) {
    if (!row.starts_with(verb.name)) continue;
    std::string_view rest = std::string_view(row).substr(verb.name.size());
    if (!rest.empty() && rest.front() != ' ') continue;
    Words words(verb.words);
    for (std::string& word : words) {
      rest.remove_prefix(std::min<std::size_t>(1, rest.size()));
      word = rest.substr(0, &word == &words.back() ? rest.npos : rest.find(' '));
      rest.remove_prefix(word.size());
    }
    verb.act(words);
    return;
  }
  FAIL() << "nobody can " << row;
}

class SessionsTest : public testing::TestWithParam<std::string> {
 protected:
  void SetUp() override { StartMachine(); }
  void TearDown() override {
    Fakes::Verify();
    Fakes::Reset();
    ResetToProgramStart();
  }
};

TEST_P(SessionsTest, IsAsItIsKept) {
  SessionFile session(std::string(TURNBAY_SESSIONS "/") + GetParam() + ".session");
  for (std::string row = session.Next(); !row.empty(); row = session.Next()) {
    SCOPED_TRACE(session.Place());
    seen.clear();
    Act(row);
    Form_Paint();
    Look();
    TellPace();
    session.Hold(seen);
  }
}

INSTANTIATE_TEST_SUITE_P(Kept, SessionsTest,
                         testing::ValuesIn(SessionFile::NamesIn(TURNBAY_SESSIONS)),
                         [](const auto& name) { return name.param; });

}  // namespace

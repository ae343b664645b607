#include <cstdlib>
#include <random>

#include "debugger/debug_grid.h"
#include "debugger/run_commands.h"
#include "interpreter/machine.h"
#include "mainwindow/command.h"
#include "mainwindow/view_toggles.h"
#include "motion/player.h"
#include "tests/fakes/machine_test.h"
#include "tests/fakes/shown.h"

using namespace frmMain;

namespace {

constexpr const char* kBlocks[] = {"G00 X24 Z2", "G01 X16", "G01 Z-12", "[note", "G01 X20 Z-15",
                                   "G01",        "",        "G28",      "M00",   "G01 Z-14 M02"};

// A user who presses whatever is open, also inside the yields of a run, while after each command
// the state must be one that the run commands know.
class StateTableTest : public MachineTest {
 protected:
  void PlaySeed(unsigned seed) {
    random_.seed(seed);
    modified_ = false;
    // In the editor, so that the next Start changes the view.
    if (!TextEditor().Visible) mnuViewTextEditor_Click();
    std::string text = "[BILLET X20 Z20";
    for (int i = 3 + Pick(20); i > 0; --i) (text += "\r\n") += kBlocks[Pick(std::size(kBlocks))];
    TextEditor().SetText(text);
    DebugWindow.SetRows(0);
    EnableCommands("Save", false);
    Fakes::world.atEachYield = [this] {
      NoteEndOfRow();
      // A run that nobody touches any more ends.
      if (commandsLeft_ == 0 && IsRunPaused()) PressStart(mnuRunStart_Click);
      if (commandsLeft_ > 0 && Pick(3) == 0) Act();
    };
    for (int i = 0; i < 10; ++i) {
      commandsLeft_ = 30;
      Act();
    }
    commandsLeft_ = 0;
    if (mnuRunStepInto.Checked) mnuRunStepInto_Click();
    PressStart(mnuRunStart_Click);
    txtDebug_KeyUp(27, 0);
    Fakes::world.atEachYield = {};
  }

  // Starts that came while a run was on the stack.
  int Refused = 0;

 private:
  static bool IsOpen(std::string_view command) { return Toolbar.Find(command)->Enabled; }
  static const std::string& RowText(int row) { return DebugWindow.TextMatrix(row, kTextColumn); }
  static bool EditDiffers() { return txtDebug.Visible && RowText(EditRow) != txtDebug.Text.Get(); }
  int Pick(std::size_t count) { return static_cast<int>(random_() % count); }

  void Act() {
    if (commandsLeft_ > 0) --commandsLeft_;
    // Behind the last row too, where there is none; never the billet line.
    const int row = 1 + Pick(static_cast<std::size_t>(DebugWindow.Rows()) + 1);
    const int command = Pick(12);
    // These take over what is typed in an open edit; Enter does so even if it is the same.
    const bool takesOver = command < 2 || (command < 4 && mnuView.Enabled);
    modified_ = modified_ || (takesOver && (command == 1 ? txtDebug.Visible.Get() : EditDiffers()));
    if (command == 0) EditRowAs(row, kBlocks[Pick(std::size(kBlocks))]);
    if (command == 1) txtDebug_KeyUp(13, 0);
    if (command == 2 && mnuView.Enabled) Command(mnuViewTextEditor_Click).Choose();
    if (command == 3 && mnuView.Enabled) Command(mnuViewDebugWindow_Click).Choose();
    if (command == 4) txtDebug_KeyUp(27, 0);
    if (command == 5) Slider.Value = Pick(21) + SliderControl::kMin;
    if (command == 6) ClickRow(row, kMarkColumn);
    if (command == 7 && IsOpen("Pause")) mnuRunPause_Click();
    if (command == 8 && IsOpen("Stop")) mnuRunStop_Click();
    if (command == 9 && IsOpen("Step")) mnuRunStepInto_Click();
    if (command == 10) PressStart(mnuRunRunToBreakpoint_Click);
    if (command == 11 && IsOpen("Start")) PressStart(mnuRunStart_Click);
    if (!HasFailure()) CheckState();
  }

  // With a run on the stack the command may resume it or do nothing, but never play.
  void PressStart(Command command) {
    modified_ = modified_ || EditDiffers();
    const bool isFirst = !runOnStack_;
    if (!isFirst) ++Refused;
    const int yields = Fakes::world.yields;
    const std::int64_t points = GCodes::PointsPlayed;
    runOnStack_ = true;
    if (isFirst) {
      row_ = 0;
      stepOpened_ = false;
    }
    command.Choose();
    runOnStack_ = !isFirst;
    EXPECT_TRUE(isFirst || (yields == Fakes::world.yields && points == GCodes::PointsPlayed));
    EXPECT_FALSE(isFirst && IsOpen("Stop"));
  }

  // The end of a row with Step down pauses the run and opens Step until the run is over.
  void NoteEndOfRow() {
    const bool rowEnded = row_ != GlobalVariables::CurrentRow && IsOpen("Stop");
    row_ = GlobalVariables::CurrentRow;
    if (!rowEnded || !mnuRunStepInto.Checked) return;
    stepOpened_ = true;
    EXPECT_TRUE(IsRunPaused());
  }

  void CheckState() {
    const bool inRun = IsOpen("Stop");
    std::string expected = IsOpen("Pause") ? "Pause Stop "
                           : inRun         ? "Start Stop "
                                           : "New Open Print Step Start Options Menus";
    if (inRun && stepOpened_) expected = "Step " + expected;
    if (!inRun && modified_) expected.insert(expected.find("Print"), "Save ");
    EXPECT_EQ(expected, OpenCommandNames());
    EXPECT_TRUE(runOnStack_ || !inRun);
    EXPECT_EQ(mnuRunStepInto.Checked ? 1 : 0, Toolbar.Buttons("Step").Value);
    EXPECT_FALSE(TextEditor().Visible && DebugWindow.Visible);
    EXPECT_TRUE(ExecutingRow() == -1 || inRun);
    EXPECT_FALSE(TextEditor().Locked && !inRun);
    std::string rows;
    for (int row = 0; row < DebugWindow.Rows(); ++row)
      rows += (row > 0 ? "\r\n" : "") + RowText(row);
    EXPECT_TRUE(TextChanged != kFalse || rows == TextEditor().Text());
  }

  std::mt19937 random_;
  bool modified_ = false;
  bool runOnStack_ = false;
  // The row that this run was seen in last, and whether a row has ended in it while Step was down.
  int row_ = 0;
  bool stepOpened_ = false;
  int commandsLeft_ = 0;
};

TEST_F(StateTableTest, RandomCommandsInsideTheYieldsOfRuns) {
  const unsigned seeds = std::getenv("TURNBAY_LONG_TESTS") != nullptr ? 5'000 : 300;
  for (unsigned seed = 1; seed <= seeds; ++seed) {
    PlaySeed(seed);
    ASSERT_FALSE(HasFailure()) << "seed " << seed;
  }
  // The walk is worth something only when it gets about.
  EXPECT_GT(Refused, 300);
}

}  // namespace

#include <cstdlib>
#include <random>

#include "motion/player.h"
#include "tests/fakes/debugger_test.h"

using namespace frmMain;

namespace {

// A user who presses whatever is open, also inside the yields of a run, while after each command
// the state must be one that the run commands know.
class StateTableTest : public DebuggerTest {
 protected:
  void PlaySeed(unsigned seed) {
    random_.seed(seed);
    modified_ = false;
    WriteProgram();
    Fakes::AtEachYield([this] { ActInYield(); });
    for (int i = 0; i < 10; ++i) {
      commandsLeft_ = 30;
      Act();
    }
    commandsLeft_ = 0;
    if (mnuRunStepInto.Checked) mnuRunStepInto_Click();
    PressStart(mnuRunStart_Click);
    txtDebug_KeyUp(27, 0);
    Fakes::AtEachYield({});
  }

  int Runs() const { return runs_; }
  int Commands() const { return commands_; }
  int Refused() const { return refused_; }

 private:
  static constexpr const char* kBlocks[] = {
      "G00 X24 Z2", "G01 X16", "G01 Z-12", "[note", "G01 X20 Z-15 [taper", "G00 X22 Z1",
      "G01",        "",        "G28",      "M00",   "G01 Z-14 M02",
  };

  unsigned Pick(std::size_t count) { return static_cast<unsigned>(random_() % count); }
  const char* PickBlock() { return kBlocks[Pick(std::size(kBlocks))]; }
  int PickRow() { return 1 + static_cast<int>(Pick(static_cast<std::size_t>(DebugWindow.Rows()))); }

  // In the editor, so that the next Start changes the view.
  void WriteProgram() {
    if (!TextEditor().Visible) mnuViewTextEditor_Click();
    std::vector<std::string> lines{"[BILLET X20 Z20"};
    for (unsigned i = 3 + Pick(20); i > 0; --i) lines.emplace_back(PickBlock());
    Write(lines);
    CheckState();
  }

  void ActInYield() {
    if (commandsLeft_ == 0 || nesting_ == 3) {
      // A run that nobody touches any more ends.
      if (IsRunPaused()) PressStart(mnuRunStart_Click);
    } else if (Pick(3) == 0) {
      Act();
    }
  }

  void Act() {
    using Command = void (StateTableTest::*)();
    static constexpr Command kCommands[] = {
        &StateTableTest::Start,      &StateTableTest::Start,  &StateTableTest::Pause,
        &StateTableTest::Stop,       &StateTableTest::Step,   &StateTableTest::RunToBreakpoint,
        &StateTableTest::BreakPoint, &StateTableTest::Edit,   &StateTableTest::EndEdit,
        &StateTableTest::EndEdit,    &StateTableTest::Toggle, &StateTableTest::MoveOrResize,
    };
    ++commands_;
    if (commandsLeft_ > 0) --commandsLeft_;
    ++nesting_;
    (this->*kCommands[Pick(std::size(kCommands))])();
    --nesting_;
    CheckState();
  }

  // Presses Start or Run To Breakpoint. With a run on the stack it may resume or do nothing, but
  // never play.
  void PressStart(void (*command)()) {
    TakeOpenEditOver();
    if (runOnStack_) {
      ++refused_;
      const int yields = Fakes::Yields();
      const std::int64_t points = GCodes::PointsPlayed;
      command();
      EXPECT_EQ(yields, Fakes::Yields());
      EXPECT_EQ(points, GCodes::PointsPlayed);
      return;
    }
    ++runs_;
    runOnStack_ = true;
    stepSeen_ = mnuRunStepInto.Checked;
    command();
    runOnStack_ = false;
    EXPECT_FALSE(IsOpen("Stop"));
    CheckState();
  }

  void Start() {
    if (IsOpen("Start")) PressStart(mnuRunStart_Click);
  }
  void RunToBreakpoint() { PressStart(mnuRunRunToBreakpoint_Click); }
  void Pause() {
    if (IsOpen("Pause")) mnuRunPause_Click();
  }
  void Stop() {
    if (IsOpen("Stop") && Pick(2) == 0) mnuRunStop_Click();
  }
  void Step() {
    if (!IsOpen("Step")) return;
    mnuRunStepInto_Click();
    stepSeen_ = true;
  }
  void BreakPoint() { ClickMark(PickRow()); }
  void Edit() {
    TakeOpenEditOver();
    // The row behind the last one is no row: nothing opens.
    OpenEdit(PickRow(), PickBlock());
  }
  void EndEdit() {
    if (Pick(4) == 0) {
      txtDebug_KeyUp(27, 0);
      return;
    }
    TakeOpenEditOver();
    Pick(2) == 0 ? PressEnter() : txtDebug_LostFocus();
    EXPECT_FALSE(txtDebug.Visible);
  }
  void Toggle() {
    if (!mnuView.Enabled) return;
    switch (Pick(4)) {
      case 0:
        return mnuViewToolBar_Click();
      case 1:
        return mnuViewStatusBar_Click();
      case 2:
        TakeOpenEditOver();
        return mnuViewTextEditor_Click();
      default:
        TakeOpenEditOver();
        return mnuViewDebugWindow_Click();
    }
  }
  void MoveOrResize() {
    Slider.Value = static_cast<int>(Pick(21)) + SliderControl::kMin;
    if (Pick(8) != 0) return;
    ScaleWidth = 150 + static_cast<int>(Pick(200));
    Form_Resize();
  }

  // The command that follows takes an edit over when one is open.
  void TakeOpenEditOver() { modified_ = modified_ || txtDebug.Visible; }

  void CheckState() {
    if (HasFailure()) return;
    const bool running = IsOpen("Pause");
    const bool inRun = IsOpen("Stop");
    EXPECT_TRUE(inRun || !running) << "no state has Pause open and Stop closed";
    EXPECT_TRUE(runOnStack_ || !inRun);
    std::string expected = running ? kRunning : inRun ? kPaused : kIdle;
    if (inRun && IsOpen("Step")) {
      EXPECT_TRUE(stepSeen_);
      expected = "Step " + expected;
    }
    if (!inRun && modified_) expected.insert(expected.find("Print"), "Save ");
    EXPECT_EQ(expected, OpenCommands());
    for (const auto& [key, entry] : {std::pair{"Save", &mnuFileSave},
                                     {"Print", &mnuFilePrint},
                                     {"Start", &mnuRunStart},
                                     {"Pause", &mnuRunPause},
                                     {"Stop", &mnuRunStop},
                                     {"Step", &mnuRunStepInto}}) {
      EXPECT_EQ(IsOpen(key), entry->Enabled) << key;
    }
    EXPECT_EQ(mnuRunStepInto.Checked ? 1 : 0, Toolbar.Buttons("Step").Value);
    EXPECT_FALSE(TextEditor().Visible && DebugWindow.Visible);
    EXPECT_EQ(mnuViewTextEditor.Checked.Get(), TextEditor().Visible.Get());
    EXPECT_EQ(mnuViewDebugWindow.Checked.Get(), DebugWindow.Visible.Get());
    const int marked = ExecutingRow();
    if (!inRun) {
      EXPECT_FALSE(TextEditor().Locked);
      EXPECT_EQ(-1, marked);
    }
    if (TextChanged == kFalse) {
      EXPECT_EQ(RowsJoined(), TextEditor().Text());
    }
  }

  std::mt19937 random_;
  // A row was edited since the program was written.
  bool modified_ = false;
  bool runOnStack_ = false;
  // Step was pressed in this run.
  bool stepSeen_ = false;
  int nesting_ = 0;
  int commandsLeft_ = 0;
  int commands_ = 0;
  int runs_ = 0;
  int refused_ = 0;
};

TEST_F(StateTableTest, RandomCommandsInsideTheYieldsOfRuns) {
  const bool isLong = std::getenv("TURNBAY_LONG_TESTS") != nullptr;
  for (unsigned seed = 1; seed <= (isLong ? 5'000u : 300u); ++seed) {
    PlaySeed(seed);
    ASSERT_FALSE(HasFailure()) << "seed " << seed;
  }
  // The walk is worth something only when it gets about.
  EXPECT_GT(Commands(), 300 * 20);
  EXPECT_GT(Runs(), 300);
  EXPECT_GT(Refused(), 300);
}

}  // namespace

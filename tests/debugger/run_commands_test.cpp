#include <gmock/gmock.h>

#include "motion/player.h"
#include "tests/fakes/debugger_test.h"

using namespace frmMain;
using GlobalVariables::RunToBreakpoint;
using testing::ElementsAre;

namespace {

const std::string kStopSound = "/app\\sound\\stop.wav";

class RunCommandsTest : public DebuggerTest {
 protected:
  const std::vector<std::string> program{"[BILLET X20 Z40", "G00 X30 Z1", "[rough", "G01 X16",
                                         "G01 Z-30"};
};

TEST_F(RunCommandsTest, TheCommandsOfEachState) {
  for (const bool modified : {false, true}) {
    Write(program);
    EnableCommands("Save", modified);
    Fakes::AtYield(3, [] {
      EXPECT_EQ(kRunning, OpenCommands());
      EXPECT_TRUE(TextEditor().Locked);
      mnuRunPause_Click();
      EXPECT_EQ(kPaused, OpenCommands());
      EXPECT_FALSE(TextEditor().Locked);
    });
    Fakes::AtWait([] {
      mnuRunStart_Click();
      EXPECT_EQ(kRunning, OpenCommands());
      EXPECT_FALSE(TextEditor().Locked);
    });
    mnuRunStart_Click();
    const std::string idle = kIdle;
    EXPECT_EQ(modified ? "New Open Save " + idle.substr(9) : idle, OpenCommands());
    EXPECT_EQ(modified, mnuFileSave.Enabled);
    EXPECT_FALSE(TextEditor().Locked);
    EXPECT_EQ(-1, ExecutingRow());
    EXPECT_THAT(Fakes::Sounds(), testing::Each(kStopSound));
  }
  EXPECT_EQ(4u, Fakes::Sounds().size());
}

TEST_F(RunCommandsTest, StartShowsTheRowsOfTheText) {
  Write(program);
  mnuRunStart_Click();
  EXPECT_TRUE(DebugWindow.Visible);
  EXPECT_FALSE(TextEditor().Visible);
  EXPECT_EQ(TextEditor().Text(), RowsJoined());
  ClickMark(4);
  DebugWindow.TopRow = 3;
  // With the grid in view the rows stay, whatever the editor holds.
  TextEditor().SetText("[BILLET X20 Z40");
  Fakes::AtWait(mnuRunStart_Click);
  mnuRunStart_Click();
  EXPECT_EQ("  5 [*]  G01 Z-30", ShownRow(4));
  EXPECT_EQ(0, DebugWindow.TopRow);
  mnuViewTextEditor_Click();
  mnuRunStart_Click();
  EXPECT_THAT(ShownRows(), ElementsAre("  1 [ ]  [BILLET X20 Z40"));
}

TEST_F(RunCommandsTest, WithBothPanesHiddenStartFillsRowsThatAreBehind) {
  mnuViewTextEditor_Click();
  Write(program);
  const std::int16_t width = GlobalVariables::SimWidth;
  mnuRunStart_Click();
  EXPECT_EQ(TextEditor().Text(), RowsJoined());
  EXPECT_FALSE(DebugWindow.Visible);
  EXPECT_EQ(width, GlobalVariables::SimWidth);
  EXPECT_EQ(80, RadiusAt(-20));
}

TEST_F(RunCommandsTest, SteppingGoesFromPathToPathAndEndsWhenReleased) {
  Show(program);
  mnuRunStepInto_Click();
  EXPECT_EQ(1, Toolbar.Buttons("Step").Value);
  std::vector<int> rows;
  for (int i = 0; i < 2; ++i) {
    Fakes::AtWait([&] {
      rows.push_back(ExecutingRow());
      EXPECT_EQ("Step Start Stop ", OpenCommands());
      mnuRunStart_Click();
    });
  }
  Fakes::AtWait([&] {
    rows.push_back(ExecutingRow());
    mnuRunStepInto_Click();
    mnuRunStart_Click();
  });
  mnuRunStart_Click();
  // The comment rows 0 and 2 play no path.
  EXPECT_THAT(rows, ElementsAre(1, 3, 4));
  EXPECT_FALSE(mnuRunStepInto.Checked);
  // Rows 0 to 3, and the end.
  EXPECT_EQ(5u, Fakes::Sounds().size());
}

TEST_F(RunCommandsTest, ARunThatPlaysNothingAfterAPauseEndsPaused) {
  Show({"[BILLET X20 Z40", "[one", "[two"});
  mnuRunStepInto_Click();
  mnuRunStart_Click();
  EXPECT_EQ(0, Fakes::Waits());
  EXPECT_EQ(kIdle, OpenCommands());
}

TEST_F(RunCommandsTest, ABreakPointHoldsTheRunAtTheNextPath) {
  Show(program);
  ClickMark(2);
  ClickMark(4);
  Fakes::AtYield(4, [] { ClickMark(4); });
  Fakes::AtWait([] {
    EXPECT_THAT(ShownRows(),
                ElementsAre("  1 [ ]  [BILLET X20 Z40", "  2 [ ]  G00 X30 Z1", "  3 [*]  [rough",
                            "  4 [ ] >G01 X16", "  5 [ ]  G01 Z-30"));
    EXPECT_EQ(kPaused, OpenCommands());
    EXPECT_TRUE(TextEditor().Locked);
    EXPECT_TRUE(Fakes::Sounds().empty());
    mnuRunStart_Click();
  });
  mnuRunStart_Click();
  EXPECT_EQ("  3 [*]  [rough", ShownRow(2));
}

TEST_F(RunCommandsTest, ARunToBreakPointShowsNothingUntilItIsThere) {
  Show(program);
  ClickMark(4);
  int copies = 0;
  picSim.Blt = [&](const Raster&, const PixelRect&) { ++copies; };
  int before = 0;
  Fakes::AtWait([&] {
    before = copies;
    EXPECT_EQ(4, ExecutingRow());
    EXPECT_EQ(kFalse, RunToBreakpoint);
    mnuRunRunToBreakpoint_Click();
    EXPECT_EQ(kTrue, RunToBreakpoint);
    EXPECT_EQ(kRunning, OpenCommands());
  });
  mnuRunRunToBreakpoint_Click();
  // The start position, then the surface and its shoulders at the break point.
  EXPECT_EQ(3, before);
  EXPECT_EQ(4, copies) << "the rest shows only its end";
  EXPECT_EQ(kTrue, RunToBreakpoint) << "no break point came";
  ClickMark(4);
  mnuRunRunToBreakpoint_Click();
  EXPECT_EQ(kTrue, RunToBreakpoint);
  copies = 0;
  mnuRunStart_Click();
  EXPECT_EQ(kFalse, RunToBreakpoint);
  EXPECT_GT(copies, 4) << "a plain run shows itself again";
}

TEST_F(RunCommandsTest, RunToBreakpointInARunOnlySetsTheFlag) {
  Show(program);
  Fakes::AtYield(3, [] {
    const int yields = Fakes::Yields();
    mnuRunRunToBreakpoint_Click();
    EXPECT_EQ(yields, Fakes::Yields());
    EXPECT_EQ(kTrue, RunToBreakpoint);
    EXPECT_EQ(kRunning, OpenCommands());
  });
  mnuRunStart_Click();
  EXPECT_EQ(80, RadiusAt(-20));
}

TEST_F(RunCommandsTest, StopInAPausePlaysNoFurtherPoint) {
  Show(program);
  Fakes::AtYield(3, mnuRunPause_Click);
  std::int64_t played = 0;
  Fakes::AtWait([&] {
    played = GCodes::PointsPlayed;
    mnuRunStop_Click();
    EXPECT_EQ(kIdle, OpenCommands());
    EXPECT_EQ(-1, ExecutingRow());
    EXPECT_EQ(0, ModCNC::CurrentX);
  });
  mnuRunStart_Click();
  EXPECT_EQ(played, GCodes::PointsPlayed);
  EXPECT_EQ(0, GlobalVariables::CurrentRow);
  EXPECT_EQ(-1, ExecutingRow());
}

TEST_F(RunCommandsTest, StopWhileTheViewChangesPlaysNothing) {
  Write(program);
  Fakes::AtYield(1, [] {
    EXPECT_EQ(kRunning, OpenCommands());
    mnuRunStop_Click();
  });
  mnuRunStart_Click();
  EXPECT_EQ(0, GCodes::PointsPlayed);
  EXPECT_EQ(kIdle, OpenCommands());
}

TEST_F(RunCommandsTest, ARunThatIsLeavingIsNotEnteredAgain) {
  Show(program);
  Fakes::AtYield(2, [] {
    mnuRunStop_Click();
    const int yields = Fakes::Yields();
    mnuRunStart_Click();
    mnuRunRunToBreakpoint_Click();
    EXPECT_EQ(yields, Fakes::Yields());
    EXPECT_EQ(kIdle, OpenCommands());
    // New is open by now, and leaves one row.
    TextEditor().SetText("");
    DebugWindow.SetRows(1);
  });
  mnuRunStart_Click();
  EXPECT_EQ("New Open Options File View Tools Help ", OpenCommands());
  Show(program);
  mnuRunStart_Click();
  EXPECT_EQ(80, RadiusAt(-20));
}

}  // namespace

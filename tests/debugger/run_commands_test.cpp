#include "motion/player.h"
#include "tests/fakes/debugger_test.h"

using namespace frmMain;

namespace {

class RunCommandsTest : public DebuggerTest {};

const std::vector<std::string> kProgram{"[BILLET X20 Z40", "G00 X30 Z1", "[rough", "G01 X16",
                                        "G01 Z-30"};

TEST_F(RunCommandsTest, StartShowsTheRowsAndTheCommandsFollowTheState) {
  Write(kProgram);
  Fakes::AtYield(3, [] {
    EXPECT_EQ(kRunning, OpenCommands());
    EXPECT_TRUE(TextEditor().Locked);
    mnuRunPause_Click();
    EXPECT_EQ(kPaused, OpenCommands());
    EXPECT_FALSE(TextEditor().Locked);
    ScaleWidth = 800;
    Form_Resize();
  });
  Fakes::AtWait(mnuRunStart_Click);
  mnuRunStart_Click();
  EXPECT_EQ(kIdle, OpenCommands());
  EXPECT_EQ(616, Graphics::StockDC.Width());
  EXPECT_EQ(80, RadiusAt(-20)) << "cut on a surface of another size";
}

TEST_F(RunCommandsTest, SteppingGoesFromPathToPathAndStopPlaysNoFurtherPoint) {
  Show(kProgram);
  mnuRunStepInto_Click();
  std::int64_t played = 0;
  // The comment rows 0 and 2 play no path.
  for (const int row : {1, 3}) {
    Fakes::AtWait([&] { played = GCodes::PointsPlayed; });
    Fakes::AtWait([&played, row] {
      EXPECT_EQ(played, GCodes::PointsPlayed) << "a paused run waits";
      EXPECT_EQ(row, ExecutingRow());
      EXPECT_EQ("Step Start Stop ", OpenCommands());
      row == 1 ? mnuRunStart_Click() : mnuRunStop_Click();
    });
  }
  mnuRunStart_Click();
  EXPECT_EQ(played, GCodes::PointsPlayed);
}

TEST_F(RunCommandsTest, ARapidMoveEndsWhereItIsProgrammed) {
  Show({"[BILLET X20 Z40", "G00 X30.4 Z1.3"});
  mnuRunStart_Click();
  EXPECT_EQ("X 30.4  Z 1.3", StatusBar.Panels("ToolPosition").Text.Get());
}

TEST_F(RunCommandsTest, ACycleThatLacksItsSecondBlockDoesNotReachIntoTheNextRun) {
  const std::vector<std::string> cycle{"[BILLET X20 Z40", "G00 X22 Z1", "G73 U4 W2 R3",
                                       "G73 P1 Q2 U0 W0", "N1 G01 X16", "N2 Z-10"};
  const auto points = [](const std::vector<std::string>& lines) {
    const std::int64_t before = GCodes::PointsPlayed;
    Show(lines);
    mnuRunStart_Click();
    return GCodes::PointsPlayed - before;
  };
  const std::int64_t whole = points(cycle);
  points({cycle.begin(), cycle.begin() + 3});
  EXPECT_EQ(whole, points(cycle));
}

TEST_F(RunCommandsTest, ARunToBreakPointShowsNothingUntilItPausesThereWithoutSound) {
  Show(kProgram);
  ClickMark(2);
  int copies = 0;
  picSim.Blt = [&](const Raster&, const PixelRect&) { ++copies; };
  Fakes::AtWait([&] {
    EXPECT_EQ(3, ExecutingRow()) << "row 2 plays no path";
    // The start position, then the surface and its shoulders.
    EXPECT_EQ(3, copies);
    EXPECT_EQ(kPaused, OpenCommands());
    EXPECT_TRUE(Fakes::Sounds().empty());
    mnuRunStart_Click();
  });
  mnuRunRunToBreakpoint_Click();
  EXPECT_EQ("3 [*]  [rough", ShownRow(2));
  EXPECT_GT(copies, 4) << "the rest is shown";
}

}  // namespace

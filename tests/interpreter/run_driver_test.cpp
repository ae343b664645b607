#include "interpreter/run_driver.h"

#include "motion/player.h"
#include "motion/tool.h"
#include "tests/fakes/machine_test.h"

namespace {

using namespace ModCNC;
using GlobalVariables::BilletX;
using GlobalVariables::BilletZ;

constexpr const char* kNoBillet = "Billet Size Not Found";

class RunDriverTest : public MachineTest {};

TEST_F(RunDriverTest, BilletLineIsReadInEitherOrderFromTheFirstRowThatHoldsIt) {
  const struct {
    const char* row;
    int diameter;
    int length;
  } cases[] = {{"[BILLET X20 Z40", 200, 400},
               {"[BILLET Z40 X20", 200, 400},
               {"  [BILLET  X20.05 Z40 ", 200, 400},
               {"[BILLET X20 Z40 X99", 200, 400},
               {"[BILLET X0 Z0", 0, 0},
               {"[BILLET X3276.7 Z5", 32767, 50},
               {"[BILLET X12 Y5", 120, 77},
               {"[BILLET Z12 Z5", 66, 50}};
  for (const auto& c : cases) {
    BilletX = 66;
    BilletZ = 77;
    Load({"[comment", c.row, "[BILLET X1 Z1"});
    EXPECT_EQ(kTrue, ReadBilletLine()) << c.row;
    EXPECT_EQ(c.diameter, BilletX) << c.row;
    EXPECT_EQ(c.length, BilletZ) << c.row;
  }
}

TEST_F(RunDriverTest, BilletThatCannotBeReadEndsTheRunAsNoBilletDoes) {
  for (const char* row : {"G01 X5", "[billet X20 Z40", "[BILLET", "[BILLET X20", "[BILLET X20 Zoo",
                          "[BILLET X-20 Z40", "[BILLET X20 Z3276.8", "[BILLET X Z40"}) {
    BilletX = 66;
    Fakes::ExpectMessage(kNoBillet, Desktop::kCritical);
    Play({row, "G01 X10"});
    EXPECT_EQ(66, BilletX) << row;
    EXPECT_TRUE(Graphics::StockProfile.empty()) << row;
    EXPECT_FALSE(frmMain::Toolbar.Buttons("Stop").Enabled) << row;
  }
}

TEST_F(RunDriverTest, ToolWaitsAtTheRightWhenTheFirstRowBegins) {
  Fakes::AtYield(1, [] {
    EXPECT_EQ(200, CurrentX);
    EXPECT_EQ(400 - 67 - 20 - 100, CurrentZ);
    EXPECT_EQ(400 - 67 - 20, Graphics::LastToolX);
    EXPECT_EQ(150 - 200 - 101, Graphics::LastToolY);
    EXPECT_EQ(3, frmMain::ProgressBar.Max);
    EXPECT_EQ(1, frmMain::ProgressBar.Value);
  });
  Play({"[BILLET X20 Z10", "G00 X22", ""});
  EXPECT_EQ(3, frmMain::ProgressBar.Value);
}

TEST_F(RunDriverTest, ATooLargeBilletStillPlays) {
  Play({"[BILLET X3276.7 Z3276.7", "G00 X3276.7 Z0", "G01 Z-3276.7", "X0"});
  EXPECT_EQ(32768u, Graphics::StockProfile.size());
  EXPECT_EQ(0, RadiusAt(-32767));
  EXPECT_EQ(16384, RadiusAt(-1)) << "half of an odd diameter, to the even neighbour";
  Play({"[BILLET X0 Z0", "G01 X5 Z-5"});
  EXPECT_EQ(1u, Graphics::StockProfile.size());
}

TEST_F(RunDriverTest, CommentsBehindWordsAreCutOffAndCommentRowsPassedOver) {
  Play({"[BILLET X20 Z40", "G00 X30 Z2", "G01 X18[rough", "Z-10 [T9 F7", " [G28", "[Z-30"});
  EXPECT_EQ(90, RadiusAt(-100));
  EXPECT_EQ(100, RadiusAt(-101));
  EXPECT_EQ(0, ToolNumber);
  EXPECT_EQ(1, ActiveG);
}

TEST_F(RunDriverTest, StopEndsTheMoveAtTheNextPointAndTheRunAtTheNextRow) {
  Fakes::AtYield(6, frmMain::mnuRunStop_Click);
  Play({"[BILLET X20 Z40", "G00 X18 Z2", "G01 Z-40", "T7"});
  EXPECT_GT(100, GCodes::PointsPlayed);
  EXPECT_EQ(0, ToolNumber);
  EXPECT_EQ(kTrue, GlobalVariables::StopRequested);
  EXPECT_EQ(0, CurrentZ);
  EXPECT_EQ(0, GlobalVariables::CurrentRow);
  EXPECT_EQ(100, RadiusAt(-39));
}

TEST_F(RunDriverTest, APausedRunHaltsAtTheNextPointAndGoesOnWhenResumed) {
  Fakes::AtYield(3, frmMain::mnuRunPause_Click);
  std::int64_t pointsAtPause = -1;
  Fakes::AtWait([&] { pointsAtPause = GCodes::PointsPlayed; });
  Fakes::AtWait([&] {
    EXPECT_EQ(pointsAtPause, GCodes::PointsPlayed);
    EXPECT_EQ(3, frmMain::ProgressBar.Value) << "rows without a path pass through the pause";
    frmMain::mnuRunStart_Click();
  });
  Play({"[BILLET X20 Z40", "G04", "G01 X18 Z2", "Z-40"});
  EXPECT_EQ(90, RadiusAt(-39));
  EXPECT_FALSE(frmMain::IsRunPaused());
}

TEST_F(RunDriverTest, StepPausesBehindEachRow) {
  frmMain::mnuRunStepInto_Click();
  std::vector<int> rows;
  for (int i = 0; i < 2; ++i) {
    Fakes::AtWait([&] {
      rows.push_back(GlobalVariables::CurrentRow);
      EXPECT_TRUE(frmMain::Toolbar.Buttons("Step").Enabled);
      frmMain::mnuRunStart_Click();
    });
  }
  Fakes::AtWait([] {
    frmMain::mnuRunStepInto_Click();
    frmMain::mnuRunStart_Click();
  });
  Play({"[BILLET X20 Z40", "G00 X30 Z2", "[comment", "X28", "X26", "X24", "X22"});
  EXPECT_EQ((std::vector{1, 3}), rows);
  // The rows of comments alone never wait.
  frmMain::mnuRunStepInto_Click();
  const int waits = Fakes::Waits();
  Play({"[BILLET X20 Z40", "[one", "[two"});
  EXPECT_EQ(waits, Fakes::Waits());
}

TEST_F(RunDriverTest, ARowEditedAheadIsPlayedAsEditedAndTheRowCountIsReadOnce) {
  Fakes::AtYield(1, [] {
    frmMain::DebugWindow.SetTextMatrix(3, frmMain::kTextColumn, "T5");
    frmMain::DebugWindow.SetTextMatrix(0, frmMain::kTextColumn, "T9");
  });
  Play({"[BILLET X20 Z40", "G00 X30 Z2", "N10", "T1"});
  EXPECT_EQ(5, ToolNumber);
}

TEST_F(RunDriverTest, StartInTheYieldOfStopBeginsNoSecondRun) {
  Fakes::AtYield(2, [] {
    frmMain::mnuRunStop_Click();
    frmMain::mnuRunStart_Click();
  });
  Play({"[BILLET X20 Z40", "G00 X30 Z2", "T1"});
  EXPECT_EQ(0, ToolNumber);
}

}  // namespace

#include <gmock/gmock.h>

#include "mainwindow/command.h"
#include "motion/player.h"
#include "motion/tool.h"
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
  for (const auto& [block, shown] : {std::pair{"G00 X30.4 Z1.3", "X 30.4  Z 1.3"},
                                     {"G00 X0 Z-0.4", "X 0.0  Z -0.4"},
                                     {"G00 X-0.6 Z0", "X -0.6  Z 0.0"}}) {
    Show({"[BILLET X20 Z40", block});
    mnuRunStart_Click();
    EXPECT_EQ(shown, StatusBar.Panels("ToolPosition").Text.Get());
  }
}

TEST_F(RunCommandsTest, ASecondStartKeepsNothingOfTheFirst) {
  Show(std::vector<std::string>(41, "[BILLET X24 Z39"));
  // Without a break point the wish for one outlives the run.
  mnuRunRunToBreakpoint_Click();
  EXPECT_EQ(30, DebugWindow.TopRow);
  Show(kProgram);
  DebugWindow.TopRow = 3;
  int copies = 0;
  picSim.Blt = [&](const Raster&, const PixelRect&) { ++copies; };
  mnuRunStart_Click();
  EXPECT_GT(copies, 4);
  EXPECT_EQ(0, DebugWindow.TopRow);
  const Colour besideBillet = Graphics::StockDC.Read().GetPixel(50, Graphics::CentreLine - 110);
  EXPECT_EQ(GlobalVariables::Settings.SimBackColor, besideBillet);
}

TEST_F(RunCommandsTest, AResumeTakesAnEditedRowAsItStands) {
  Show({"[BILLET X20 Z40", "G00 X30 Z1", "G00", "G01 X19 Z1"});
  Fakes::AtYield(3, [&] {
    mnuRunPause_Click();
    OpenEdit(2, "");
    PressEnter();
    OpenEdit(3, " Y1 (no good)");
  });
  Fakes::AtWait([] { Command(mnuRunStart_Click).Choose(); });
  mnuRunStart_Click();
  EXPECT_EQ("[BILLET X20 Z40\r\nG00 X30 Z1\r\n\r\n Y1 (no good)", TextEditor().Text());
  EXPECT_TRUE(IsOpen("Save"));
  EXPECT_EQ("", RowText(2));
  const std::int64_t points = GCodes::PointsPlayed;
  Show({"[BILLET X20 Z40", "G00 X30 Z1"});
  mnuRunStart_Click();
  EXPECT_EQ(points, GCodes::PointsPlayed - points + 2) << "rows without a word move once each";
}

TEST_F(RunCommandsTest, RowsOfThePatternCycleBearMarkAndBreakPoints) {
  Show({"[BILLET X40 Z12", "G00 X60 Z5", "G73 U4 W-2 R2", "G73 P10 Q30 U0 W0", "N10 G01 X44 Z-1",
        "[note", "N30 G01 X40", "M08"});
  ClickMark(5);
  std::string seen;
  int last = -1;
  Fakes::AtEachYield([&] {
    const bool isPaused = IsRunPaused();
    if (ExecutingRow() != last || isPaused)
      seen += ' ' + std::to_string(ExecutingRow()) + (isPaused ? "p" : "");
    last = ExecutingRow();
    if (isPaused) mnuRunStart_Click();
  });
  mnuRunStart_Click();
  EXPECT_EQ(" 0 1 2 3 4 6p 4 6p -1 4 5p 6 7", seen);
}

TEST_F(RunCommandsTest, SoundsFromTheFirstMoveOn) {
  mnuToolsPlaySound.Checked = true;
  Show(kProgram);
  mnuRunStart_Click();
  mnuToolsPlaySound.Checked = false;
  Fakes::AtYield(3, mnuRunPause_Click);
  Fakes::AtWait(mnuRunStart_Click);
  mnuRunStart_Click();
  EXPECT_THAT(Fakes::Sounds(),
              testing::ElementsAre("/app\\sound\\fast.wav", "/app\\sound\\SLOW.wav",
                                   "/app\\sound\\stop.wav", "/app\\sound\\stop.wav",
                                   "/app\\sound\\stop.wav"));
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

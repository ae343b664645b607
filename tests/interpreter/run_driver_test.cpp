#include "interpreter/run_driver.h"

#include "motion/pattern_cycle.h"
#include "motion/player.h"
#include "tests/fakes/machine_test.h"

namespace {

using namespace ModCNC;

using RunDriverTest = MachineTest;

std::vector<Colour> Pixels() {
  const Raster& surface = Graphics::StockDC.Read();
  return {surface.Row(0), surface.Row(0) + surface.Pitch() * surface.Height()};
}

TEST_F(RunDriverTest, StopLeavesThePatternCycleAtTheNextRow) {
  Fakes::AtEachYield([] {
    if (GCodes::CycleOffsetX == 20) frmMain::mnuRunStop_Click();
  });
  Play({"[BILLET X40 Z60", "G00 X60 Z5", "G73 U4 W1 R3", "G73 P10 Q20 U0 W0", "N10 G01 X20 Z0 M25",
        "N20 G01 X30 Z-20 M26"});
  // Stopped in the first row of the second pass.
  EXPECT_EQ(3u, Fakes::Notifications().size());
  EXPECT_EQ(0, GCodes::CycleOffsetX);
}

// A run to a break point, and a cycle of rows that don't move. There Stop and Pause are heard.
TEST_F(RunDriverTest, WhatHasNoYieldOfItsOwnYieldsByTheClock) {
  const struct {
    std::vector<std::string> rows;
    void (*start)();
  } cases[] = {
      {{"[BILLET X40 Z60", "G00 X36 Z0", "G90 X30 Z-50"}, frmMain::mnuRunRunToBreakpoint_Click},
      {{"[BILLET X40 Z60", "G73 U0 W0 R90", "G73 P10 Q20", "N10 G04 M25", "N20 S1"},
       frmMain::mnuRunStart_Click}};
  for (const auto& run : cases) {
    // Returns how often the run yields, when the clock goes on by 10 ms with each point or row.
    const auto play = [&](int stepTime) {
      Load(run.rows);
      Fakes::EachStepTakes(stepTime);
      GCodes::PointsPlayed = 0;
      const int before = Fakes::Yields();
      run.start();
      return Fakes::Yields() - before;
    };
    const auto ownYields = static_cast<int>(2 * run.rows.size() - 1);
    EXPECT_EQ(ownYields, play(0));
    const auto steps = GCodes::PointsPlayed;
    const std::vector<Colour> picture = Pixels();
    const std::size_t notes = Fakes::Notifications().size();

    Fakes::AtYield(7, frmMain::mnuRunPause_Click);
    if (steps > 0) Fakes::AtWait(frmMain::mnuRunStart_Click);
    EXPECT_LT(ownYields + 30, play(10));
    EXPECT_EQ(steps, GCodes::PointsPlayed);
    EXPECT_TRUE(picture == Pixels()) << "the same to the last pixel";
    EXPECT_EQ(2 * notes, Fakes::Notifications().size());

    Fakes::AtYield(7, frmMain::mnuRunStop_Click);
    EXPECT_GE(9, play(10));
    EXPECT_GE(40, GCodes::PointsPlayed);
    EXPECT_GE(2 * notes + 8, Fakes::Notifications().size());
  }
}

TEST_F(RunDriverTest, EachStartTellsWhatBecameOfIt) {
  using GlobalVariables::RunOutcome;
  Fakes::CollectMessages();
  const std::pair<const char*, RunOutcome> cases[] = {{"[BILLET X20 Z4", RunOutcome::Played},
                                                      {"[BILLET X20", RunOutcome::NoBillet},
                                                      {"G48", RunOutcome::SyntaxFault},
                                                      {"[BILLET X2 Z4", RunOutcome::Played}};
  for (const auto& [row, outcome] : cases) {
    Fakes::AtYield(1, frmMain::mnuRunStop_Click);
    Play({row});
    EXPECT_EQ(outcome, GlobalVariables::LastRun) << row << ": the run before leaves nothing behind";
  }
}

}  // namespace

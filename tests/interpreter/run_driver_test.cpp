#include "interpreter/run_driver.h"

#include "motion/pattern_cycle.h"
#include "motion/player.h"
#include "tests/fakes/machine_test.h"

namespace {

using namespace ModCNC;

using RunDriverTest = MachineTest;

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

#include "motion/pattern_cycle.h"

#include <gmock/gmock.h>
#include <string>
#include <utility>
#include <vector>

#include "motion/player.h"
#include "platform/numbers.h"
#include "tests/fakes/machine_test.h"

namespace {

using testing::ElementsAre;

class PatternCycleTest : public MachineTest {
 protected:
  // Plays with a look at every point while the row `cycleRow` has the run, and notes `look` when it
  // has changed.
  template <class Look>
  static auto Watch(const std::vector<std::string>& program, int cycleRow, Look look) {
    std::vector<decltype(look())> seen;
    frmMain::Slider.Value = 1;
    Fakes::AtEachYield([&] {
      if (GlobalVariables::CurrentRow != cycleRow || !IsPlaying()) return;
      if (seen.empty() || seen.back() != look()) seen.push_back(look());
    });
    Play(program);
    Fakes::AtEachYield({});
    return seen;
  }

  static std::pair<double, double> Offsets() {
    return {GCodes::CycleOffsetX, GCodes::CycleOffsetZ};
  }

  // How often the rows with this word have run.
  static long Runs(const std::string& notification) {
    long count = 0;
    for (const auto& shown : Fakes::Notifications()) count += shown.text == notification ? 1 : 0;
    return count;
  }
  static long Extended() { return Runs("Quill Extend"); }    // M25
  static long Retracted() { return Runs("Quill Retract"); }  // M26

 private:
  static bool IsPlaying() {
    return GCodes::PointsPlayed > 0 && GlobalVariables::StopRequested == kFalse;
  }
};

// The second block is row 3, and its range follows it.
std::vector<std::string> Program(const std::string& firstBlock, const std::string& secondBlock) {
  return {"[BILLET X40 Z60",    "G00 X60 Z5",           firstBlock,      secondBlock,
          "N10 G01 X20 Z0 M25", "N20 G01 X30 Z-20 M26", "N30 G00 X60 Z5"};
}

TEST_F(PatternCycleTest, OffsetsShrinkFromPassToPass) {
  using Steps = std::vector<std::pair<double, double>>;
  const std::vector<std::pair<std::string, Steps>> cases = {
      {"G73 P10 Q20 U0 W0", {{40, 10}, {20, 5}, {0, 0}}},
      {"G73 P10 Q20 U0.2 W0", {{40, 10}, {21, 5}, {2, 0}}},
      {"G73 P10 Q20 U0 W-1", {{40, 10}, {20, -5}, {0, -20}}},
  };
  for (const auto& [block, offsets] : cases) {
    const Steps seen = Watch(Program("G73 U4 W1 R3", block), 3, Offsets);
    // The row's first yield comes before its block.
    EXPECT_EQ(offsets, Steps(seen.begin() + 1, seen.end())) << block;
    EXPECT_EQ(std::pair(0.0, 0.0), Offsets());
  }
}

TEST_F(PatternCycleTest, PassesCutAboveTheContourAndTheFinishingPassOnIt) {
  std::vector<int> radii;
  Fakes::AtEachNotification([&] { radii.push_back(RadiusAt(-10)); });
  Play(Program("G73 U4 W1 R3", "G73 P10 Q20 U0 W0"));
  // Noted at the two blocks of each pass, before they move. The contour rises from radius 100 at
  // Z 0 to 150 at Z -200: at Z -10 the first pass cuts 105 + 40, the second 103.75 + 20.
  EXPECT_THAT(radii, ElementsAre(200, 200, 145, 145, 124, 124, 102, 102));
}

TEST_F(PatternCycleTest, RepositionsUnderTheOffsetsOfThePass) {
  // No row holds the Q number, so each pass is its reposition move alone.
  const auto moves = Watch(
      {"[BILLET X40 Z60", "G00 X20 Z5", "G73 U4 W1 R3", "G73 P10 Q99 U0 W0", "N10 G01 M25"}, 3, [] {
        return std::vector<int>{ModCNC::CurrentX, ModCNC::CurrentZ, ModCNC::TargetX,
                                ModCNC::TargetZ};
      });
  using Move = std::vector<int>;
  EXPECT_THAT(moves, ElementsAre(Move{100, 50, 100, 50}, Move{120, 55, 140, 60},
                                 Move{150, 62, 120, 55}, Move{120, 55, 100, 50}));
  EXPECT_EQ(1, Extended());
}

TEST_F(PatternCycleTest, RowsRunOnceAPassAndOnceBehindTheCycle) {
  struct Case {
    const char* firstBlock;
    const char* secondBlock;
    long extended;
    long retracted;
  };
  for (const Case& c : {
           Case{"G73 U4 W1 R3", "G73 P10 Q20", 4, 4},
           Case{"G73 U4 W1 R0", "G73 P10 Q20", 1, 1},
           Case{"G73 U4 W1 R-3", "G73 P10 Q20", 1, 1},
           Case{"G73 U4 W1 R2.5", "G73 P10 Q20", 3, 3},  // 2.5 passes are 2
           Case{"G73 U4 W1 R2", "G73 P20 Q20", 1, 1},    // Q is looked for behind P
           Case{"G73 U4 W1 R2", "G73 P20 Q30", 1, 3},
           Case{"G73 U4 W1 R2", "G73 P1 Q2", 3, 3},  // N1 is found in N10
           Case{"G73 U4 W1 R2", "G73 P77 Q99", 1, 1},
       }) {
    const long extended = Extended();
    const long retracted = Retracted();
    ModCNC::WordR = 0;
    Play(Program(c.firstBlock, c.secondBlock));
    EXPECT_EQ(c.extended, Extended() - extended) << c.firstBlock << ", " << c.secondBlock;
    EXPECT_EQ(c.retracted, Retracted() - retracted) << c.firstBlock << ", " << c.secondBlock;
    EXPECT_EQ(kFalse, GCodes::CycleArmed);
  }
}

TEST_F(PatternCycleTest, CommentsInTheRangeAreCutOff) {
  Play({"[BILLET X40 Z60", "G00 X60 Z5", "G73 U4 W1 R2", "G73 P10 Q20", "N10 G01 X20 Z0 [M26",
        "[M26", " M25 [M26", "N20 X30"});
  EXPECT_EQ(3, Extended());
  EXPECT_EQ(0, Retracted());
}

TEST_F(PatternCycleTest, SinglePassRunsAtTheFullRelief) {
  const auto seen = Watch(Program("G73 U4 W1 R1", "G73 P10 Q20 U0 W0"), 3, Offsets);
  EXPECT_THAT(seen, ElementsAre(std::pair(0.0, 0.0), std::pair(40.0, 10.0)));
  EXPECT_EQ(2, Extended());
  EXPECT_EQ(102, RadiusAt(-10));
}

TEST_F(PatternCycleTest, FirstBlockMovesNothingAndUsesUpTheRadius) {
  std::vector<std::string> states;
  Fakes::AtEachNotification([&] {
    states.push_back(DecimalText(ModCNC::TargetX) + ' ' + DecimalText(ModCNC::TargetZ) + ' ' +
                     DecimalText(ModCNC::CurrentX) + ' ' + DecimalText(ModCNC::CurrentZ) + ' ' +
                     DecimalText(ModCNC::RadiusGiven) + ' ' + DecimalText(GCodes::CycleArmed));
  });
  Play({"[BILLET X40 Z60", "G00 X20 Z5", "G73 U4 W1 R3", "G04 M25"});
  EXPECT_THAT(states, ElementsAre("100 50 100 50 0 -1"));
}

TEST_F(PatternCycleTest, RangeThatHoldsItsOwnBlocksStartsNoCycleInside) {
  Play({"[BILLET X40 Z60", "G00 X60 Z5", "N10 G73 U4 W1 R3 M25", "N20 G73 P10 Q30", "N30 G01 X20"});
  // Three passes, then the driver's own way over the rows.
  EXPECT_EQ(4, Extended());
  EXPECT_EQ(kFalse, GCodes::CycleArmed);
}

TEST_F(PatternCycleTest, StopLeavesTheCycleAtTheNextRow) {
  Fakes::AtEachYield([] {
    if (GCodes::CycleOffsetX == 20) frmMain::mnuRunStop_Click();
  });
  Play(Program("G73 U4 W1 R3", "G73 P10 Q20 U0 W0"));
  EXPECT_EQ(2, Extended());
  EXPECT_EQ(1, Retracted());
  EXPECT_EQ(kFalse, GCodes::CycleArmed);
  EXPECT_EQ(std::pair(0.0, 0.0), Offsets());
}

TEST_F(PatternCycleTest, SumsBeyondTheRegistersAreClipped) {
  std::vector<int> positions;
  Fakes::AtEachNotification([&] {
    positions = {ModCNC::CurrentX, ModCNC::CurrentZ, ModCNC::TargetX, ModCNC::TargetZ};
  });
  Play({"[BILLET X40 Z60", "G00 X0 Z5", "G73 U6553.4 W-3276.7 R2", "G73 P10 Q99", "N10 G04 M25"});
  EXPECT_THAT(positions, ElementsAre(32767, -32768, 32767, -32768));
}

}  // namespace

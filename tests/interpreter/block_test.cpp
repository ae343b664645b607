#include "interpreter/decoder.h"
#include "motion/player.h"
#include "tests/fakes/machine_test.h"

namespace {

using namespace ModCNC;

class BlockTest : public MachineTest {
 protected:
  void SetUp() override {
    MachineTest::SetUp();
    ActiveG = -1;  // decode without motion
    GlobalVariables::BilletZ = 100;
  }
  static std::string Panel(const char* key) { return frmMain::StatusBar.Panels(key).Text; }
};

TEST_F(BlockTest, EachLetterFillsItsRegisterInItsScale) {
  ExecuteBlock("N10 F0.2 I1.25 K-2 P100 Q200.04 R5 S1500 T12 X25.5 Z-12.35 Y7 A1 g01");
  EXPECT_EQ(0, FeedRate);
  EXPECT_EQ("Feed: 0", Panel("FeedRate"));
  EXPECT_EQ(12, WordI);
  EXPECT_EQ(-20, WordK);
  EXPECT_EQ(1000, WordP);
  EXPECT_EQ(2000, WordQ);
  EXPECT_EQ(50, WordR);
  EXPECT_EQ(kTrue, RadiusGiven);
  EXPECT_EQ(1500, SpindleSpeed);
  EXPECT_EQ(12, ToolNumber);
  EXPECT_EQ(128, TargetX);
  EXPECT_EQ(-124, TargetZ);
  EXPECT_EQ(-1, ActiveG) << "a lower-case letter is no word";
}

TEST_F(BlockTest, ValuesAreRoundedHalfToEvenAndStoredOnlyIfTheyFit) {
  const struct {
    const char* word;
    const std::int16_t* stored;
    int value;
  } cases[] = {
      {"Z10.25", &TargetZ, 102},    {"X25.3", &TargetX, 126},       {"F2.5", &FeedRate, 2},
      {"F32767", &FeedRate, 32767}, {"F32768", &FeedRate, 7},       {"Z3276.7", &TargetZ, 32767},
      {"Z3276.8", &TargetZ, 7},     {"Z-3276.8", &TargetZ, -32768}, {"X6553.4", &TargetX, 32767},
      {"X6553.5", &TargetX, 7},     {"Z5-", &TargetZ, -50},         {"Z-5-", &TargetZ, 7},
      {"Z", &TargetZ, 7},           {"Z1,5", &TargetZ, 7},          {"R3276.8", &WordR, 7},
      {"Z\t5", &TargetZ, 7}};
  for (const auto& c : cases) {
    FeedRate = TargetX = TargetZ = WordR = 7;
    RadiusGiven = kFalse;
    DecodeWord(c.word);
    EXPECT_EQ(c.value, *c.stored) << c.word;
    EXPECT_EQ(kFalse, RadiusGiven) << c.word;
  }
}

TEST_F(BlockTest, IncrementalWordsCountFromThePosition) {
  CurrentX = 100;
  CurrentZ = 100;
  ExecuteBlock("X10 U4 W4");
  EXPECT_EQ(120, TargetX);
  EXPECT_EQ(20, WordU);
  EXPECT_EQ(140, TargetZ);
  EXPECT_EQ(40, WordW);
  // A sum that doesn't fit leaves both registers alone.
  CurrentX = CurrentZ = 32000;
  ExecuteBlock("U200 W-6600");
  EXPECT_EQ(120, TargetX);
  EXPECT_EQ(20, WordU);
  EXPECT_EQ(140, TargetZ);
  EXPECT_EQ(40, WordW);
}

TEST_F(BlockTest, SpeedAndToolAreKnownBeforeAnyWordActs) {
  ExecuteBlock("s500");
  EXPECT_EQ(0, SpindleSpeed) << "the scan enters on a capital only";
  ExecuteBlock("s500 T2 T3");
  EXPECT_EQ(500, SpindleSpeed);
  EXPECT_EQ(3, ToolNumber);
  ExecuteBlock("S99999 TX");
  EXPECT_EQ(500, SpindleSpeed);
  EXPECT_EQ(3, ToolNumber);
}

TEST_F(BlockTest, GWordsSelectTheModalFunction) {
  const struct {
    const char* word;
    int activeG;
  } cases[] = {{"G00", 0},  {"G1", 1},      {"G1.0", 1}, {"G2.5", 2}, {"G03", 3},
               {"G04", 4},  {"G28", 28},    {"G70", 70}, {"G73", 73}, {"G90", 90},
               {"G94", 94}, {"G72", -1},    {"G99", -1}, {"G-1", -1}, {"G5", -1},
               {"G", 55},   {"G40000", 55}, {"G21", 55}, {"G20", 55}, {"GX", 55}};
  for (const auto& c : cases) {
    ActiveG = 55;
    DecodeGWord(c.word);
    EXPECT_EQ(c.activeG, ActiveG) << c.word;
  }
  EXPECT_EQ("In", Panel("Dim"));
  DecodeGWord("G21");
  EXPECT_EQ("mm", Panel("Dim"));
}

TEST_F(BlockTest, TheMotionSeesTheLastValueOfEveryWord) {
  Play({"[BILLET X20 Z40", "G01 X10 G00 X12 Z5 Z6"});
  EXPECT_EQ(0, ActiveG);
  // One rapid move: its registers are zeroed by the end of the run, its path remains.
  EXPECT_EQ(60, GCodes::PathPoints.back().Z);
  EXPECT_EQ(60, GCodes::PathPoints.back().X);
}

TEST_F(BlockTest, EveryExecutedRowMovesOnceUnderTheModalFunction) {
  const auto pointsOf = [](const std::vector<std::string>& rows) {
    const auto before = GCodes::PointsPlayed;
    Play(rows);
    return GCodes::PointsPlayed - before;
  };
  const std::string toStock = "G00 X30 Z2";
  const auto approach = pointsOf({"[BILLET X20 Z40", toStock});
  EXPECT_EQ(approach + 2, pointsOf({"[BILLET X20 Z40", toStock, "N10", ""}));
  EXPECT_EQ(approach, pointsOf({"[BILLET X20 Z40", toStock, "G01", "N10", "G04 P2", "X1 Z-3"}));
  EXPECT_EQ(20, WordP);
  // The cycle is repeated by rows without a word, from where it ended.
  const auto oneCycle = pointsOf({"[BILLET X20 Z40", toStock, "G90 X16 Z-10"}) - approach;
  EXPECT_EQ(approach + 3 * oneCycle,
            pointsOf({"[BILLET X20 Z40", toStock, "G90 X16 Z-10", "M08", ""}));
}

TEST_F(BlockTest, RegistersCarryOverIntoTheNextRun) {
  Play({"[BILLET X20 Z40", "G01 X18 Z-5 F3 R4 S200 T5"});
  EXPECT_EQ(0, TargetX);
  EXPECT_EQ(0, CurrentZ);
  EXPECT_EQ(kTrue, GlobalVariables::StopRequested);
  Play({"[BILLET X20 Z40", "X10"});
  EXPECT_EQ(1, ActiveG);
  EXPECT_EQ(40, WordR);
  EXPECT_EQ(kTrue, RadiusGiven);
  EXPECT_EQ(5, ToolNumber);
  EXPECT_NEAR(0, GCodes::PathPoints.back().Z, 1e-9) << "a target that Stop zeroed";
}

}  // namespace

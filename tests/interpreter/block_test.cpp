// What only an edited row or a second run can show; the programs in tests/data show the rest.

#include "interpreter/decoder.h"
#include "tests/fakes/machine_test.h"

namespace {

using namespace ModCNC;

using BlockTest = MachineTest;

TEST_F(BlockTest, UnreadableWordsChangeNothing) {
  // The check refuses these words, but a row that was edited in a pause can hold them.
  ActiveG = 4;
  ExecuteBlock("F7 I7 R7 S7 T7 X7 Z7");
  RadiusGiven = kFalse;
  ExecuteBlock("F1,5 IX R- R3276.8 S99999 TX X6553.5 Z-5- Z\t5 G GX G40000 M MX M1E1 M0-3- Y7 x9");
  const std::vector<int> registers = {FeedRate,   WordI,   WordR,   RadiusGiven, SpindleSpeed,
                                      ToolNumber, TargetX, TargetZ, ActiveG};
  EXPECT_EQ((std::vector<int>{7, 70, 70, kFalse, 7, 7, 35, 70, -1}), registers)
      << "G40000 is a number, though one of no function";
  EXPECT_TRUE(Fakes::Notifications().empty());
  ExecuteBlock("Z5- s500");
  EXPECT_EQ(-50, TargetZ) << "a sign may stand behind the number";
  EXPECT_EQ(7, SpindleSpeed) << "the scan enters on a capital only";
}

TEST_F(BlockTest, AGNumberSelectsShowsAUnitOrEndsTheMotion) {
  std::string known;
  for (int number = -1; number <= 100; ++number) {
    ActiveG = 5;
    frmMain::StatusBar.Panels("Dim").Text = "";
    DecodeGWord('G' + DecimalText(number));
    if (ActiveG == -1) continue;
    EXPECT_EQ(number == 20 || number == 21 ? 5 : number, ActiveG);
    known += DecimalText(number) + frmMain::StatusBar.Panels("Dim").Text.Get() + ' ';
  }
  EXPECT_EQ("0 1 2 3 4 20In 21mm 28 70 73 90 94 ", known);
  for (const std::string& word : {std::string("G32768"), 'G' + std::string(400, '9')}) {
    ActiveG = 5;
    DecodeGWord(word);
    EXPECT_EQ(-1, ActiveG) << word;
  }
}

TEST_F(BlockTest, RegistersCarryOverIntoTheNextRun) {
  Play({"[BILLET X20 Z10", "G01 X18 Z-5 R4 T5"});
  Play({"[BILLET X20 Z10", "X10"});
  EXPECT_EQ((std::vector<int>{1, 40, 5}), (std::vector<int>{ActiveG, WordR, ToolNumber}));
  EXPECT_EQ(50, RadiusAt(0)) << "Stop zeroed the target";
  EXPECT_EQ(100, RadiusAt(-1));
}

}  // namespace

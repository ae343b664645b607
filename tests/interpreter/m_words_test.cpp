#include <algorithm>
#include <gmock/gmock.h>
#include <ostream>
#include <string>
#include <vector>

#include "interpreter/decoder.h"
#include "motion/tool.h"
#include "platform/numbers.h"
#include "tests/fakes/machine_test.h"

namespace {

using Fakes::Notification;
using testing::ElementsAre;
using testing::IsEmpty;

const Notification kRetract{"Quill Retract", 2000, false};

class MWordsTest : public MachineTest {
 protected:
  void SetUp() override {
    MachineTest::SetUp();
    for (const char* key : {"SpindleSpeed", "SpindleDirection", "Coolant"}) {
      frmMain::StatusBar.Panels(key).Text = "-";
    }
  }

  static std::string Panels() {
    return frmMain::StatusBar.Panels("SpindleSpeed").Text.Get() + ", " +
           frmMain::StatusBar.Panels("SpindleDirection").Text.Get() + ", " +
           frmMain::StatusBar.Panels("Coolant").Text.Get();
  }

  static std::string RunState() {
    const bool pause = frmMain::Toolbar.Buttons("Pause").Enabled;
    const bool stop = frmMain::Toolbar.Buttons("Stop").Enabled;
    if (pause && stop) return "running";
    return stop ? "paused" : "idle";
  }

  static void SetUpTool(const std::string& list, const std::string& description) {
    Fakes::PutFile("/app/tools/ToolList.ini", list);
    Fakes::PutFile("/app/tools/round.ini", description);
    Fakes::PutPicture("/app/tools/round.bmp", TriangleTool(40, 30));
  }
};

struct FunctionCase {
  const char* word;
  Notification notification;
  // Run state and panels at the moment of the notification, and panels after the run.
  const char* atNotification;
  const char* panels;
};

void PrintTo(const FunctionCase& function, std::ostream* out) {
  *out << function.word;
}

class MFunctionTest : public MWordsTest, public testing::WithParamInterface<FunctionCase> {};

TEST_P(MFunctionTest, ShowsAndActsInItsOrder) {
  const FunctionCase& expected = GetParam();
  std::vector<std::string> states;
  Fakes::AtEachNotification([&] { states.push_back(RunState() + ": " + Panels()); });
  const std::string word = expected.word;
  if (word == "M00") Fakes::AtWait(frmMain::mnuRunStart_Click);
  Play({"[BILLET X20 Z40", word + " S150 G00 X30 Z5", "M26"});

  const bool endsRun = word == "M02" || word == "M30";
  const std::vector<Notification>& shown = Fakes::Notifications();
  ASSERT_EQ(endsRun ? 1u : 2u, shown.size());
  EXPECT_EQ(expected.notification, shown.front());
  EXPECT_EQ(expected.atNotification, states.front());
  EXPECT_EQ(expected.panels, Panels());
  EXPECT_EQ(word == "M05" ? 0 : 150, ModCNC::SpindleSpeed);
}

INSTANTIATE_TEST_SUITE_P(
    Table, MFunctionTest,
    testing::Values(
        FunctionCase{"M00", {"Program Stop", 2000, false}, "running: -, -, -", "-, -, -"},
        FunctionCase{"M02", {"Program End", 2000, false}, "running: -, -, -", "-, -, -"},
        FunctionCase{"M03", {"Spindle Start CW", 2000, false}, "running: -, -, -", "S 150, CW, -"},
        FunctionCase{
            "M04", {"Spindle Start CCW", 2000, false}, "running: -, -, -", "S 150, CCW, -"},
        FunctionCase{"M05", {"Spindle Stop", 2000, false}, "running: -, -, -", "S 0, , -"},
        FunctionCase{
            "M08", {"Coolant: ON", 2000, false}, "running: -, -, Coolant: ON", "-, -, Coolant: ON"},
        FunctionCase{"M9",
                     {"Coolant: OFF", 2000, false},
                     "running: -, -, Coolant: OFF",
                     "-, -, Coolant: OFF"},
        FunctionCase{"M10", {"Chuck OPEN", 500, true}, "running: -, -, -", "-, -, -"},
        FunctionCase{"M11", {"Chuck CLOSE", 500, true}, "running: -, -, -", "-, -, -"},
        FunctionCase{"M13",
                     {"Spindle Start CW, Coolant ON", 2000, false},
                     "running: S 150, CW, Coolant: ON",
                     "S 150, CW, Coolant: ON"},
        FunctionCase{"M14",
                     {"Spindle Start CCW, Coolant ON", 2000, false},
                     "running: S 150, CCW, Coolant: ON",
                     "S 150, CCW, Coolant: ON"},
        FunctionCase{"M25", {"Quill Extend", 2000, false}, "running: -, -, -", "-, -, -"},
        FunctionCase{"M26", kRetract, "running: -, -, -", "-, -, -"},
        FunctionCase{"M30",
                     {"Program end and reset", 2000, false},
                     "idle: -, -, Coolant: OFF",
                     "-, -, Coolant: OFF"},
        FunctionCase{"M38", {"Door OPEN", 500, true}, "running: -, -, -", "-, -, -"},
        FunctionCase{"M39", {"Door CLOSE", 500, true}, "running: -, -, -", "-, -, -"}),
    [](const auto& test) { return std::string(test.param.word); });

TEST_F(MWordsTest, OtherNumbersDoNothing) {
  const std::vector<int> known = {0, 2, 3, 4, 5, 6, 8, 9, 10, 11, 13, 14, 25, 26, 30, 38, 39};
  std::string row = "M99999 M-99999";
  for (int number = -40; number < 120; ++number) {
    if (std::find(known.begin(), known.end(), number) != known.end()) continue;
    row += " M" + DecimalText(number);
  }
  Play({"[BILLET X20 Z40", row});
  // A row that was edited in a pause can hold what the check would refuse.
  for (const char* word : {"M", "MX", "M1E1", "M0-3-"}) ModCNC::DecodeMWord(word);
  EXPECT_THAT(Fakes::Notifications(), IsEmpty());
  EXPECT_EQ("-, -, -", Panels());
}

TEST_F(MWordsTest, SpeedIsThatOfTheRegister) {
  Play({"[BILLET X20 Z40", "M03"});
  EXPECT_EQ("S 0, CW, -", Panels());
  Play({"[BILLET X20 Z40", "S700", "M05", "M04"});
  EXPECT_EQ("S 0, CCW, -", Panels());
}

TEST_F(MWordsTest, WordsBehindProgramEndStillAct) {
  Play({"[BILLET X20 Z40", "M30 M08", "M26"});
  EXPECT_THAT(Fakes::Notifications(), ElementsAre(Notification{"Program end and reset", 2000},
                                                  Notification{"Coolant: ON", 2000}));
  EXPECT_EQ("-, -, Coolant: ON", Panels());
}

TEST_F(MWordsTest, ModalNotificationHoldsUpTheWordsBehindIt) {
  std::vector<int> targets;
  // Two yields belong to the billet row and to the block's own row.
  Fakes::AtYield(3, [&] { targets.push_back(ModCNC::TargetX); });
  Play({"[BILLET X20 Z40", "X30 M38 X10"});
  EXPECT_THAT(targets, ElementsAre(150));
  EXPECT_EQ(Notification({"Door OPEN", 500, true}), Fakes::Notifications().at(0));
}

TEST_F(MWordsTest, StopInsideModalNotificationEndsTheRun) {
  Fakes::AtYield(3, frmMain::mnuRunStop_Click);
  Play({"[BILLET X20 Z40", "M10 G00 X10", "M26"});
  EXPECT_EQ(1u, Fakes::Notifications().size());
  EXPECT_EQ("idle", RunState());
}

TEST_F(MWordsTest, PauseInLastRowWithoutPathEndsTheRun) {
  Play({"[BILLET X20 Z40", "G00 X30 Z5", "G01 M00"});
  EXPECT_EQ(0, Fakes::Waits());
  EXPECT_EQ("idle", RunState());
}

TEST_F(MWordsTest, ToolChangeLoadsTheNumberedTool) {
  SetUpTool("2=round.bmp\r\n", "TOOLHEIGHT=30\r\ntoolwidth= 40 \r\n");
  std::vector<int> widths;
  Fakes::AtEachNotification([&] { widths.push_back(Graphics::ToolWidth); });
  Play({"[BILLET X20 Z20", "G01 X10 Z0 M06 T2", "M26"});
  EXPECT_THAT(Fakes::Notifications(), ElementsAre(Notification{"Tool 2 loaded", 2000}, kRetract));
  EXPECT_THAT(widths, ElementsAre(67, 40));
  EXPECT_EQ(30, Graphics::ToolHeight);
  EXPECT_EQ(40, Graphics::ToolDC.sprite.Width());
  const Raster& surface = Graphics::StockDC.Read();
  EXPECT_EQ(kToolColour, surface.GetPixel(Graphics::LastToolX + 29, Graphics::LastToolY));
  EXPECT_NE(kToolColour, surface.GetPixel(Graphics::LastToolX + 30, Graphics::LastToolY));
}

struct FaultCase {
  const char* name;
  const char* block;
  const char* list;
  const char* description;
  const char* message;
};

void PrintTo(const FaultCase& fault, std::ostream* out) {
  *out << fault.name;
}

class ToolFaultTest : public MWordsTest, public testing::WithParamInterface<FaultCase> {};

TEST_P(ToolFaultTest, IsToldAndLeavesTheTool) {
  const FaultCase& fault = GetParam();
  SetUpTool(fault.list, fault.description);
  Fakes::PutFile("/app/tools/blank.ini", "TOOLWIDTH=40\r\nTOOLHEIGHT=30\r\n");
  Fakes::PutFile("/app/secret.ini", "TOOLWIDTH=40\r\nTOOLHEIGHT=30\r\n");
  Fakes::PutPicture("/app/secret.bmp", TriangleTool(40, 30));
  Fakes::ExpectMessage(fault.message, Desktop::kCritical, "Error!");
  Play({"[BILLET X20 Z40", fault.block, "M26"});
  EXPECT_EQ(kRetract, Fakes::Notifications().back());
  EXPECT_EQ(67, Graphics::ToolWidth);
  EXPECT_EQ(101, Graphics::ToolHeight);
  EXPECT_EQ(67, Graphics::ToolDC.sprite.Width());
}

constexpr const char* kSize = "TOOLWIDTH=40\r\nTOOLHEIGHT=30\r\n";

INSTANTIATE_TEST_SUITE_P(
    Table, ToolFaultTest,
    testing::Values(
        FaultCase{"AboveTheLibrary", "T21 M06", "2=round.bmp", kSize,
                  "Tool 21 can't be loaded, so the tool stays as it was. The tool library has the "
                  "numbers 0 to 20 only. Change the T word."},
        FaultCase{"BelowTheLibrary", "T-1 M06", "2=round.bmp", kSize,
                  "Tool -1 can't be loaded, so the tool stays as it was. The tool library has the "
                  "numbers 0 to 20 only. Change the T word."},
        FaultCase{"EmptyEntry", "T5 M06", "5=", kSize,
                  "Tool 5 can't be loaded, so the tool stays as it was. It has no bitmap. Assign "
                  "one to it in the tool library, or change the T word."},
        FaultCase{"NameWithFolder", "T2 M06", "2=..\\secret.bmp", kSize,
                  "Tool 2 can't be loaded, so the tool stays as it was. Its entry in the tool "
                  "list, \"..\\secret.bmp\", isn't the name of a bitmap in the tool folder. Assign "
                  "another bitmap to it in the tool library."},
        FaultCase{"NoDescription", "T2 M06", "2=lost.bmp", kSize,
                  "Tool 2 can't be loaded, so the tool stays as it was. no file "
                  "/app\\tools\\lost.ini Assign another bitmap to it in the tool library."},
        FaultCase{"NoBitmap", "T2 M06", "2=blank.bmp", kSize,
                  "Tool 2 can't be loaded, so the tool stays as it was. no picture "
                  "/app\\tools\\blank.bmp Assign another bitmap to it in the tool library."},
        FaultCase{"NoWidth", "T2 M06", "2=round.bmp", "TOOLNAME=Round\r\nTOOLHEIGHT=30",
                  "Tool 2 can't be loaded, so the tool stays as it was. Its description file "
                  "\"round.ini\" needs a width above 0, in a line such as TOOLWIDTH=67."},
        FaultCase{"NegativeHeight", "T2 M06", "2=round.bmp", "TOOLWIDTH=40\nTOOLHEIGHT=-3",
                  "Tool 2 can't be loaded, so the tool stays as it was. Its description file "
                  "\"round.ini\" needs a height above 0, in a line such as TOOLHEIGHT=101."}),
    [](const auto& test) { return std::string(test.param.name); });

}  // namespace

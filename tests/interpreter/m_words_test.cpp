// Order of steps; the programs in tests/data show texts, times and panels of every word.

#include <gmock/gmock.h>
#include <string>

#include "motion/tool.h"
#include "tests/fakes/machine_test.h"

namespace {

class MWordsTest : public MachineTest {};

constexpr const char* kPanels[] = {"SpindleSpeed", "SpindleDirection", "Coolant"};

std::string State() {
  std::string state = frmMain::Toolbar.Buttons("Stop").Enabled ? "running" : "idle";
  for (const char* key : kPanels) state += '|' + frmMain::StatusBar.Panels(key).Text.Get();
  return state;
}

TEST_F(MWordsTest, NotifyBeforeOrBehindTheirOtherSteps) {
  const struct {
    const char* word;
    const char* atNotification;
    const char* afterwards;
  } cases[] = {{"M03", "running|-|-|-", "idle|S 150|CW|-"},
               {"M05", "running|-|-|-", "idle|S 0||-"},
               {"M14", "running|S 150|CCW|Coolant: ON", "idle|S 150|CCW|Coolant: ON"},
               {"M30", "idle|-|-|Coolant: OFF", "idle|-|-|Coolant: OFF"}};
  std::string seen;
  Fakes::AtEachNotification([&] { seen = State(); });
  for (const auto& c : cases) {
    for (const char* key : kPanels) frmMain::StatusBar.Panels(key).Text = "-";
    Play({"[BILLET X20 Z40", std::string(c.word) + " S150"});
    EXPECT_EQ(c.atNotification, seen) << c.word;
    EXPECT_EQ(c.afterwards, State()) << c.word;
  }
}

TEST_F(MWordsTest, StopInsideModalNotificationEndsTheRunBehindItsRow) {
  // Two yields belong to the billet row and to the block's own row.
  Fakes::AtYield(3, [] {
    EXPECT_EQ(150, ModCNC::TargetX) << "the words behind wait for the notification";
    frmMain::mnuRunStop_Click();
  });
  Play({"[BILLET X20 Z40", "X30 M10 X10", "M26"});
  EXPECT_EQ(1u, Fakes::Notifications().size());
}

TEST_F(MWordsTest, ToolChangeLoadsTheNumberedToolOrLeavesTheOldOne) {
  const std::string size = "TOOLWIDTH=40\r\nTOOLHEIGHT=30\r\n";
  const struct {
    const char* entry;
    std::string description;
    const char* fault;
  } cases[] = {
      {"..\\..\\round.bmp", size, "isn't the name of a bitmap in the tool folder."},
      {"blank.bmp", size, "no picture /app\\tools\\blank.bmp Assign another bitmap"},
      {"round.bmp", "TOOLHEIGHT=30", "\"round.ini\" needs a width above 0"},
      {"round.bmp", "TOOLWIDTH=40\nTOOLHEIGHT=-3", "\"round.ini\" needs a height above 0"}};
  Fakes::PutPicture("/app/tools/round.bmp", TriangleTool(40, 30));
  Fakes::PutFile("/app/tools/blank.ini", size);
  Fakes::CollectMessages();
  for (const auto& c : cases) {
    Fakes::PutFile("/app/tools/ToolList.ini", "2=" + std::string(c.entry));
    Fakes::PutFile("/app/tools/round.ini", c.description);
    Play({"[BILLET X20 Z20", "T2 M06"});
    EXPECT_THAT(Fakes::Messages().back().text, testing::HasSubstr(c.fault));
    EXPECT_EQ(67, Graphics::ToolDC.sprite.Width()) << c.fault;
  }
  Fakes::PutFile("/app/tools/round.ini", size);
  Play({"[BILLET X20 Z20", "T2 M06"});
  EXPECT_EQ(std::size(cases), Fakes::Messages().size());
  EXPECT_EQ(40, Graphics::ToolDC.sprite.Width());
}

}  // namespace

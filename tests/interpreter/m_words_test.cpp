#include <gtest/gtest.h>
#include <string>

#include "motion/tool.h"
#include "tests/fakes/machine_test.h"
#include "tests/golden.h"

namespace {

using MWordsTest = MachineTest;

// What the user sees of each word, in order: panels that change, notifications, pause and stop. The
// feed rate belongs to the block behind.
TEST_F(MWordsTest, PanelsAndNotificationsAreKept) {
  using frmMain::StatusBar, frmMain::Toolbar;
  constexpr const char* kPanels[] = {"SpindleSpeed", "SpindleDirection", "Coolant", "FeedRate"};
  std::string seen;
  for (const std::string key : kPanels) {
    StatusBar.Find(key)->Text.Watch([&seen, key](const std::string& text) {
      seen.append("; ").append(key).append(" \"").append(text) += '"';
    });
  }
  Toolbar.Buttons("Pause").Enabled.Watch([&](bool open) {
    if (!open) seen += Toolbar.Buttons("New").Enabled ? "; stop" : "; pause";
  });
  Fakes::AtEachNotification([&] {
    seen +=
        "; notification \"" + Fakes::Notifications().back() + "\" " + Fakes::NotificationStyle();
  });
  Fakes::PutFile("/app/tools/ToolList.ini", "2=tool.bmp");
  Fakes::PutFile("/app/tools/tool.ini", "TOOLWIDTH=67\r\nTOOLHEIGHT=101");
  std::string table;
  for (int number = 0; number <= 99; number += number == 40 ? 59 : 1) {
    for (const char* key : kPanels) StatusBar.Find(key)->Text = "before";
    seen.clear();
    Play({"[BILLET X20 Z40", 'M' + std::to_string(number) + " G04 S150 T2", "F1"});
    table += 'M' + std::to_string(number) + seen + '\n';
  }
  for (const char* key : kPanels) StatusBar.Find(key)->Text.Watch({});
  Toolbar.Buttons("Pause").Enabled.Watch({});
  ExpectGolden("m_words", table);
}

TEST_F(MWordsTest, StopInsideModalNotificationEndsTheRunBehindItsRow) {
  // Two yields belong to the billet row and to the block's own row.
  Fakes::AtYield(3, [] {
    EXPECT_EQ(150, ModCNC::TargetX) << "the words behind wait for the notification";
    frmMain::mnuRunStop_Click();
  });
  Play({"[BILLET X20 Z40", "X30 M10 X10 M25", "M26"});
  EXPECT_EQ((std::vector<std::string>{"Chuck OPEN", "Quill Extend"}), Fakes::Notifications());
}

TEST_F(MWordsTest, WithinACycleEachCauseIsToldOnce) {
  Fakes::CollectMessages();
  const std::vector<std::string> rows = {"[BILLET X20 Z40", "T3 M06",       "T3 M06",
                                         "G73 U4 W1 R3",    "G73 P10 Q20",  "N10 G04 T3 M06",
                                         "N20 T30 M06",     "G73 U4 W1 R3", "G73 P10 Q20"};
  Play(rows);
  // Two rows of their own, two causes in each cycle, and the rows behind the first cycle.
  EXPECT_EQ(2U + 2 + 2 + 2, Fakes::Messages().size());
}

TEST_F(MWordsTest, ToolChangeLoadsTheNumberedToolOrLeavesTheOldOne) {
  const std::string size = "TOOLWIDTH=40\r\nTOOLHEIGHT=30\r\n";
  // Entry of the tool list, and description. Only the last tool can be loaded.
  const std::string cases[][2] = {{"..\\..\\round.bmp", size},
                                  {"roundbmp", size},
                                  {"blank.bmp", size},
                                  {"gone.bmp", size},
                                  {"round.bmp", "TOOLHEIGHT=30"},
                                  {"round.bmp", "TOOLWIDTH=1\nTOOLHEIGHT=-3"},
                                  {"round.bmp", size}};
  Fakes::PutPicture("/app/tools/old.bmp", TriangleTool(50, 30));
  Fakes::PutFile("/app/tools/old.ini", "TOOLWIDTH=50\r\nTOOLHEIGHT=30");
  Fakes::PutPicture("/app/tools/round.bmp", TriangleTool(40, 30));
  Fakes::PutFile("/app/tools/blank.ini", size);
  Fakes::CollectMessages();
  for (const auto& [entry, description] : cases) {
    Fakes::PutFile("/app/tools/ToolList.ini", "1=old.bmp\r\n2=" + entry);
    Fakes::PutFile("/app/tools/round.ini", description);
    int widthWhenNotified = 0;
    Fakes::AtEachNotification([&] { widthWhenNotified = Graphics::ToolDC.sprite.Width(); });
    Play({"[BILLET X20 Z20", "T1 M06", "T2 M06"});
    EXPECT_EQ(50, widthWhenNotified) << "before the tool is looked for";
    const bool loads = entry == "round.bmp" && description == size;
    EXPECT_EQ(loads ? 40 : 50, Graphics::ToolDC.sprite.Width()) << entry;
  }
  Fakes::RemovePicture("/app/tools/tool.bmp");
  Play({"[BILLET X20 Z20"});
  EXPECT_TRUE(Graphics::ToolDC.sprite.Width() == 0 && Graphics::ToolWidth == 67);
  std::string told;
  for (const FakeMessage& message : Fakes::Messages())
    told += message.title + ": " + message.text + '\n';
  ExpectGolden("tool_faults", told);
}

}  // namespace

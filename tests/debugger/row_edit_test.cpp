#include "tests/fakes/debugger_test.h"

using namespace frmMain;

namespace {

class RowEditTest : public DebuggerTest {};

TEST_F(RowEditTest, TheBoxLiesOverTheTextOfItsRowUpToTheGridsEdge) {
  Show({"G00 X1", "G00 X2", "G00 X3"});
  DebugWindow.TopRow = 1;
  Click(2, kMarkColumn);
  DebugWindow_DblClick();
  EXPECT_TRUE(txtDebug.Visible);
  EXPECT_EQ(2, EditRow);
  EXPECT_EQ("G00 X3", txtDebug.Text.Get());
  EXPECT_EQ(6, txtDebug.SelStart);
  EXPECT_EQ("Courier New", txtDebug.FontName.Get());
  EXPECT_EQ(10, txtDebug.FontSize);
  const ControlBounds& box = txtDebug.Bounds;
  EXPECT_DOUBLE_EQ((350 + 300) / 15.0, box.Left);
  EXPECT_DOUBLE_EQ(38 + 19, box.Top);
  EXPECT_DOUBLE_EQ(519 * 0.23 - box.Left - 4, box.Width);
  EXPECT_DOUBLE_EQ(19, box.Height);
}

TEST_F(RowEditTest, EnterTakesTheTextAsTypedAndTheDocumentIsModified) {
  Show({"[BILLET X20 Z40", "G00 X2", ""});
  ClickMark(1);
  std::vector<bool> starts;
  Toolbar.Buttons("Start").Enabled.Watch([&](bool open) { starts.push_back(open); });
  Edit(1, " g01  x5 ");
  EXPECT_EQ("  2 [*]   g01  x5 ", ShownRow(1));
  EXPECT_EQ("[BILLET X20 Z40\r\n g01  x5 \r\n", TextEditor().Text());
  EXPECT_EQ((std::vector<bool>{false, true}), starts) << "the text went through empty";
  EXPECT_EQ("New Open Save Print Step Start Options File View Tools Help ", OpenCommands());
  EXPECT_FALSE(txtDebug.Visible);
  // The rows are no longer behind, so a change of view leaves the break point alone.
  mnuViewDebugWindow_Click();
  EXPECT_EQ("  2 [*]   g01  x5 ", ShownRow(1));
}

TEST_F(RowEditTest, WhatEachKeyAndLeavingTheBoxDo) {
  struct Case {
    const char* name;
    void (*act)();
    bool stays, taken;
  };
  const Case cases[] = {
      {"Esc", [] { txtDebug_KeyUp(27, 0); }, false, false},
      {"A", [] { txtDebug_KeyUp('A', 0); }, true, false},
      {"Enter", [] { txtDebug_KeyUp(13, 1); }, false, true},
      {"focus", [] { txtDebug_LostFocus(); }, false, true},
      {"view", [] { mnuViewTextEditor_Click(); }, false, true},
      {"hidden", [] { mnuViewDebugWindow_Click(); }, false, true},
  };
  for (const Case& c : cases) {
    Show({"G00 X1", "G00 X2"});
    OpenEdit(1, "G00 X9");
    c.act();
    EXPECT_EQ(c.stays, txtDebug.Visible) << c.name;
    EXPECT_EQ(c.taken ? "G00 X9" : "G00 X2", RowText(1)) << c.name;
    EXPECT_EQ(RowsJoined(), TextEditor().Text()) << c.name;
    EXPECT_EQ(c.taken, IsOpen("Save")) << c.name;
    txtDebug_KeyUp(27, 0);
  }
}

TEST_F(RowEditTest, AKeyWithoutAnOpenEditDoesNothing) {
  Show({"G00 X1"});
  txtDebug.Text = "G00 X9";
  PressEnter();
  txtDebug_LostFocus();
  EXPECT_EQ("G00 X1", RowText(0));
}

TEST_F(RowEditTest, ADoubleClickOnAnotherRowTakesTheOpenEditOver) {
  Show({"G00 X1", "G00 X2"});
  OpenEdit(0, "G00 X8");
  OpenEdit(1, "G00 X9");
  EXPECT_EQ(1, EditRow);
  PressEnter();
  EXPECT_EQ("G00 X8\r\nG00 X9", TextEditor().Text());
}

TEST_F(RowEditTest, EmptyingTheOnlyRowClosesTheCommandsOfAProgram) {
  Show({"G00 X1"});
  Edit(0, "");
  EXPECT_EQ("New Open Options File View Tools Help ", OpenCommands());
}

TEST_F(RowEditTest, AnEditWhoseRowHasGoneIsDropped) {
  Show({"G00 X1", "G00 X2"});
  OpenEdit(1, "G00 X9");
  DebugWindow.SetRows(1);
  PressEnter();
  EXPECT_EQ("G00 X1\r\nG00 X2", TextEditor().Text());
  EXPECT_FALSE(txtDebug.Visible);
}

TEST_F(RowEditTest, StartPlaysWhatStandsInTheOpenBox) {
  Show({"[BILLET X20 Z40", "G00 X60"});
  OpenEdit(1, "G01 X10 Z-40");
  mnuRunStart_Click();
  EXPECT_EQ(50, RadiusAt(-400));
  EXPECT_EQ("[BILLET X20 Z40\r\nG01 X10 Z-40", TextEditor().Text());
}

TEST_F(RowEditTest, ARowAheadOfTheRunCanBeEditedAndTheRunKeepsItsState) {
  struct Case {
    const char* name;
    bool step, paused;
    const char* open;
  };
  for (const Case& c : {Case{"running", false, false, kRunning},
                        {"paused", false, true, kPaused},
                        {"stepping", true, true, "Step Start Stop "}}) {
    Show({"[BILLET X20 Z40", "G00 X60 Z0", "G00 X60"});
    if (c.step) mnuRunStepInto_Click();
    const auto edit = [&] {
      Edit(2, "G01 X10 Z-40");
      EXPECT_EQ(c.open, OpenCommands()) << c.name;
      EXPECT_EQ(RowsJoined(), TextEditor().Text()) << c.name;
      if (c.step) mnuRunStepInto_Click();
      if (c.paused) mnuRunStart_Click();
    };
    if (!c.step) Fakes::AtYield(2, c.paused ? mnuRunPause_Click : std::function<void()>(edit));
    if (c.paused) Fakes::AtWait(edit);
    mnuRunStart_Click();
    EXPECT_EQ(50, RadiusAt(-400)) << c.name;
    EXPECT_TRUE(IsOpen("Save")) << c.name;
    EXPECT_FALSE(IsOpen("Stop")) << c.name;
  }
}

TEST_F(RowEditTest, AnEditBehindAStopKeepsSaveOpen) {
  Show({"[BILLET X20 Z40", "G00 X60"});
  Fakes::AtYield(1, [] {
    mnuRunStop_Click();
    Edit(1, "G00 X30");
    EXPECT_TRUE(IsOpen("Save"));
  });
  mnuRunStart_Click();
  EXPECT_TRUE(IsOpen("Save"));
}

TEST_F(RowEditTest, ALongProgramIsRewrittenWhole) {
  Show(std::vector<std::string>(32'767, "G00 X1"));
  Edit(32'766, "G00 X23");
  EXPECT_EQ(32'767u * 8 - 2 + 1, TextEditor().Text().size());
  EXPECT_EQ(RowsJoined(), TextEditor().Text());
}

}  // namespace

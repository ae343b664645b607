#include "mainwindow/command.h"
#include "tests/fakes/debugger_test.h"

using namespace frmMain;

namespace {

class RowEditTest : public DebuggerTest {
 protected:
  static void LeaveUnchanged() {
    txtDebug.Text = RowText(EditRow);
    txtDebug_LostFocus();
  }
};

TEST_F(RowEditTest, WhatTakesAnOpenEditOver) {
  struct Case {
    const char* name;
    void (*act)();
    bool stays, taken;
  };
  for (const Case& c :
       {Case{"Esc", [] { txtDebug_KeyUp(27, 0); }, false, false},
        {"Enter", PressEnter, false, true},
        {"focus", txtDebug_LostFocus, false, true},
        {"nothing typed", LeaveUnchanged, false, false},
        {"other row", [] { OpenEdit(0, "G00 X1"); }, true, true},
        {"command", [] { Command([] {}).Choose(); }, false, true},
        {"command beside it", [] { Command::BesideEdit([] {}).Choose(); }, true, false}}) {
    Show({"G00 X1", "G00 X2"});
    ClickMark(1);
    OpenEdit(1, " g00  x9 ");
    c.act();
    EXPECT_EQ(c.stays, txtDebug.Visible) << c.name;
    EXPECT_EQ(c.taken ? "2 [*]   g00  x9 " : "2 [*]  G00 X2", ShownRow(1)) << c.name;
    EXPECT_EQ(RowsJoined(), TextEditor().Text()) << c.name;
    EXPECT_EQ(c.taken, IsOpen("Save")) << c.name;
    EXPECT_TRUE(TextEditor().Visible || TextChanged == kFalse)
        << "the next change of the view would drop the break points";
    txtDebug_KeyUp(27, 0);
  }
}

}  // namespace

#include "mainwindow/control_surface.h"

#include "editor/documents.h"
#include "tests/fakes/debugger_test.h"
#include "tests/golden.h"

using namespace frmMain;

namespace {

class ControlSurfaceTest : public DebuggerTest {
 protected:
  // Commands and menus that are open, and whether the text is.
  static std::string OpenNow() {
    std::string open = "commands:";
    for (const ToolButton& button : Toolbar) {
      if (button.Enabled) open += ' ' + std::string(button.Key);
    }
    const auto add = [&](const char* name, const MenuEntry& entry) {
      if (entry.Enabled) open += std::string(" ") + name;
    };
    open += "; entries:";
    add("Save", mnuFileSave);
    add("Print", mnuFilePrint);
    add("Start", mnuRunStart);
    add("Pause", mnuRunPause);
    add("Stop", mnuRunStop);
    add("Step", mnuRunStepInto);
    open += "; menus:";
    add("File", mnuFile);
    add("View", mnuView);
    add("Tools", mnuTools);
    add("Help", mnuHelp);
    return open + (TextEditor().Locked ? "; text locked\n" : "; text open\n");
  }
};

TEST_F(ControlSurfaceTest, WhatIsOpenInEachStateIsKept) {
  std::string table = "Program start     " + OpenNow();
  const auto note = [&](const char* state) { table += state + OpenNow(); };
  Fakes::PutFile("/part.cnc", "[BILLET X20 Z40\r\nG01 X18 Z-5\r\nM05");
  Fakes::ExpectOpenDialog("/part.cnc");
  mnuFileOpen_Click();
  note("Opened            ");
  TextEditor().SetText(TextEditor().Text() + ' ');
  note("Typed             ");
  Fakes::AtYield(4, [&] {
    note("Running           ");
    mnuRunPause_Click();
    note("Paused            ");
  });
  Fakes::AtWait(mnuRunStart_Click);
  Fakes::AtEachNotification([&] { note("Resumed           "); });
  mnuRunStart_Click();
  note("Run over          ");
  Fakes::AtEachNotification({});
  mnuRunStepInto_Click();
  Fakes::AtWait([&] {
    note("Paused in a step  ");
    mnuRunStart_Click();
    note("Resumed in a step ");
    mnuRunStop_Click();
    note("Stopped           ");
  });
  mnuRunStart_Click();
  mnuFileSave_Click();
  note("Saved             ");
  TextEditor().SetText("");
  note("Emptied           ");
  mnuFileNew_Click();
  note("New               ");
  ExpectGolden("open_commands", table);
}

TEST_F(ControlSurfaceTest, AWatcherHearsOfRealChangesOnly) {
  int heard = 0;
  mnuRunStepInto.Enabled.Watch([&](bool) { ++heard; });
  EnableCommands("Step", false);
  EnableCommands("Step,Step", true);
  EXPECT_EQ(1, heard);
  mnuRunStepInto.Enabled.Watch({});
}

}  // namespace

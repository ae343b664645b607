#include "mainwindow/control_surface.h"

#include "tests/fakes/machine_test.h"

namespace {

class ControlSurfaceTest : public MachineTest {
 protected:
  static std::string OpenCommands() {
    std::string open;
    for (ToolButton& button : frmMain::Toolbar) {
      if (button.Enabled) open += std::string(button.Key) + ' ';
    }
    return open;
  }
};

TEST_F(ControlSurfaceTest, SixCommandsMoveTheirMenuEntryAsWell) {
  frmMain::EnableCommands("Save,Print,Start,Pause,Stop,Step", true);
  for (MenuEntry* entry : {&frmMain::mnuFileSave, &frmMain::mnuFilePrint, &frmMain::mnuRunStart,
                           &frmMain::mnuRunPause, &frmMain::mnuRunStop, &frmMain::mnuRunStepInto}) {
    EXPECT_TRUE(entry->Enabled);
  }
  frmMain::EnableCommands("New,Open,Save,Print,Start,Step,Options", false);
  EXPECT_EQ("Pause Stop ", OpenCommands());
  EXPECT_FALSE(frmMain::mnuFileSave.Enabled);
  EXPECT_TRUE(frmMain::mnuRunStop.Enabled);
  EXPECT_TRUE(frmMain::mnuFile.Enabled);
  frmMain::EnableCommands("Step", true);
  EXPECT_EQ("Step Pause Stop ", OpenCommands());
}

TEST_F(ControlSurfaceTest, AWatcherHearsOfRealChangesOnlyAndButtonsFirst) {
  std::vector<std::string> heard;
  frmMain::Toolbar.Buttons("Step").Enabled.Watch(
      [&](bool on) { heard.push_back(on ? "button on" : "button off"); });
  frmMain::mnuRunStepInto.Enabled.Watch(
      [&](bool on) { heard.push_back(on ? "menu on" : "menu off"); });
  frmMain::EnableCommands("Step", false);
  frmMain::EnableCommands("Step", true);
  frmMain::EnableCommands("Step,Step", true);
  EXPECT_EQ((std::vector<std::string>{"button on", "menu on"}), heard);
  frmMain::Toolbar.Buttons("Step").Enabled.Watch({});
  frmMain::mnuRunStepInto.Enabled.Watch({});
}

}  // namespace

#include "debugger/run_commands.h"

#include "debugger/debug_grid.h"
#include "editor/reformat.h"
#include "editor/syntax_check.h"
#include "interpreter/machine.h"
#include "interpreter/run_driver.h"
#include "mainwindow/control_surface.h"
#include "motion/player.h"
#include "motion/stock.h"
#include "motion/tool.h"
#include "platform/files.h"
#include "toollib/tool_folder.h"

namespace frmMain {

std::int16_t SaveWasEnabled = kFalse;

namespace {

// The buttons are idle as soon as Stop is pressed, while the run below is still leaving: a Start
// in that moment must not begin a second one.
bool runActive = false;

// Menus that are closed as a whole during a run, in the order of their closing.
MenuEntry* const kRunMenus[] = {&mnuFile, &mnuView, &mnuTools, &mnuHelp};

void EnableMenus(bool enable) {
  for (MenuEntry* menu : kRunMenus) menu->Enabled = enable;
}

void PlayStopSound() {
  GCodes::PlaySoundFile(ApplicationFolder() + "\\sound\\stop.wav");
}

void Resume() {
  EnableCommands("Start", false);
  EnableCommands("Pause", true);
}

void CloseCommandsForRun() {
  SaveWasEnabled = Toolbar.Buttons("Save").Enabled ? kTrue : kFalse;
  EnableCommands("New,Open,Save,Print,Start,Step,Options", false);
  EnableMenus(false);
  TextEditor().Locked = true;
}

void PlayProgram() {
  CloseCommandsForRun();
  Graphics::LoadTool(GlobalVariables::ToolFolder() + "tool.bmp", kDefaultToolWidth,
                     kDefaultToolHeight);
  EnableCommands("Pause,Stop", true);
  Graphics::LastToolX = Graphics::kOffSurface;
  Graphics::LastToolY = Graphics::kOffSurface;
  Graphics::ClearSurface();
  GlobalVariables::StopRequested = kFalse;
  DebugWindow.TopRow = 0;
  runActive = true;
  ModCNC::RunProgram();
  runActive = false;
  Graphics::ApplyEffect();
  mnuRunStop_Click();
}

}  // namespace

void mnuRunStart_Click() {
  if (IsRunPaused()) {
    Resume();
    return;
  }
  if (runActive) return;
  ReformatText(TextEditor());
  if (CheckSyntax(TextEditor())) return;
  PlayProgram();
}

void mnuRunPause_Click() {
  EnableCommands("Start", true);
  EnableCommands("Pause", false);
  TextEditor().Locked = false;
  PlayStopSound();
}

void mnuRunStop_Click() {
  EnableCommands("Save", SaveWasEnabled != kFalse);
  EnableCommands("New,Open,Print,Start,Step,Options", true);
  EnableCommands("Pause,Stop", false);
  EnableMenus(true);
  TextEditor().Locked = false;
  GlobalVariables::StopRequested = kTrue;
  RemoveHighLighting(GlobalVariables::CurrentRow);
  GlobalVariables::CurrentRow = 0;
  ModCNC::TargetX = 0;
  ModCNC::CurrentX = 0;
  ModCNC::TargetZ = 0;
  ModCNC::CurrentZ = 0;
  PlayStopSound();
}

void mnuRunStepInto_Click() {
  mnuRunStepInto.Checked = !mnuRunStepInto.Checked;
  Toolbar.Buttons("Step").Value = mnuRunStepInto.Checked ? 1 : 0;
}

void mnuRunRunToBreakpoint_Click() {
  GlobalVariables::RunToBreakpoint = kTrue;
  mnuRunStart_Click();
}

void ResetRunCommands() {
  SaveWasEnabled = kFalse;
}

}  // namespace frmMain

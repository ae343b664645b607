#include "debugger/run_commands.h"

#include "debugger/debug_grid.h"
#include "editor/reformat.h"
#include "editor/syntax_check.h"
#include "interpreter/machine.h"
#include "interpreter/run_driver.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/view_toggles.h"
#include "motion/pattern_cycle.h"
#include "motion/player.h"
#include "motion/stock.h"
#include "motion/tool.h"
#include "platform/host/files.h"
#include "toollib/tool_folder.h"

namespace frmMain {

namespace {

// A run is on the stack. The buttons are idle as soon as Stop is pressed, while the run below is
// still leaving: a Start in that moment must not begin a second one.
bool runActive;

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
  EnableCommands(kCommandsClosedByRun, false);
  EnableMenus(false);
  TextEditor().Locked = true;
}

// Brings the rows into view in place of the editor, and up to date with its text. Where the grid is
// in view already, the rows and their break points stay.
void ShowRows() {
  if (mnuViewTextEditor.Checked) {
    mnuViewDebugWindow_Click();
  } else if (!mnuViewDebugWindow.Checked && TextChanged != kFalse) {
    FillDebugWindow();
  }
}

void PlayRows() {
  Graphics::LastToolX = Graphics::kOffSurface;
  Graphics::LastToolY = Graphics::kOffSurface;
  Graphics::ClearSurface();
  DebugWindow.TopRow = 0;
  ModCNC::RunProgram();
  Graphics::ApplyEffect();
}

void PlayProgram() {
  runActive = true;
  GlobalVariables::StopRequested = kFalse;
  // The former run may have ended between the two blocks of a cycle.
  GCodes::CycleArmed = kFalse;
  CloseCommandsForRun();
  Graphics::LoadTool(GlobalVariables::ToolFolder() + "tool.bmp", kDefaultToolWidth,
                     kDefaultToolHeight);
  EnableCommands(kRunCommands, true);
  ShowRows();
  // The user may have pressed Stop, or closed the window, while the view changed.
  if (GlobalVariables::StopRequested == kFalse) PlayRows();
  mnuRunStop_Click();
  runActive = false;
}

void OpenCommandsAfterRun() {
  EnableCommands("Save", SaveWasEnabled != kFalse);
  EnableCommands(kCommandsOpenAfterRun, true);
  EnableCommands(kRunCommands, false);
  EnableMenus(true);
  TextEditor().Locked = false;
}

// A run whose picture is wanted only at a break point is told so by `toBreakpoint`.
void StartOrResume(bool toBreakpoint) {
  if (IsRunPaused()) {
    Resume();
    return;
  }
  if (runActive || WindowClosed != kFalse) return;
  ReformatText(TextEditor());
  const bool hasFault = CheckSyntax(TextEditor());
  using GlobalVariables::RunOutcome;
  GlobalVariables::LastRun = hasFault ? RunOutcome::SyntaxFault : RunOutcome::Played;
  if (hasFault) return;
  if (!toBreakpoint) GlobalVariables::RunToBreakpoint = kFalse;
  PlayProgram();
}

}  // namespace

void mnuRunStart_Click() {
  StartOrResume(false);
}

void mnuRunPause_Click() {
  EnableCommands("Start", true);
  EnableCommands("Pause", false);
  TextEditor().Locked = false;
  PlayStopSound();
}

void mnuRunStop_Click() {
  // At the end of a run that was stopped they are open already, and the user may have moved them.
  const bool isSecondPass = runActive && GlobalVariables::StopRequested != kFalse;
  if (!isSecondPass) OpenCommandsAfterRun();
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
  StartOrResume(true);
}

void ResetRunCommands() {
  runActive = false;
}

}  // namespace frmMain

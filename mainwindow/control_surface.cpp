#include "mainwindow/control_surface.h"

#include <algorithm>
#include <initializer_list>
#include <string>

#include "interpreter/machine.h"
#include "platform/memory_rich_text.h"
#include "platform/text.h"

namespace frmMain {

namespace {

// Pixels.
constexpr double kToolBarHeight = 38;
constexpr double kStatusBarHeight = 25;

}  // namespace

ToolBar::ToolBar() {
  Bounds = {.Height = kToolBarHeight};
  for (ToolButton& button : *this) button.Caption = std::string(button.Key);
}

StatusBarControl::StatusBarControl() {
  Bounds = {.Height = kStatusBarHeight};
  double left = 0;
  for (std::size_t i = 0; StatusPanel & panel : *this) {
    panel.Left = left;
    panel.Width = kPanels[i++].Width;
    left += panel.Width;
  }
}

int ScaleWidth;
int ScaleHeight;
Property<int> WindowState;

ToolBar Toolbar;

MenuEntry mnuFile;
MenuEntry mnuFileSave;
MenuEntry mnuFilePrint;
std::array<RecentFileEntry, 4> mnuFileRecentFiles;
MenuEntry mnuView;
MenuEntry mnuViewStatusBar;
MenuEntry mnuViewToolBar;
MenuEntry mnuViewTextEditor;
MenuEntry mnuViewDebugWindow;
MenuEntry mnuRunStart;
MenuEntry mnuRunPause;
MenuEntry mnuRunStop;
MenuEntry mnuRunStepInto;
MenuEntry mnuTools;
MenuEntry mnuToolsPlaySound;
MenuEntry mnuHelp;
MenuEntry mnuToolBarShowLabels;

StatusBarControl StatusBar;
ProgressGauge ProgressBar;
SliderControl Slider;
PictureBox picSim;
CommonDialog com;
std::string Tag;
Property<std::string_view> ActiveControl;
GridTable DebugWindow;
TextBox txtDebug;
Property<ControlBounds> TextEditorBounds;
std::int16_t SaveWasEnabled;
std::int16_t TextChanged;
std::int16_t WindowClosed;

namespace {

MemoryRichText textBuffer;

MemoryRichText memoryEditor;
RichText* textEditor = &memoryEditor;
void (*textEditorHandler)() = nullptr;

}  // namespace

RichText& TextEditor() {
  return *textEditor;
}

void WatchTextEditor(void (*handler)()) {
  textEditorHandler = handler;
  textEditor->WatchChange(handler);
}

RichText& TextBuffer() {
  return textBuffer;
}

void SetTextEditor(RichText* body) {
  RichText& former = *textEditor;
  RichText& next = body != nullptr ? *body : memoryEditor;
  if (&next == &former) return;
  former.WatchChange({});
  next.SetTextRTF(former.TextRTF());
  // Values alone: each body keeps its own watchers.
  next.Locked = former.Locked.Get();
  next.Visible = former.Visible.Get();
  next.BackColor = former.BackColor.Get();
  next.Font.Name = former.Font.Name.Get();
  next.WatchChange(textEditorHandler);
  textEditor = &next;
}

namespace {

void EnableCommand(std::size_t row, bool enable) {
  Toolbar.begin()[row].Enabled = enable;
  if (MenuEntry* entry = kCommands[row].Entry) entry->Enabled = enable;
}

}  // namespace

void EnableCommands(CommandList commands, bool enable) {
  for (const std::string_view name : Split(commands.Names(), ",")) {
    EnableCommand(RowOf(kCommands, name), enable);
  }
}

CommandStates OpenCommands() {
  CommandStates states{};
  std::ranges::transform(Toolbar, states.begin(),
                         [](const ToolButton& button) { return button.Enabled.Get(); });
  return states;
}

void RestoreCommands(const CommandStates& states) {
  for (std::size_t row = 0; row < states.size(); ++row) EnableCommand(row, states[row]);
}

bool IsRunPaused() {
  return !Toolbar.Buttons("Pause").Enabled && Toolbar.Buttons("Stop").Enabled;
}

void ResetControlSurface() {
  ScaleWidth = 0;
  ScaleHeight = 0;
  WindowState = kNormal;
  Toolbar = {};
  StatusBar = {};
  for (MenuEntry* entry :
       {&mnuFile, &mnuFileSave, &mnuFilePrint, &mnuView, &mnuViewDebugWindow, &mnuRunStart,
        &mnuRunPause, &mnuRunStop, &mnuRunStepInto, &mnuTools, &mnuHelp}) {
    *entry = {};
  }
  for (MenuEntry* entry : {&mnuViewStatusBar, &mnuViewToolBar, &mnuViewTextEditor,
                           &mnuToolsPlaySound, &mnuToolBarShowLabels}) {
    *entry = {.Checked = true};
  }
  mnuFileRecentFiles = {};
  mnuFileRecentFiles[0].Loaded = true;
  mnuFileRecentFiles[0].Caption = std::string(kNoRecentFiles);
  com = {};
  Tag.clear();
  ActiveControl = Property<std::string_view>();
  ProgressBar = {};
  Slider = {};
  picSim = {};
  DebugWindow = {};
  DebugWindow.Visible = false;
  txtDebug = {};
  TextEditorBounds = ControlBounds{};
  textBuffer = {};
  memoryEditor = {};
  textEditor = &memoryEditor;
  textEditorHandler = nullptr;
  SaveWasEnabled = kFalse;
  TextChanged = kFalse;
  WindowClosed = kFalse;
  GlobalVariables::SimWidth = 0;
  GlobalVariables::SimHeight = 0;
}

}  // namespace frmMain

namespace GlobalVariables {

std::int16_t SimWidth;
std::int16_t SimHeight;

}  // namespace GlobalVariables

#include "mainwindow/start_up.h"

#include <string_view>

#include "debugger/debug_grid.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/view_toggles.h"
#include "platform/settings_store.h"
#include "settings/settings.h"

namespace frmMain {

using GlobalVariables::kApplication;

namespace {

struct ViewOption {
  std::string_view key;
  bool byDefault;
  MenuEntry* entry;
};

constexpr ViewOption kViewOptions[] = {
    {"Toolbar", true, &mnuViewToolBar},
    {"StatusBar", true, &mnuViewStatusBar},
    {"TextEditor", true, &mnuViewTextEditor},
    {"DebugWindow", false, &mnuViewDebugWindow},
};

// A stored text that is no flag counts as absent.
bool StoredMark(std::string_view section, std::string_view key, bool byDefault) {
  const bool other = !byDefault;
  return GetSetting(kApplication, section, key) == FlagText(other) ? other : byDefault;
}

void ApplyViewOptions() {
  for (const ViewOption& option : kViewOptions) {
    option.entry->Checked = StoredMark("ViewOptions", option.key, option.byDefault);
  }
  // A program that ended between the two writes of a toggle may have left both panes on.
  if (mnuViewTextEditor.Checked) mnuViewDebugWindow.Checked = false;
  StatusBar.Visible = mnuViewStatusBar.Checked;
  TextEditor().Visible = mnuViewTextEditor.Checked;
  Toolbar.Visible = mnuViewToolBar.Checked;
  DebugWindow.Visible = mnuViewDebugWindow.Checked;
}

}  // namespace

void Form_Load() {
  GlobalVariables::LoadSettings();
  ApplySettings();
  EnableCommands("Save,Print,Step,Start,Pause,Stop", false);
  StatusBar.Panels("FileName").Text = "Untitled";
}

void ApplySettings() {
  ApplyDebugWindowLayout();
  picSim.BackColor = GlobalVariables::Settings.SimBackColor;
  mnuToolBarShowLabels.Checked = !StoredMark("Toolbar", "ShowLabels", true);
  mnuToolBarShowLabels_Click();
  ApplyViewOptions();
}

}  // namespace frmMain

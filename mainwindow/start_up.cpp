#include "mainwindow/start_up.h"

#include <string>
#include <string_view>

#include "debugger/debug_grid.h"
#include "editor/colouring.h"
#include "editor/documents.h"
#include "editor/editor_events.h"
#include "editor/recent_files.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/view_toggles.h"
#include "motion/stock.h"
#include "platform/host/files.h"
#include "platform/host/notifications.h"
#include "platform/host/settings_store.h"
#include "platform/numbers.h"
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

// The words "True" and "False", or a number, of which 0 is false. Anything else counts as absent.
bool StoredMark(std::string_view section, std::string_view key, bool byDefault) {
  const std::string text = GetSetting(kApplication, section, key);
  for (const bool flag : {true, false}) {
    if (text == FlagText(flag)) return flag;
  }
  const auto number = ParseNumber(text);
  return number ? *number != 0 : byDefault;
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
  WatchTextEditor(TextEditor_Change);
  GlobalVariables::LoadSettings();
  ApplySettings();
  BuildRecentFilesMenu();
  EnableCommands(kProgramCommands, false);
  StatusBar.Panels("FileName").Text = kUntitled;
  com.InitDir = ApplicationFolder();
  if (GlobalVariables::Settings.SplashScreen != 0) Desktop::ShowSplash();
  if (mnuFileRecentFiles[0].Enabled && GlobalVariables::Settings.OpenLastFile != 0) {
    mnuFileRecentFiles_Click(0);
  }
}

void ApplyEditorFont() {
  const GlobalVariables::SettingsRecord& settings = GlobalVariables::Settings;
  TextEditor().Font.Name = settings.EditorFontName;
  TextEditor().SetSelFontSize(settings.EditorFontSize);
  TextEditor().SetSelBold(settings.EditorFontBold != 0);
}

void ApplySettings() {
  const GlobalVariables::SettingsRecord& settings = GlobalVariables::Settings;
  TextEditor().BackColor = settings.EditorBackColor;
  ApplyEditorFont();
  ApplyDebugWindowLayout();
  picSim.BackColor = settings.SimBackColor;
  mnuToolBarShowLabels.Checked = !StoredMark("Toolbar", "ShowLabels", true);
  mnuToolBarShowLabels_Click();
  ApplyViewOptions();
}

void ApplyOptions() {
  RecolourText(TextEditor().Text());
  // Without a text the colouring has nothing to bring the font to.
  if (TextEditor().Text().empty()) ApplyEditorFont();
  Graphics::CreateSurface();
  picSim.BackColor = GlobalVariables::Settings.SimBackColor;
  // The old picture goes from the screen even when the colour stays.
  if (picSim.Cls) picSim.Cls();
  ApplyDebugWindowLayout();
  ApplyDebugWindowFormats();
}

}  // namespace frmMain

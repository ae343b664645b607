#include "mainwindow/view_toggles.h"

#include <string>
#include <string_view>

#include "debugger/debug_grid.h"
#include "editor/colouring.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/layout.h"
#include "platform/host/desktop.h"
#include "platform/host/settings_store.h"
#include "settings/settings.h"

namespace frmMain {

namespace {

void Invert(MenuEntry& entry) {
  entry.Checked = !entry.Checked;
}

void StoreMark(std::string_view section, std::string_view key, const MenuEntry& entry) {
  SaveSetting(GlobalVariables::kApplication, section, key, FlagText(entry.Checked));
}

void ToggleBar(MenuEntry& entry, Control& bar, std::string_view key) {
  Invert(entry);
  bar.Visible = entry.Checked;
  ResizeControls();
  StoreMark("ViewOptions", key, entry);
}

bool BothPanesAreVisible() {
  return TextEditor().Visible && DebugWindow.Visible;
}

}  // namespace

void mnuViewToolBar_Click() {
  ToggleBar(mnuViewToolBar, Toolbar, "Toolbar");
}

void mnuViewStatusBar_Click() {
  ToggleBar(mnuViewStatusBar, StatusBar, "StatusBar");
}

void mnuViewTextEditor_Click() {
  Invert(mnuViewTextEditor);
  TextEditor().Visible = mnuViewTextEditor.Checked;
  if (BothPanesAreVisible()) {
    DebugWindow.Visible = false;
    mnuViewDebugWindow.Checked = false;
  }
  ResizeControls();
  StoreMark("ViewOptions", "TextEditor", mnuViewTextEditor);
  StoreMark("ViewOptions", "DebugWindow", mnuViewDebugWindow);
  if (TextEditor().Visible) RecolourText(TextEditor().Text());
}

void mnuViewDebugWindow_Click() {
  Invert(mnuViewDebugWindow);
  DebugWindow.Visible = mnuViewDebugWindow.Checked;
  if (BothPanesAreVisible()) {
    TextEditor().Visible = false;
    mnuViewTextEditor.Checked = false;
  }
  ResizeControls();
  StoreMark("ViewOptions", "DebugWindow", mnuViewDebugWindow);
  StoreMark("ViewOptions", "TextEditor", mnuViewTextEditor);
  if (TextChanged != kFalse) FillDebugWindow();
  Desktop::Yield();
}

void mnuToolBarShowLabels_Click() {
  Invert(mnuToolBarShowLabels);
  for (ToolButton& button : Toolbar) {
    button.Caption = mnuToolBarShowLabels.Checked ? std::string(button.Key) : std::string();
  }
  // The tool bar takes its new height.
  Desktop::Yield();
  ResizeControls();
  Desktop::Yield();
  StoreMark("Toolbar", "ShowLabels", mnuToolBarShowLabels);
}

void mnuToolsPlaySound_Click() {
  Invert(mnuToolsPlaySound);
}

}  // namespace frmMain

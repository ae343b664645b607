#pragma once

// The commands of the View menu. Each inverts its check mark, brings the control to it, lays the
// window out anew and stores the mark. Editor and grid share one place: at most one of them is
// visible, and both may be hidden.
namespace frmMain {

void mnuViewToolBar_Click();
void mnuViewStatusBar_Click();

// Hides the grid when it shows the editor.
void mnuViewTextEditor_Click();

// Hides the editor when it shows the grid. Fills the rows whenever TextChanged is set, so that
// they lose their break points.
// Yields.
void mnuViewDebugWindow_Click();

// The tool bar's buttons with or without their labels.
// Yields.
void mnuToolBarShowLabels_Click();

// Sound wanted or not; never stored.
void mnuToolsPlaySound_Click();

// How a check mark is stored.
constexpr const char* FlagText(bool flag) {
  return flag ? "True" : "False";
}

}  // namespace frmMain

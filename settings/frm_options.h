#pragma once

#include <QDialog>
#include <QPushButton>
#include <QTabWidget>

#include "settings/settings.h"

namespace frmOptions {

class DebugPage;
class EditorPage;
class SimulationPage;

// The options dialog. It works on settings of its own and shows each change in its samples; the
// store and Settings change with OK alone, which leaves "OK" in frmMain::Tag.
class OptionsDialog : public QDialog {
 public:
  explicit OptionsDialog(QWidget* parent);

 private:
  QSize WholeSize() const;
  QWidget* MakeStrip();
  void LoadWorkingColors();
  void LoadOptions();
  void SSTab_Click();
  void cmdOK_Click();
  void cmdEditorCancel_Click();

  GlobalVariables::SettingsRecord working_;
  EditorPage* editor_;
  DebugPage* debug_;
  SimulationPage* simulation_;
  QTabWidget* tabs_;
  QPushButton* cmdOK_;
};

}  // namespace frmOptions

namespace frmMain {

// Shows the options dialog modally; after OK brings the new settings to the main window's controls.
void mnuToolsOptions_Click();

}  // namespace frmMain

#pragma once

#include <QWidget>

#include "settings/settings.h"

class QCheckBox;
class QComboBox;
class QtRichText;

namespace frmOptions {

class Swatch;

// The page "Editor" of the options dialog. Its colours live in the dialog's working settings.
class EditorPage : public QWidget {
 public:
  explicit EditorPage(GlobalVariables::SettingsRecord& working);

  // Brings the working settings to the controls.
  void LoadOptions();
  // Brings what the controls show to the working settings.
  void TakeOptions();

 private:
  QWidget* MakeFontFrame();
  QWidget* MakeColourFrame();
  QWidget* MakeSampleFrame();
  QWidget* MakeOthersFrame();
  void PaintEditorSample();
  void FormatSample();
  void cmbEditorColours_Click();
  void cmdEditorDefault_Click();

  GlobalVariables::SettingsRecord& working_;
  QComboBox* cmbEditorFonts_;
  QComboBox* cmbEditorFontSize_;
  QCheckBox* chkEditorFontBold_;
  QComboBox* cmbEditorColours_;
  Swatch* lblEditorColor_;
  QtRichText* richSample_;
  QCheckBox* chkAutoComplete_;
  QCheckBox* chkAutoReformat_;
  QCheckBox* chkSplashScreen_;
  QCheckBox* chkOpenLastFile_;
};

}  // namespace frmOptions

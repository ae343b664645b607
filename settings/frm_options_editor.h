#pragma once

#include <QWidget>

#include "settings/frm_options_controls.h"
#include "settings/settings.h"

class QtRichText;

namespace frmOptions {

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
  void PaintEditorSample();
  void FormatSample();
  void cmbEditorColours_Click();
  void cmdEditorDefault_Click();

  GlobalVariables::SettingsRecord& working_;
  CheckBoxes boxes_;
  QComboBox* cmbEditorFonts_;
  QComboBox* cmbEditorFontSize_;
  QComboBox* cmbEditorColours_;
  Swatch* lblEditorColor_;
  QtRichText* richSample_;
};

}  // namespace frmOptions

#pragma once

#include <QWidget>
#include <functional>

#include "platform/grid_table.h"
#include "settings/frm_options_controls.h"
#include "settings/settings.h"

class GridView;

namespace frmOptions {

// The page "Debug" of the options dialog. Its colours live in the dialog's working settings.
class DebugPage : public QWidget {
 public:
  explicit DebugPage(GlobalVariables::SettingsRecord& working);
  ~DebugPage() override;

  // Brings the working settings to the controls.
  void LoadOptions();
  // Brings what the controls show to the working settings. Hidden line numbers have no width.
  void TakeOptions();
  void PaintDebugSample();
  // The swatch takes the colour of the entry that is chosen.
  void cmbDebugColors_Click();

  const GridTable& Sample() const { return sample_; }

  // Called when the user has chosen a colour here.
  std::function<void()> ColourChosen;

 private:
  QWidget* MakeFontFrame();
  QWidget* MakeFormatFrame();
  QWidget* MakeSampleFrame();
  void LoadSample();
  void FormatSample();
  void ShowGridLines();
  void ShowLineNumbers();
  void EvenRowHeights();
  void cmdDebugDefault_Click();

  GlobalVariables::SettingsRecord& working_;
  CheckBoxes boxes_;
  GridTable sample_;
  QComboBox* cmbDebugFonts_;
  QComboBox* cmbDebugFontSize_;
  QComboBox* cmbDebugColors_;
  Swatch* lblDebugColor_;
  GridView* debugSample_;
};

}  // namespace frmOptions

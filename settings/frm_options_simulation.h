#pragma once

#include <QWidget>
#include <array>
#include <functional>

#include "settings/settings.h"

namespace frmOptions {

class SimulationSample;
class Swatch;

// The page "Simulation" of the options dialog. Its colours live in the dialog's working settings.
class SimulationPage : public QWidget {
 public:
  explicit SimulationPage(GlobalVariables::SettingsRecord& working);

  // Brings the working colours to the swatches.
  void LoadOptions();
  void PaintSimulationSample();

  // Called when a colour has changed here.
  std::function<void()> ColourChanged;

 private:
  QWidget* MakeColourFrame();
  QWidget* MakeSampleFrame();
  void cmdSimDefaults_Click();

  GlobalVariables::SettingsRecord& working_;
  std::array<Swatch*, 3> swatches_{};
  SimulationSample* picSample_;
};

}  // namespace frmOptions

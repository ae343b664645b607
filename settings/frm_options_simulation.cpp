#include "settings/frm_options_simulation.h"

#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>
#include <cstddef>

#include "platform/qt/views/colours.h"
#include "settings/frm_options_controls.h"

namespace frmOptions {

using GlobalVariables::SettingsRecord;

namespace {

struct SimulationColour {
  const char* labelName;
  const char* caption;
  const char* swatchName;
  Colour SettingsRecord::*field;
};
constexpr SimulationColour kColours[] = {
    {"Label7", "Workpiece Colour:", "lblWPColor", &SettingsRecord::WorkPieceColor},
    {"Label8", "Background Colour:", "lblBackColor", &SettingsRecord::SimBackColor},
    {"Label6", "Effect Colour:", "lblEffectColor", &SettingsRecord::EffectColor},
};

// The bar of the sample, in pixels: two steps and their radii.
constexpr int kStepLength = 60;
constexpr int kLargeRadius = 30;
constexpr int kSmallRadius = 20;
constexpr int kToolHeight = 51;

}  // namespace

// A stepped bar with its shoulder in the effect colour, as a run leaves it, and a tool at it.
class SimulationSample : public QFrame {
 public:
  explicit SimulationSample(QWidget* parent) : QFrame(parent) {
    setFrameShape(QFrame::StyledPanel);
    setObjectName("picSample");
    setAccessibleName("Sample");
    setMinimumHeight(2 * (kSmallRadius + kToolHeight) + 8);
    tool_ = new QLabel(this);
    tool_->setObjectName("Image1");
    tool_->setPixmap(QPixmap(":/pictures/sample_tool.png"));
    tool_->adjustSize();
  }

  void Show(const SettingsRecord& colours) {
    colours_ = colours;
    isPainted_ = true;
    update();
  }

 protected:
  void resizeEvent(QResizeEvent* /*event*/) override {
    // The cutting point, its lower left corner, stands at the shoulder.
    tool_->move(Left() + kStepLength + 1, Axis() - kSmallRadius - kToolHeight);
  }
  void paintEvent(QPaintEvent* event) override {
    QFrame::paintEvent(event);
    if (!isPainted_) return;
    QPainter painter(this);
    painter.fillRect(contentsRect(), ToQColor(colours_.SimBackColor));
    FillStep(painter, 0, kLargeRadius);
    FillStep(painter, kStepLength, kSmallRadius);
    painter.fillRect(Left() + kStepLength, Axis() - kLargeRadius, 1, 2 * kLargeRadius + 1,
                     ToQColor(colours_.EffectColor));
  }

 private:
  int Left() const { return contentsRect().left(); }
  int Axis() const { return contentsRect().top() + contentsRect().height() / 2; }
  // With both of its borders.
  void FillStep(QPainter& painter, int start, int radius) const {
    painter.fillRect(Left() + start, Axis() - radius, kStepLength + 1, 2 * radius + 1,
                     ToQColor(colours_.WorkPieceColor));
  }

  QLabel* tool_;
  SettingsRecord colours_;
  bool isPainted_ = false;
};

SimulationPage::SimulationPage(SettingsRecord& working) : working_(working) {
  auto* layout = MakeLayout<QVBoxLayout>(this);
  layout->addWidget(MakeColourFrame());
  layout->addWidget(MakeSampleFrame());
  layout->addStretch(1);
  auto* cmdSimDefaults = MakeDefaultsButton("cmdSimDefaults", "Simulation's Defaults");
  layout->addWidget(cmdSimDefaults, 0, Qt::AlignRight);
  connect(cmdSimDefaults, &QPushButton::clicked, this, [this] { cmdSimDefaults_Click(); });
}

QWidget* SimulationPage::MakeColourFrame() {
  QGroupBox* frame = MakeFrame("Frame7", "Simulation Window");
  auto* form = MakeLayout<QFormLayout>(frame);
  for (std::size_t i = 0; i < swatches_.size(); ++i) {
    const SimulationColour& colour = kColours[i];
    swatches_[i] = new Swatch(colour.swatchName, colour.caption);
    AddRow(*form, colour.labelName, colour.caption, swatches_[i]);
    swatches_[i]->Chosen = [this, field = colour.field](Colour chosen) {
      working_.*field = chosen;
      PaintSimulationSample();
      if (ColourChanged) ColourChanged();
    };
  }
  return frame;
}

QWidget* SimulationPage::MakeSampleFrame() {
  QGroupBox* frame = MakeFrame("Frame8", "Sample");
  auto* column = MakeLayout<QVBoxLayout>(frame);
  picSample_ = new SimulationSample(frame);
  column->addWidget(picSample_);
  return frame;
}

void SimulationPage::LoadOptions() {
  for (std::size_t i = 0; i < swatches_.size(); ++i) {
    swatches_[i]->SetBackColor(working_.*kColours[i].field);
  }
}

void SimulationPage::PaintSimulationSample() {
  picSample_->Show(working_);
}

void SimulationPage::cmdSimDefaults_Click() {
  const SettingsRecord defaults = GlobalVariables::DefaultSettings();
  for (const SimulationColour& colour : kColours) working_.*colour.field = defaults.*colour.field;
  LoadOptions();
  PaintSimulationSample();
  if (ColourChanged) ColourChanged();
}

}  // namespace frmOptions

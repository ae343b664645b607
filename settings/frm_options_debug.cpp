#include "settings/frm_options_debug.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/numbers.h"
#include "platform/qt/views/grid_borders.h"

namespace frmOptions {

using GlobalVariables::SettingsRecord;

namespace {

struct NamedColour {
  const char* name;
  Colour SettingsRecord::*field;
};
// The last one is the simulation's own, shown here as well.
constexpr NamedColour kColours[] = {
    {"Break Point Back Colour", &SettingsRecord::BreakPointColor},
    {"Break Point Text Colour", &SettingsRecord::BreakPointTextColor},
    {"Execution Point Colour", &SettingsRecord::ExecutionPointColor},
    {"Execution Point Text Color", &SettingsRecord::ExecutionPointTextColor},
    {"Normal Back Colour", &SettingsRecord::NormalBackColor},
    {"Normal Text Colour", &SettingsRecord::NormalTextColor},
    {"Effect Colour", &SettingsRecord::EffectColor},
};
constexpr int kBreakPointText = 1;

// The image list of the sample: the marks of the main window's grid.
const char* const imglstDebug = ":/pictures/grid";

constexpr CheckBoxRow kOthers[] = {
    {"chkShowGrid", "Show &Grids", &SettingsRecord::DebugGrid},
    {"chkShowLineNumber", "&Show Line Numbers", &SettingsRecord::DebugLineNumbers},
};

// One for each row of the sample below the fixed one.
struct SampleRow {
  const char* number;
  const char* text;
  GridPicture mark;
  Colour SettingsRecord::*back;
  Colour SettingsRecord::*fore;
  bool bold;
};
constexpr SampleRow kRows[] = {
    {"001", "[BILLET X20 Z40", GridPicture::None, &SettingsRecord::NormalBackColor,
     &SettingsRecord::NormalTextColor, false},
    {"002", "G00 X20 Z00", GridPicture::Break, &SettingsRecord::BreakPointColor,
     &SettingsRecord::BreakPointTextColor, true},
    {"003", "G01 X20 Z-20", GridPicture::Step, &SettingsRecord::ExecutionPointColor,
     &SettingsRecord::ExecutionPointTextColor, false},
};
constexpr int kRowCount = static_cast<int>(std::size(kRows)) + 1;

constexpr std::uint8_t kCentred = 4;
// Twips.
constexpr int kHeadHeight = 75;
// Line numbers are smaller than the text, in points, unless that is this small itself.
constexpr int kSmallText = 9;
constexpr int kNumbersSmaller = 2;

}  // namespace

DebugPage::DebugPage(SettingsRecord& working) : working_(working) {
  sample_.SetRows(kRowCount);
  sample_.SetFontName("Tahoma");
  sample_.SetColWidth(kBreakColumn, 0);
  auto* layout = MakeLayout<QVBoxLayout>(this);
  layout->addWidget(MakeFontFrame());
  layout->addWidget(MakeFormatFrame());
  layout->addWidget(MakeSampleFrame(), 1);
  layout->addWidget(boxes_.AddFrame("Frame10", kOthers, 1));
  auto* cmdDebugDefault = MakeDefaultsButton("cmdDebugDefault", "Debug's Defaults");
  layout->addWidget(cmdDebugDefault, 0, Qt::AlignRight);

  connect(cmbDebugFonts_, &QComboBox::currentIndexChanged, this, [this] { FormatSample(); });
  connect(cmbDebugFontSize_, &QComboBox::currentIndexChanged, this, [this] { FormatSample(); });
  connect(cmbDebugColors_, &QComboBox::currentIndexChanged, this,
          [this] { cmbDebugColors_Click(); });
  lblDebugColor_->Chosen = [this](Colour colour) {
    working_.*kColours[cmbDebugColors_->currentIndex()].field = colour;
    PaintDebugSample();
    if (ColourChosen) ColourChosen();
  };
  debugSample_->DblClick = [this] { EvenRowHeights(); };
  connect(boxes_.Of(&SettingsRecord::DebugGrid), &QCheckBox::toggled, this,
          [this] { ShowGridLines(); });
  connect(boxes_.Of(&SettingsRecord::DebugLineNumbers), &QCheckBox::toggled, this,
          [this] { ShowLineNumbers(); });
  connect(cmdDebugDefault, &QPushButton::clicked, this, [this] { cmdDebugDefault_Click(); });
}

// The view must go while its table is there.
DebugPage::~DebugPage() {
  delete debugSample_;
}

QWidget* DebugPage::MakeFontFrame() {
  QGroupBox* frame = MakeFrame("Frame4", "Font");
  auto* form = MakeLayout<QFormLayout>(frame);
  cmbDebugFonts_ = MakeFontList("cmbDebugFonts");
  cmbDebugFontSize_ = MakeSizeList("cmbDebugFontSize");
  AddRow(*form, "Label5", "Font:", cmbDebugFonts_);
  AddRow(*form, "Label4", "Size:", cmbDebugFontSize_);
  return frame;
}

QWidget* DebugPage::MakeFormatFrame() {
  QGroupBox* frame = MakeFrame("Frame5", "Format");
  auto* row = MakeLayout<QHBoxLayout>(frame);
  cmbDebugColors_ = new QComboBox;
  cmbDebugColors_->setObjectName("cmbDebugColors");
  cmbDebugColors_->setAccessibleName("Format");
  for (const NamedColour& colour : kColours) cmbDebugColors_->addItem(colour.name);
  cmbDebugColors_->setCurrentIndex(-1);
  lblDebugColor_ = new Swatch("lblDebugColor", "Format Colour");
  row->addWidget(cmbDebugColors_, 1);
  row->addWidget(lblDebugColor_);
  return frame;
}

QWidget* DebugPage::MakeSampleFrame() {
  QGroupBox* frame = MakeFrame("Frame6", "Sample");
  auto* column = MakeLayout<QVBoxLayout>(frame);
  debugSample_ = new GridView(sample_, imglstDebug);
  debugSample_->setObjectName("DebugSample");
  debugSample_->setAccessibleName("Sample");
  debugSample_->setToolTip("Drag the borders of rows and columns, or press Ctrl and an arrow key");
  LetShrink(*debugSample_, 110);
  debugSample_->FixFirstRow();
  new GridBorders(sample_, *debugSample_);
  column->addWidget(debugSample_);
  return frame;
}

void DebugPage::LoadOptions() {
  ChooseFont(*cmbDebugFonts_, working_.DebugFontName);
  ChooseSize(*cmbDebugFontSize_, working_.DebugFontSize);
  LoadSample();
  boxes_.Show(working_);
  ShowLineNumbers();
  ShowGridLines();
  cmbDebugColors_->setCurrentIndex(0);
}

void DebugPage::LoadSample() {
  sample_.SetColWidth(kMarkColumn, working_.DebugC1Width);
  sample_.SetColWidth(kTextColumn, working_.DebugC2Width);
  sample_.SetRowHeight(0, kHeadHeight);
  for (int row = 1; row < kRowCount; ++row) {
    const SampleRow& sample = kRows[row - 1];
    sample_.SetTextMatrix(row, kLineNumberColumn, sample.number);
    sample_.SetTextMatrix(row, kTextColumn, sample.text);
    sample_.SetRowHeight(row, working_.DebugRowHeight);
    sample_.Select(row, kMarkColumn);
    sample_.SetCellPicture(sample.mark);
    sample_.SetCellPictureAlignment(kCentred);
  }
}

void DebugPage::TakeOptions() {
  working_.DebugFontName = cmbDebugFonts_->currentText().toStdString();
  working_.DebugFontSize = ChosenSize(*cmbDebugFontSize_);
  working_.DebugC0Width = ClipToInt16(sample_.ColWidth(kLineNumberColumn));
  working_.DebugC1Width = ClipToInt16(sample_.ColWidth(kMarkColumn));
  working_.DebugC2Width = ClipToInt16(sample_.ColWidth(kTextColumn));
  boxes_.TakeInto(working_);
  working_.DebugRowHeight =
      ClipToInt16(std::max({sample_.RowHeight(1), sample_.RowHeight(2), sample_.RowHeight(3)}));
}

void DebugPage::PaintDebugSample() {
  for (int row = 1; row < kRowCount; ++row) {
    const SampleRow& sample = kRows[row - 1];
    sample_.Select(row, kMarkColumn);
    sample_.SetCellBackColor(kMarkColumnColour);
    sample_.Select(row, kTextColumn);
    sample_.SetCellBackColor(working_.*sample.back);
    sample_.SetCellForeColor(working_.*sample.fore);
    sample_.SetCellFontBold(sample.bold);
  }
}

void DebugPage::cmbDebugColors_Click() {
  lblDebugColor_->SetBackColor(working_.*kColours[cmbDebugColors_->currentIndex()].field);
}

void DebugPage::FormatSample() {
  const std::int16_t size = ChosenSize(*cmbDebugFontSize_);
  const auto numberSize =
      static_cast<std::int16_t>(size > kSmallText ? size - kNumbersSmaller : size);
  for (int row = 1; row < kRowCount; ++row) {
    for (int column = kLineNumberColumn; column <= kTextColumn; ++column) {
      sample_.Select(row, column);
      sample_.SetCellFontName(cmbDebugFonts_->currentText().toStdString());
      sample_.SetCellFontSize(column == kLineNumberColumn ? numberSize : size);
    }
  }
}

void DebugPage::ShowGridLines() {
  sample_.SetGridLines(boxes_.Of(&SettingsRecord::DebugGrid)->isChecked() ? 1 : 0);
}

void DebugPage::ShowLineNumbers() {
  const bool areShown = boxes_.Of(&SettingsRecord::DebugLineNumbers)->isChecked();
  sample_.SetColWidth(kLineNumberColumn, areShown ? working_.DebugC0Width : 0);
}

// All rows get the height of the one under the pointer.
void DebugPage::EvenRowHeights() {
  const int clicked = sample_.MouseRow;
  if (clicked < 1) return;
  for (int row = 1; row < kRowCount; ++row) sample_.SetRowHeight(row, sample_.RowHeight(clicked));
}

// Widths and heights of the sample stay.
void DebugPage::cmdDebugDefault_Click() {
  const SettingsRecord defaults = GlobalVariables::DefaultSettings();
  ChooseFont(*cmbDebugFonts_, defaults.DebugFontName);
  ChooseSize(*cmbDebugFontSize_, defaults.DebugFontSize);
  boxes_.Show(defaults);
  for (const SampleRow& row : kRows) {
    working_.*row.back = defaults.*row.back;
    working_.*row.fore = defaults.*row.fore;
  }
  cmbDebugColors_->setCurrentIndex(kBreakPointText);
  cmbDebugColors_Click();
  PaintDebugSample();
}

}  // namespace frmOptions

#include "settings/frm_options_editor.h"

#include <QLabel>
#include <QVBoxLayout>
#include <cstddef>

#include "platform/qt/views/qt_rich_text.h"

namespace frmOptions {

using GlobalVariables::SettingsRecord;
using ColourField = Colour SettingsRecord::*;

namespace {

struct NamedColour {
  const char* name;
  ColourField field;
};
constexpr NamedColour kColours[] = {
    {"Background", &SettingsRecord::EditorBackColor},
    {"Characters", &SettingsRecord::EditorCharacterColor},
    {"Comments", &SettingsRecord::EditorCommentColor},
    {"Integers", &SettingsRecord::EditorIntegerColor},
};

constexpr CheckBoxRow kBold = {"chkEditorFontBold", "Bold", &SettingsRecord::EditorFontBold};
constexpr CheckBoxRow kOthers[] = {
    {"chkAutoComplete", "&Auto Complete", &SettingsRecord::AutoComplete},
    {"chkAutoReformat", "Auto Reformat", &SettingsRecord::AutoReformat,
     "A program is always reformatted at Start"},
    {"chkSplashScreen", "Show Splash Screen", &SettingsRecord::SplashScreen},
    {"chkOpenLastFile", "Open Last File On Startup ", &SettingsRecord::OpenLastFile},
};

constexpr const char* kSampleText = "[BILLET X20 Z40\r\nG00 X20 Z0\r\nG01 Z-40";
struct ColouredStretch {
  std::size_t start;
  std::size_t length;
  ColourField field;
};
constexpr ColouredStretch kStretches[] = {
    {0, 15, &SettingsRecord::EditorCommentColor},   {17, 1, &SettingsRecord::EditorCharacterColor},
    {21, 1, &SettingsRecord::EditorCharacterColor}, {25, 1, &SettingsRecord::EditorCharacterColor},
    {33, 1, &SettingsRecord::EditorCharacterColor}, {18, 2, &SettingsRecord::EditorIntegerColor},
    {22, 2, &SettingsRecord::EditorIntegerColor},   {26, 1, &SettingsRecord::EditorIntegerColor},
    {34, 2, &SettingsRecord::EditorIntegerColor},
};

}  // namespace

EditorPage::EditorPage(SettingsRecord& working) : working_(working) {
  auto* layout = MakeLayout<QVBoxLayout>(this);
  layout->addWidget(MakeFontFrame());
  layout->addWidget(MakeColourFrame());
  layout->addWidget(MakeSampleFrame(), 1);
  layout->addWidget(boxes_.AddFrame("Frame9", kOthers, 2));
  auto* cmdEditorDefault = MakeDefaultsButton("cmdEditorDefault", "&Editor's Defaults");
  cmdEditorDefault->setToolTip("Click here to Restore Default Values");
  layout->addWidget(cmdEditorDefault, 0, Qt::AlignRight);

  connect(cmbEditorFonts_, &QComboBox::currentIndexChanged, this, [this] { FormatSample(); });
  connect(cmbEditorFontSize_, &QComboBox::currentIndexChanged, this, [this] { FormatSample(); });
  connect(boxes_.Of(kBold.field), &QCheckBox::toggled, this, [this] { FormatSample(); });
  connect(cmbEditorColours_, &QComboBox::currentIndexChanged, this,
          [this] { cmbEditorColours_Click(); });
  lblEditorColor_->Chosen = [this](Colour colour) {
    working_.*kColours[cmbEditorColours_->currentIndex()].field = colour;
    PaintEditorSample();
  };
  connect(cmdEditorDefault, &QPushButton::clicked, this, [this] { cmdEditorDefault_Click(); });
}

QWidget* EditorPage::MakeFontFrame() {
  QGroupBox* frame = MakeFrame("Frame1", "Font");
  auto* form = MakeLayout<QFormLayout>(frame);
  cmbEditorFonts_ = MakeFontList("cmbEditorFonts");
  cmbEditorFontSize_ = MakeSizeList("cmbEditorFontSize");
  AddRow(*form, "Label1", "Font:", cmbEditorFonts_);
  AddRow(*form, "Label2", "Size:", cmbEditorFontSize_, boxes_.Add(kBold));
  return frame;
}

QWidget* EditorPage::MakeColourFrame() {
  QGroupBox* frame = MakeFrame("Frame2", "Coding Colours");
  auto* row = MakeLayout<QHBoxLayout>(frame);
  cmbEditorColours_ = new QComboBox;
  cmbEditorColours_->setObjectName("cmbEditorColours");
  cmbEditorColours_->setAccessibleName("Coding Colours");
  for (const NamedColour& colour : kColours) cmbEditorColours_->addItem(colour.name);
  cmbEditorColours_->setCurrentIndex(-1);
  lblEditorColor_ = new Swatch("lblEditorColor", "Coding Colour");
  row->addWidget(cmbEditorColours_, 1);
  row->addWidget(lblEditorColor_);
  return frame;
}

QWidget* EditorPage::MakeSampleFrame() {
  QGroupBox* frame = MakeFrame("Frame3", "Sample");
  auto* column = MakeLayout<QVBoxLayout>(frame);
  richSample_ = new QtRichText;
  richSample_->setObjectName("richSample");
  richSample_->setAccessibleName("Sample");
  LetShrink(*richSample_, 66);
  richSample_->Locked = true;
  // A sample takes no keys: Enter stays with OK.
  richSample_->setFocusPolicy(Qt::NoFocus);
  column->addWidget(richSample_);
  return frame;
}

void EditorPage::LoadOptions() {
  ChooseFont(*cmbEditorFonts_, working_.EditorFontName);
  ChooseSize(*cmbEditorFontSize_, working_.EditorFontSize);
  boxes_.Show(working_);
  richSample_->SetText(kSampleText);
  FormatSample();
  PaintEditorSample();
  cmbEditorColours_->setCurrentIndex(0);
}

void EditorPage::TakeOptions() {
  working_.EditorFontName = cmbEditorFonts_->currentText().toStdString();
  working_.EditorFontSize = ChosenSize(*cmbEditorFontSize_);
  boxes_.TakeInto(working_);
}

void EditorPage::PaintEditorSample() {
  richSample_->BackColor = working_.EditorBackColor;
  for (const ColouredStretch& stretch : kStretches) {
    richSample_->SetSelStart(stretch.start);
    richSample_->SetSelLength(stretch.length);
    richSample_->SetSelColor(working_.*stretch.field);
  }
  richSample_->SetSelStart(0);
}

void EditorPage::FormatSample() {
  richSample_->SetSelStart(0);
  richSample_->SetSelLength(richSample_->Text().size());
  richSample_->SetSelFontName(cmbEditorFonts_->currentText().toStdString());
  richSample_->SetSelFontSize(ChosenSize(*cmbEditorFontSize_));
  richSample_->SetSelBold(boxes_.Of(kBold.field)->isChecked());
  richSample_->SetSelStart(0);
}

void EditorPage::cmbEditorColours_Click() {
  lblEditorColor_->SetBackColor(working_.*kColours[cmbEditorColours_->currentIndex()].field);
}

void EditorPage::cmdEditorDefault_Click() {
  const SettingsRecord defaults = GlobalVariables::DefaultSettings();
  ChooseFont(*cmbEditorFonts_, defaults.EditorFontName);
  ChooseSize(*cmbEditorFontSize_, defaults.EditorFontSize);
  boxes_.Show(defaults);
  // The swatch keeps its colour until the list is used.
  for (const NamedColour& colour : kColours) working_.*colour.field = defaults.*colour.field;
  PaintEditorSample();
}

}  // namespace frmOptions

#include "toollib/frm_tool_select.h"

#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QFrame>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "mainwindow/frm_help.h"
#include "platform/host/desktop.h"
#include "platform/host/files.h"
#include "platform/host/pictures.h"
#include "platform/qt/host/dialog_owner.h"
#include "platform/qt/views/colours.h"
#include "platform/qt/views/picture_strip.h"
#include "platform/qt/views/raster_image.h"
#include "settings/settings.h"
#include "toollib/tool_files.h"
#include "toollib/tool_folder.h"

namespace frmToolSelect {

using GlobalVariables::ToolDescription;
using GlobalVariables::ToolFiles;

namespace {

// Pixels; larger where the font asks for it.
constexpr QSize kSmallestSize(392, 418);
constexpr int kListWidth = 136;
constexpr int kNameLines = 2;

struct Value {
  const char* labelName;
  const char* caption;
  const char* valueName;
  std::optional<std::string> ToolDescription::*field;
};
constexpr Value kValues[] = {
    {"Label1", "Name:", "lblName", &ToolDescription::Name},
    {"Label2", "Tool Width:", "lblToolWidth", &ToolDescription::Width},
    {"Label3", "Tool Height:", "lblToolHeight", &ToolDescription::Height},
    {"Label4", "Cutting Point:", "lblCuttingPoint", &ToolDescription::CuttingPoint},
};

// A text that comes from a file: no markup, and it doesn't stretch the dialog.
QLabel* MakeValueLabel(const char* name) {
  auto* label = new QLabel;
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignTop);
  label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  return label;
}

// With a tool tip for what the label has no room for.
void SetText(QLabel& label, const QString& text) {
  label.setText(text);
  label.setToolTip(Qt::convertFromPlainText(text));
}

QLabel* MakeHeading(const char* name, const QString& caption, QWidget* buddy) {
  auto* label = new QLabel(caption);
  label->setObjectName(name);
  label->setBuddy(buddy);
  if (buddy != nullptr) buddy->setAccessibleName(QString(caption).remove('&'));
  label->setAlignment(Qt::AlignTop);
  return label;
}

QPushButton* MakeButton(const char* name, const QString& caption) {
  auto* button = new QPushButton(caption);
  button->setObjectName(name);
  return button;
}

QStringList BitmapNames() {
  QStringList names;
  const QDir folder(QString::fromStdString(AssetPath(GlobalVariables::ToolFolder())));
  for (const QString& name :
       folder.entryList({"*.bmp"}, QDir::Files, QDir::Name | QDir::IgnoreCase)) {
    if (GlobalVariables::IsBareBitmapName(name.toStdString())) names += name;
  }
  return names;
}

// As the simulation shows it: without its background.
QPixmap ToPixmap(const Raster& raster) {
  QImage image = ToQImage(raster);
  const QRgb background = ToQColor(kTransparent).rgb();
  image.setAlphaChannel(image.createMaskFromColor(background, Qt::MaskOutColor));
  return QPixmap::fromImage(image);
}

}  // namespace

// Keeps the picture in its middle, also one that is larger than itself.
class ToolPicture : public QFrame {
 public:
  ToolPicture() : picture_(new QLabel(this)) {
    setObjectName("picTool");
    picture_->setObjectName("imgTool");
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, ToQColor(GlobalVariables::Settings.SimBackColor));
    setPalette(colours);
  }

  void Show(const QPixmap& picture) {
    picture_->setPixmap(picture);
    picture_->adjustSize();
    Centre();
  }

 protected:
  void resizeEvent(QResizeEvent* /*event*/) override { Centre(); }

 private:
  void Centre() {
    picture_->move((width() - picture_->width()) / 2, (height() - picture_->height()) / 2);
  }

  QLabel* picture_;
};

ToolLibraryDialog::ToolLibraryDialog(QWidget* parent) : QDialog(parent) {
  setObjectName("frmToolSelect");
  setWindowTitle("Tool Library");
  auto* layout = new QVBoxLayout(this);
  const int margin = layout->contentsMargins().left();
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(MakeBanner());
  auto* columns = new QHBoxLayout;
  columns->setContentsMargins(margin, 0, margin, margin);
  columns->addWidget(MakeLists());
  auto* right = new QVBoxLayout;
  right->addWidget(MakeDetails(), 1);
  right->addWidget(MakeButtons());
  columns->addLayout(right, 1);
  layout->addLayout(columns, 1);
  // Of the dialog, which the button has joined only now.
  cmdAssign_->setDefault(true);
  setFixedSize(sizeHint().expandedTo(kSmallestSize));
  frmMain::OfferHelp(*this);
  Form_Load();
}

QWidget* ToolLibraryDialog::MakeBanner() {
  auto* band = new QWidget;
  band->setObjectName("Shape1");
  auto* layout = new QHBoxLayout(band);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* picture = new PictureStrip(":/pictures/tool_library.png", Qt::Horizontal);
  picture->setObjectName("Image1");
  layout->addWidget(picture);
  return band;
}

QWidget* ToolLibraryDialog::MakeLists() {
  auto* lists = new QWidget;
  lists->setFixedWidth(kListWidth);
  auto* layout = new QVBoxLayout(lists);
  layout->setContentsMargins(0, 0, 0, 0);
  cmbTools_ = new QComboBox;
  cmbTools_->setObjectName("cmbTools");
  lblFile_ = MakeValueLabel("lblFile");
  fileList_ = new QListWidget;
  fileList_->setObjectName("FileList");
  layout->addWidget(MakeHeading("Label5", "&Tool Number", cmbTools_));
  layout->addWidget(cmbTools_);
  layout->addWidget(lblFile_);
  layout->addWidget(MakeHeading("Label6", "Tool &List", fileList_));
  layout->addWidget(fileList_, 1);
  // The first also when the number chosen again is the same.
  connect(cmbTools_, &QComboBox::activated, this, [this] { cmbTools_Click(); });
  connect(cmbTools_, &QComboBox::currentIndexChanged, this, [this] { cmbTools_Click(); });
  connect(fileList_, &QListWidget::itemSelectionChanged, this, [this] { FileList_Click(); });
  return lists;
}

QWidget* ToolLibraryDialog::MakeDetails() {
  auto* frame = new QGroupBox("Details");
  frame->setObjectName("Frame1");
  auto* layout = new QVBoxLayout(frame);
  picTool_ = new ToolPicture;
  layout->addWidget(picTool_, 1);
  auto* form = new QFormLayout;
  for (std::size_t i = 0; i < values_.size(); ++i) {
    values_[i] = MakeValueLabel(kValues[i].valueName);
    values_[i]->setText(kValues[i].caption);
    form->addRow(MakeHeading(kValues[i].labelName, kValues[i].caption, nullptr), values_[i]);
  }
  // The picture keeps its room while names change.
  values_[0]->setMinimumHeight(kNameLines * fontMetrics().lineSpacing());
  layout->addLayout(form);
  return frame;
}

QWidget* ToolLibraryDialog::MakeButtons() {
  auto* buttons = new QWidget;
  auto* layout = new QHBoxLayout(buttons);
  layout->setContentsMargins(0, 0, 0, 0);
  cmdAssign_ = MakeButton("cmdAssign", "&Assign");
  QPushButton* cmdClose = MakeButton("cmdClose", "&Close");
  layout->addStretch(1);
  layout->addWidget(cmdAssign_);
  layout->addWidget(cmdClose);
  connect(cmdAssign_, &QPushButton::clicked, this, [this] { cmdAssign_Click(); });
  connect(cmdClose, &QPushButton::clicked, this, [this] { cmdClose_Click(); });
  return buttons;
}

void ToolLibraryDialog::Form_Load() {
  fileList_->addItems(BitmapNames());
  GetToolList();
  const QSignalBlocker quiet(cmbTools_);
  for (const std::string& item : cmbTools.List.Get()) {
    cmbTools_->addItem(QString::fromStdString(item));
  }
  cmbTools_->setCurrentIndex(-1);
  ShowAssignedFile();
  EnableAssign();
}

void ToolLibraryDialog::cmbTools_Click() {
  ShowAssignedFile();
  EnableAssign();
  const auto number = ChosenNumber();
  if (!number) return;
  const auto matches =
      fileList_->findItems(QString::fromStdString(ToolFiles[*number]), Qt::MatchFixedString);
  if (!matches.isEmpty()) fileList_->setCurrentItem(matches.constFirst());
}

void ToolLibraryDialog::FileList_Click() {
  EnableAssign();
  if (const auto file = ChosenFile()) {
    ShowToolDetails(GlobalVariables::ToolFolder() + file->toStdString());
  }
}

void ToolLibraryDialog::ShowToolDetails(const std::string& path) {
  std::string reason;
  const auto picture = LoadPicture(path, reason);
  picTool_->Show(picture ? ToPixmap(*picture) : QPixmap());
  std::string noDescription;
  const auto description = GlobalVariables::ReadToolDescription(path, noDescription);
  for (std::size_t i = 0; i < values_.size(); ++i) {
    const auto value = description ? *description.*kValues[i].field : std::string();
    // A key that the file doesn't hold leaves what the last tool had.
    if (value) SetText(*values_[i], QString::fromStdString(*value));
  }
  if (!picture) Desktop::ShowError(reason);
}

void ToolLibraryDialog::cmdAssign_Click() {
  const auto number = ChosenNumber();
  const auto file = ChosenFile();
  if (!number || !file) return;
  ToolFiles[*number] = file->toStdString();
  ShowAssignedFile();
}

void ToolLibraryDialog::cmdClose_Click() {
  std::string reason;
  if (WriteToolList(reason)) {
    accept();
  } else {
    Desktop::ShowError(reason);
  }
}

void ToolLibraryDialog::ShowAssignedFile() {
  const auto number = ChosenNumber();
  // The line keeps its room.
  if (!number) return lblFile_->setText(" ");
  const QString file = QString::fromStdString(ToolFiles[*number]);
  const bool isThere = !fileList_->findItems(file, Qt::MatchFixedString).isEmpty();
  SetText(*lblFile_, file.isEmpty() ? "No tool assigned" : isThere ? file : file + " (missing)");
}

void ToolLibraryDialog::EnableAssign() {
  cmdAssign_->setEnabled(ChosenNumber() && ChosenFile());
}

std::optional<std::size_t> ToolLibraryDialog::ChosenNumber() const {
  const int index = cmbTools_->currentIndex();
  if (index < 0) return std::nullopt;
  return static_cast<std::size_t>(cmbTools.ItemData[static_cast<std::size_t>(index)]);
}

std::optional<QString> ToolLibraryDialog::ChosenFile() const {
  const auto chosen = fileList_->selectedItems();
  if (chosen.isEmpty()) return std::nullopt;
  return chosen.constFirst()->text();
}

}  // namespace frmToolSelect

namespace frmMain {

void mnuToolLibrary_Click() {
  frmToolSelect::ToolLibraryDialog(DialogOwner()).exec();
}

}  // namespace frmMain

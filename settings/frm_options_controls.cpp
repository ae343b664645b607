#include "settings/frm_options_controls.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>

#include "mainwindow/control_surface.h"
#include "platform/numbers.h"
#include "platform/qt/views/colours.h"

namespace frmOptions {

using GlobalVariables::SettingsRecord;

namespace {

constexpr int kSwatchSide = 26;
constexpr int kSmallestSize = 8;
constexpr int kLargestSize = 24;

QComboBox* MakeList(const char* name) {
  auto* list = new QComboBox;
  list->setObjectName(name);
  return list;
}

QString SizeText(int points) {
  return QString::fromStdString(DecimalText(points));
}

}  // namespace

Swatch::Swatch(const char* name, const QString& accessibleName) {
  setObjectName(name);
  setAccessibleName(accessibleName);
  setFocusPolicy(Qt::StrongFocus);
  setFixedSize(kSwatchSide, kSwatchSide);
  setCursor(Qt::PointingHandCursor);
  connect(this, &QAbstractButton::clicked, this, [this] {
    if (!frmMain::com.ShowColor()) return;
    SetBackColor(frmMain::com.Color);
    if (Chosen) Chosen(colour_);
  });
}

void Swatch::SetBackColor(Colour colour) {
  colour_ = colour;
  update();
}

QSize Swatch::sizeHint() const {
  return {kSwatchSide, kSwatchSide};
}

void Swatch::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QColor border = palette().color(hasFocus() ? QPalette::Highlight : QPalette::WindowText);
  painter.fillRect(rect(), border);
  // The second line keeps the border apart from a colour like its own.
  const int width = hasFocus() ? 2 : 1;
  const QRect inner = rect().adjusted(width, width, -width, -width);
  painter.fillRect(inner, palette().color(QPalette::Window));
  painter.fillRect(inner.adjusted(1, 1, -1, -1), ToQColor(colour_));
}

QGroupBox* MakeFrame(const char* name, const QString& caption) {
  auto* frame = new QGroupBox(caption);
  frame->setObjectName(name);
  return frame;
}

QPushButton* MakeDefaultsButton(const char* name, const QString& caption) {
  auto* button = new QPushButton(caption);
  button->setObjectName(name);
  // Enter is for OK.
  button->setAutoDefault(false);
  return button;
}

void AddRow(QFormLayout& form, const char* labelName, const QString& caption, QWidget* control,
            QWidget* atEnd) {
  auto* label = new QLabel(caption);
  label->setObjectName(labelName);
  label->setBuddy(control);
  // A list would be called by what is chosen in it.
  control->setAccessibleName(caption);
  auto* row = new QHBoxLayout;
  row->addWidget(control);
  if (atEnd != nullptr) row->addWidget(atEnd);
  form.addRow(label, row);
}

void LetShrink(QWidget& control, int height) {
  control.setMinimumHeight(height);
  control.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
}

QCheckBox* CheckBoxes::Add(const CheckBoxRow& row) {
  auto* box = new QCheckBox(row.caption);
  box->setObjectName(row.name);
  box->setToolTip(row.toolTip);
  boxes_.emplace_back(row.field, box);
  return box;
}

QGroupBox* CheckBoxes::AddFrame(const char* name, std::span<const CheckBoxRow> rows, int columns) {
  QGroupBox* frame = MakeFrame(name, "Others");
  auto* grid = MakeLayout<QGridLayout>(frame);
  const int height = (static_cast<int>(rows.size()) + columns - 1) / columns;
  int place = 0;
  for (const CheckBoxRow& row : rows) {
    grid->addWidget(Add(row), place % height, place / height);
    ++place;
  }
  return frame;
}

QCheckBox* CheckBoxes::Of(FlagField field) const {
  for (const auto& [known, box] : boxes_) {
    if (known == field) return box;
  }
  return nullptr;
}

void CheckBoxes::Show(const SettingsRecord& options) {
  for (const auto& [field, box] : boxes_) box->setChecked(options.*field != 0);
}

void CheckBoxes::TakeInto(SettingsRecord& options) const {
  for (const auto& [field, box] : boxes_) options.*field = box->isChecked() ? 1 : 0;
}

QComboBox* MakeFontList(const char* name) {
  QComboBox* list = MakeList(name);
  list->addItems({"Arial", "Courier", "Courier New", "Tahoma", "Times New Roman", "Vardana"});
  list->setCurrentIndex(-1);
  return list;
}

QComboBox* MakeSizeList(const char* name) {
  QComboBox* list = MakeList(name);
  for (int points = kSmallestSize; points <= kLargestSize; ++points) {
    list->addItem(SizeText(points));
  }
  list->setCurrentIndex(-1);
  return list;
}

void ChooseFont(QComboBox& list, const std::string& font) {
  const QString name = QString::fromStdString(font);
  if (list.findText(name, Qt::MatchFixedString | Qt::MatchCaseSensitive) < 0) {
    int place = 0;
    while (place < list.count() && list.itemText(place).compare(name, Qt::CaseInsensitive) < 0) {
      ++place;
    }
    list.insertItem(place, name);
  }
  list.setCurrentText(name);
}

void ChooseSize(QComboBox& list, std::int16_t points) {
  const QString text = SizeText(points);
  if (list.findText(text) < 0) list.insertItem(points < kSmallestSize ? 0 : list.count(), text);
  list.setCurrentText(text);
}

std::int16_t ChosenSize(const QComboBox& list) {
  return ParseInt16(list.currentText().toStdString()).value_or(0);
}

}  // namespace frmOptions

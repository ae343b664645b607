#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QPushButton>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/colour.h"
#include "settings/settings.h"

// The controls that the pages of the options dialog share.
namespace frmOptions {

// Shows a colour; clicked, it lets the user choose another one.
class Swatch : public QAbstractButton {
 public:
  Swatch(const char* name, const QString& accessibleName);

  void SetBackColor(Colour colour);
  // Called when the user has chosen a colour.
  std::function<void(Colour)> Chosen;

 protected:
  QSize sizeHint() const override;
  void paintEvent(QPaintEvent* event) override;

 private:
  Colour colour_ = 0;
};

QGroupBox* MakeFrame(const char* name, const QString& caption);
// A layout of a page or a frame, with margins that spare room.
template <class Layout>
Layout* MakeLayout(QWidget* parent) {
  auto* layout = new Layout(parent);
  layout->setContentsMargins(6, 6, 6, 6);
  return layout;
}
QPushButton* MakeDefaultsButton(const char* name, const QString& caption);
// Adds a row of a label and its control, and another control at its end.
void AddRow(QFormLayout& form, const char* labelName, const QString& caption, QWidget* control,
            QWidget* atEnd = nullptr);
// A control that takes the space that is left, at least so many pixels of height.
void LetShrink(QWidget& control, int height);

using FlagField = std::int16_t GlobalVariables::SettingsRecord::*;

// An option that is a check box. Its key and its default stand with its field.
struct CheckBoxRow {
  const char* name;
  const char* caption;
  FlagField field;
  const char* toolTip = "";
};

// The check boxes of a page.
class CheckBoxes {
 public:
  QCheckBox* Add(const CheckBoxRow& row);
  // The frame "Others", filled column by column.
  QGroupBox* AddFrame(const char* name, std::span<const CheckBoxRow> rows, int columns);
  // The box of an option that was added.
  QCheckBox* Of(FlagField field) const;

  // Brings options to the boxes, and back.
  void Show(const GlobalVariables::SettingsRecord& options);
  void TakeInto(GlobalVariables::SettingsRecord& options) const;

 private:
  std::vector<std::pair<FlagField, QCheckBox*>> boxes_;
};

// The drop-down lists of fonts and of sizes in points. With nothing chosen at first.
QComboBox* MakeFontList(const char* name);
QComboBox* MakeSizeList(const char* name);
// Both choose an entry. One that the list hasn't got is added in its place: a stored value stays.
void ChooseFont(QComboBox& list, const std::string& font);
void ChooseSize(QComboBox& list, std::int16_t points);
std::int16_t ChosenSize(const QComboBox& list);

}  // namespace frmOptions

#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QPushButton>
#include <cstdint>
#include <functional>
#include <string>

#include "platform/colour.h"

// The controls that the pages of the options dialog share.
namespace frmOptions {

// Shows a colour; clicked, it lets the user choose another one.
class Swatch : public QAbstractButton {
 public:
  Swatch(const char* name, const QString& accessibleName);

  Colour BackColor() const { return colour_; }
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
QCheckBox* MakeCheckBox(const char* name, const QString& caption);
QPushButton* MakeDefaultsButton(const char* name, const QString& caption);
// Adds a row of a label and its control, and another control at its end.
void AddRow(QFormLayout& form, const char* labelName, const QString& caption, QWidget* control,
            QWidget* atEnd = nullptr);
// A control that takes the space that is left, at least so many pixels of height.
void LetShrink(QWidget& control, int height);
inline std::int16_t FlagOf(const QCheckBox& box) {
  return box.isChecked() ? 1 : 0;
}

// The drop-down lists of fonts and of sizes in points. With nothing chosen at first.
QComboBox* MakeFontList(const char* name);
QComboBox* MakeSizeList(const char* name);
// Both choose an entry. One that the list hasn't got is added in its place: a stored value stays.
void ChooseFont(QComboBox& list, const std::string& font);
void ChooseSize(QComboBox& list, std::int16_t points);
std::int16_t ChosenSize(const QComboBox& list);

}  // namespace frmOptions

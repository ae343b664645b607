#include <QAbstractButton>
#include <QMessageBox>

#include "platform/host/desktop.h"
#include "platform/qt/host/dialog_owner.h"

namespace {

struct IconStyle {
  int style;
  QMessageBox::Icon icon;
};
constexpr IconStyle kIcons[] = {
    {Desktop::kCritical, QMessageBox::Critical},
    {Desktop::kQuestion, QMessageBox::Question},
    {Desktop::kInformation, QMessageBox::Information},
};
constexpr int kIconBits = 0xF0;
constexpr int kButtonBits = 0x0F;

struct ButtonAnswer {
  QMessageBox::StandardButton button;
  int answer;
};
constexpr ButtonAnswer kAnswers[] = {
    {QMessageBox::Yes, Desktop::kYes},
    {QMessageBox::No, Desktop::kNo},
    {QMessageBox::Cancel, Desktop::kCancel},
};

}  // namespace

namespace Desktop {

int MessageBox(const std::string& text, int style, const std::string& title) {
  QMessageBox box(DialogOwner());
  box.setWindowTitle(QString::fromStdString(title.empty() ? kProgramTitle : title));
  // Texts come from programs and files: nothing in them is markup.
  box.setTextFormat(Qt::PlainText);
  box.setText(QString::fromStdString(text));
  for (const IconStyle& entry : kIcons) {
    if ((style & kIconBits) == entry.style) box.setIcon(entry.icon);
  }
  const int buttons = style & kButtonBits;
  if (buttons == kOkOnly) {
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
    return kOk;
  }
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
  box.setDefaultButton((style & Desktop::kDefaultButton2) != 0 ? QMessageBox::No
                                                               : QMessageBox::Yes);
  // Out of sight it still takes Esc and the close box, which are no No.
  if (buttons == kYesNo) box.button(QMessageBox::Cancel)->hide();
  const int chosen = box.exec();
  for (const ButtonAnswer& entry : kAnswers) {
    if (chosen == entry.button) return entry.answer;
  }
  return kCancel;
}

}  // namespace Desktop

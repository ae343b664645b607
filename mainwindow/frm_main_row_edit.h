#pragma once

#include <QAbstractScrollArea>
#include <QLineEdit>

#include "platform/qt/views/bindings.h"
#include "platform/qt/views/document_text.h"

namespace frmMain {

// Tells the user, behind the event that is handled, which character kept a text from being pasted.
void TellRefusedPaste(const RefusedCharacter& refused);

// txtDebug on the screen. A child of the grid, so that it goes out of view with its row. A
// character that the code page lacks can't be typed.
class RowEditBox : public QLineEdit {
 public:
  explicit RowEditBox(QAbstractScrollArea* grid);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* viewport, QEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void ShowFont();
  void Place();
  void Appear(bool visible);

  QAbstractScrollArea* grid_;
  Bindings bindings_;
  // The key that is down was pressed in this box.
  bool pressed_ = false;
  // What is refused now is typed, not pasted.
  bool typing_ = false;
};

}  // namespace frmMain

#pragma once

#include <QAbstractScrollArea>
#include <QLineEdit>

#include "platform/qt/views/bindings.h"
#include "platform/qt/views/document_text.h"

namespace frmMain {

// Tells the user, behind the event that is handled, which character kept a text from being pasted.
void TellRefusedPaste(const RefusedCharacter& refused);

// txtDebug on the screen, over the grid and as large as the part of its row that is in view. Beside
// the grid, not in it: accessibility knows a grid's cells alone. A character that the code page
// lacks can't be typed.
class RowEditBox : public QLineEdit {
 public:
  explicit RowEditBox(QAbstractScrollArea* grid);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
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

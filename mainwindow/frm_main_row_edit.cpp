#include "mainwindow/frm_main_row_edit.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QValidator>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "debugger/row_edit.h"
#include "mainwindow/control_surface.h"
#include "platform/code_page.h"
#include "platform/host/desktop.h"
#include "platform/qt/views/key_codes.h"

namespace frmMain {

namespace {

class CodePageValidator : public QValidator {
 public:
  using QValidator::QValidator;
  State validate(QString& text, int& /*place*/) const override {
    refused_ = FindRefusedCharacter(text);
    // A row is one line: those of a pasted text are joined by blanks.
    text.replace("\r\n", " ").replace('\r', ' ').replace('\n', ' ');
    return refused_ ? Invalid : Acceptable;
  }
  // Of the text that was asked for last.
  const std::optional<RefusedCharacter>& Refused() const { return refused_; }

 private:
  mutable std::optional<RefusedCharacter> refused_;
};

}  // namespace

void TellRefusedPaste(const RefusedCharacter& refused) {
  const QString code = QString::number(refused.character.toUcs4().constFirst(), 16).toUpper();
  const QString text = QString(
                           "The character \"%1\" (U+%2) in row %3 of the pasted text can't stand "
                           "in a program. Nothing has been pasted.")
                           .arg(refused.character, code.rightJustified(4, '0'))
                           .arg(refused.row);
  QMetaObject::invokeMethod(
      qApp, [reason = text.toStdString()] { Desktop::ShowError(reason); }, Qt::QueuedConnection);
}

RowEditBox::RowEditBox(QAbstractScrollArea* grid) : QLineEdit(grid->parentWidget()), grid_(grid) {
  setObjectName("txtDebug");
  setAccessibleName("Text of the row");
  auto* validator = new CodePageValidator(this);
  setValidator(validator);
  connect(this, &QLineEdit::inputRejected, this, [this, validator] {
    if (!typing_ && validator->Refused()) TellRefusedPaste(*validator->Refused());
  });
  // Always as a pair: the grid's colours are the user's own.
  QPalette colours = palette();
  colours.setColor(QPalette::Base, Qt::white);
  colours.setColor(QPalette::Text, Qt::black);
  setPalette(colours);

  bindings_.Bind(txtDebug.Text, [this](const std::string& text) {
    const QString shown = QString::fromStdString(CodePageToUtf8(text));
    if (shown != this->text()) setText(shown);
  });
  bindings_.Bind(txtDebug.Bounds, [this](const ControlBounds&) { Place(); });
  connect(grid->horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { Place(); });
  grid->installEventFilter(this);
  grid->viewport()->installEventFilter(this);
  bindings_.Bind(txtDebug.Visible, [this](bool visible) { Appear(visible); });
  connect(this, &QLineEdit::textChanged, this, [](const QString& text) {
    txtDebug.Text = Utf8ToCodePage(text.toStdString()).value_or("");
  });
}

// A key that went down elsewhere, such as the Enter of a message box, is none of this box.
void RowEditBox::keyPressEvent(QKeyEvent* event) {
  pressed_ = true;
  const QScopedValueRollback typing(typing_, !event->matches(QKeySequence::Paste));
  QLineEdit::keyPressEvent(event);
}

void RowEditBox::keyReleaseEvent(QKeyEvent* event) {
  QLineEdit::keyReleaseEvent(event);
  if (!event->isAutoRepeat() && std::exchange(pressed_, false)) {
    txtDebug_KeyUp(VirtualKey(*event), ShiftState(*event));
  }
}

bool RowEditBox::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::Move) Place();
  if (event->type() == QEvent::Hide) hide();
  return QLineEdit::eventFilter(watched, event);
}

// The rows scroll under the pointer wherever it is.
void RowEditBox::wheelEvent(QWheelEvent* event) {
  QApplication::sendEvent(grid_->viewport(), event);
}

void RowEditBox::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  // Neither its own pop-up menu nor another program ends the edit.
  if (event->reason() == Qt::PopupFocusReason) return;
  if (event->reason() == Qt::ActiveWindowFocusReason) return;
  txtDebug_LostFocus();
}

void RowEditBox::ShowFont() {
  QFont shown = font();
  shown.setFamilies({QString::fromStdString(txtDebug.FontName)});
  shown.setPointSize(std::max(txtDebug.FontSize.Get(), 1));
  setFont(shown);
}

// Beside the scroll bar and the line numbers, as far as the row is in view. A row out of view
// leaves the box with the focus and without a size.
void RowEditBox::Place() {
  const ControlBounds& bounds = txtDebug.Bounds;
  const ControlBounds& outer = DebugWindow.Bounds;
  const QRectF place(bounds.Left - outer.Left - grid_->horizontalScrollBar()->value(),
                     bounds.Top - outer.Top, bounds.Width, bounds.Height);
  QRect inGrid = place.toRect();
  inGrid.setRight(grid_->width());
  setGeometry(inGrid.intersected(grid_->viewport()->geometry()).translated(grid_->pos()));
}

void RowEditBox::Appear(bool visible) {
  pressed_ = false;
  if (!visible) {
    // The grid gets the focus: the keyboard stays where the user works.
    if (hasFocus()) grid_->setFocus();
    hide();
    return;
  }
  ShowFont();
  show();
  raise();
  setFocus();
  setCursorPosition(txtDebug.SelStart);
}

}  // namespace frmMain

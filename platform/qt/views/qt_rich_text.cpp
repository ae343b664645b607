#include "platform/qt/views/qt_rich_text.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>

#include "platform/code_page.h"
#include "platform/qt/views/colours.h"
#include "platform/qt/views/key_codes.h"
#include "platform/text.h"
#include "platform/virtual_keys.h"

namespace {

// Of the caret without the keyboard, in pixels.
constexpr int kMarkWidth = 3;

void SetBackground(QTextEdit& editor, Colour background) {
  QPalette palette = editor.palette();
  palette.setColor(QPalette::Base, ToQColor(background));
  // Also the colour of the caret.
  palette.setColor(QPalette::Text, TextColourOn(background));
  // A selected fault stays in sight behind its message box.
  palette.setColor(QPalette::Inactive, QPalette::Highlight,
                   palette.color(QPalette::Active, QPalette::Highlight));
  palette.setColor(QPalette::Inactive, QPalette::HighlightedText,
                   palette.color(QPalette::Active, QPalette::HighlightedText));
  editor.setPalette(palette);
}

void SetFamily(QTextEdit& editor, const std::string& name) {
  QFont font = editor.font();
  font.setFamilies({QString::fromStdString(name)});
  editor.setFont(font);
}

bool IsEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

// Tab and whatever can be seen.
bool HasCharacter(const QKeyEvent& event) {
  const QString text = event.text();
  return !text.isEmpty() && (text.front().isPrint() || text.front().isSurrogate() || text == "\t");
}

// The char formats of the formats met so far: making one costs more than looking it up.
class FormatCache {
 public:
  const QTextCharFormat& Of(const TextFormat& format) {
    for (const auto& [known, made] : made_) {
      if (known == format) return made;
    }
    return made_.emplace_back(format, ToCharFormat(format)).second;
  }

 private:
  std::vector<std::pair<TextFormat, QTextCharFormat>> made_;
};

}  // namespace

QtRichText::QtRichText(QWidget* parent) : QTextEdit(parent) {
  setLineWrapMode(QTextEdit::NoWrap);
  SetBackground(*this, BackColor);
  BackColor.Watch([this](Colour background) { SetBackground(*this, background); });
  Font.Name.Watch([this](const std::string& name) { SetFamily(*this, name); });
  Locked.Watch([this](bool locked) {
    setTextInteractionFlags(locked ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                   : Qt::TextEditorInteraction);
  });
  connect(document(), &QTextDocument::contentsChange, this, [this](int, int, int) {
    textIsCurrent_ = false;
    typedEnd_ = -1;
    changed_ = !quiet_;
  });
  // This signal comes after the layout has followed, but doesn't tell a format from a text: undo
  // may take back nothing but colours.
  connect(document(), &QTextDocument::contentsChanged, this, [this] {
    if (!std::exchange(changed_, false)) return;
    const std::string former = text_;
    if (Text() != former) NotifyChange();
  });
  connect(this, &QTextEdit::cursorPositionChanged, this, &QtRichText::ShowSelFormat);
  connect(this, &QTextEdit::selectionChanged, this, &QtRichText::ShowSelFormat);
}

const std::string& QtRichText::Text() const {
  if (!textIsCurrent_) text_ = FromDocumentText(document()->toRawText());
  textIsCurrent_ = true;
  return text_;
}

void QtRichText::SetText(std::string text) {
  TextFormat format = document()->isEmpty() ? selFormat_ : FormatAt(0);
  format.color = 0;
  FormattedText formatted{std::move(text), {}};
  if (!formatted.text.empty()) formatted.runs.push_back({0, format});
  Fill(formatted);
  Select(0, 0);
  selFormat_ = format;
  NotifyChange();
}

FormattedText QtRichText::TextRTF() const {
  FormattedText formatted{Text(), {}};
  VisitFormats(0, document()->characterCount() - 1,
               [&](int from, int /*to*/, const QTextCharFormat& format) {
                 TextFormat next = FromCharFormat(format);
                 if (formatted.runs.empty() || formatted.runs.back().format != next) {
                   formatted.runs.push_back({OffsetOf(from), std::move(next)});
                 }
               });
  return formatted;
}

void QtRichText::SetTextRTF(FormattedText formatted) {
  if (formatted.text == Text()) {
    Recolour(formatted);
  } else {
    Fill(formatted);
  }
  Select(0, 0);
  // The caret alone would leave the margin above it out of sight.
  verticalScrollBar()->setValue(0);
  NotifyChange();
}

std::size_t QtRichText::SelStart() const {
  return OffsetOf(textCursor().selectionStart());
}

void QtRichText::SetSelStart(std::size_t start) {
  const int position = PositionOf(start);
  Select(position, position);
}

std::size_t QtRichText::SelLength() const {
  return OffsetOf(textCursor().selectionEnd()) - SelStart();
}

void QtRichText::SetSelLength(std::size_t length) {
  const std::size_t start = SelStart();
  const std::size_t end = start + std::min(length, Text().size() - start);
  Select(PositionOf(start), EndPositionOf(end));
}

std::string QtRichText::SelText() const {
  return Text().substr(SelStart(), SelLength());
}

void QtRichText::SetSelText(std::string_view text) {
  {
    const QScopedValueRollback quiet(quiet_, true);
    InsertText(text);
  }
  ensureCursorVisible();
  ShowSelFormat();
  NotifyChange();
}

void QtRichText::keyPressEvent(QKeyEvent* event) {
  std::int16_t keyCode = VirtualKey(*event);
  std::int16_t shift = ShiftState(*event);
  pressedKeys_[event->nativeScanCode()] = keyCode;
  const bool isKnown = keyCode != 0;
  const QScopedValueRollback formatted(formattedSelection_, false);
  if (event->matches(QKeySequence::Undo)) return Undo();
  if (event->matches(QKeySequence::Redo)) return Redo();
  if (Keys.KeyDown) Keys.KeyDown(keyCode, shift);
  if (isKnown && keyCode == 0) return;
  const Qt::KeyboardModifiers modifiers = event->modifiers();
  const bool isControl = modifiers.testFlag(Qt::ControlModifier);
  const bool isCommand = (modifiers & (Qt::AltModifier | Qt::MetaModifier)) != 0;
  if (isCommand && HasCharacter(*event)) {
    event->ignore();
  } else if (!isControl && !isCommand && IsEnter(*event)) {
    TypeByte(VirtualKeys::kEnter);
  } else if (!isControl && HasCharacter(*event)) {
    Type(event->text());
  } else {
    QTextEdit::keyPressEvent(event);
  }
}

// Without the keyboard the caret is a mark, since a fault may have left it where there is nothing
// to select.
void QtRichText::paintEvent(QPaintEvent* event) {
  QTextEdit::paintEvent(event);
  if (hasFocus() || textCursor().hasSelection()) return;
  QRect mark = cursorRect();
  mark.setWidth(kMarkWidth);
  QPainter(viewport()).fillRect(mark, palette().highlight());
}

void QtRichText::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* menu = createStandardContextMenu(event->pos());
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (QAction* entry : menu->actions()) {
    const bool isUndo = entry->objectName() == "edit-undo";
    if (!isUndo && entry->objectName() != "edit-redo") continue;
    entry->disconnect(SIGNAL(triggered(bool)));
    connect(entry, &QAction::triggered, this, isUndo ? &QtRichText::Undo : &QtRichText::Redo);
  }
  menu->popup(event->globalPos());
}

void QtRichText::keyReleaseEvent(QKeyEvent* event) {
  QTextEdit::keyReleaseEvent(event);
  if (event->isAutoRepeat() || !Keys.KeyUp) return;
  const auto pressed = pressedKeys_.extract(event->nativeScanCode());
  Keys.KeyUp(pressed ? pressed.mapped() : VirtualKey(*event), ShiftState(*event));
}

// Characters that are composed, with a dead key for one, arrive here.
void QtRichText::inputMethodEvent(QInputMethodEvent* event) {
  QInputMethodEvent composing(event->preeditString(), event->attributes());
  QTextEdit::inputMethodEvent(&composing);
  if (!event->commitString().isEmpty()) Type(event->commitString());
}

// A file that is dropped is for the window to open.
bool QtRichText::canInsertFromMimeData(const QMimeData* source) const {
  return source->hasText() && !source->hasUrls();
}

void QtRichText::insertFromMimeData(const QMimeData* source) {
  if (Locked || !canInsertFromMimeData(source)) return;
  QString text = source->text();
  text.replace(QChar::ParagraphSeparator, '\n').replace(QChar::LineSeparator, '\n');
  if (const auto bytes = Utf8ToCodePage(text.toUtf8().toStdString())) {
    InsertText(WithCrLf(*bytes));
    ensureCursorVisible();
  } else if (const auto refused = FindRefusedCharacter(text); refused && PasteRefused) {
    PasteRefused(*refused);
  }
}

QMimeData* QtRichText::createMimeDataFromSelection() const {
  auto* copied = new QMimeData;
  QString text = QString::fromStdString(CodePageToUtf8(SelText()));
  copied->setText(text.replace("\r\n", "\n"));
  return copied;
}

int QtRichText::PositionOf(std::size_t offset) const {
  const auto wanted = static_cast<int>(std::min(offset, Text().size()));
  // The block whose bytes hold the offset. Each block before it has one byte more than characters.
  int low = 0;
  int high = document()->blockCount() - 1;
  while (low < high) {
    const int middle = (low + high + 1) / 2;
    const bool isBehind = document()->findBlockByNumber(middle).position() + middle > wanted;
    (isBehind ? high : low) = isBehind ? middle - 1 : middle;
  }
  const QTextBlock block = document()->findBlockByNumber(low);
  return std::min(wanted - low, block.position() + block.length() - 1);
}

int QtRichText::EndPositionOf(std::size_t offset) const {
  const int position = PositionOf(offset);
  return OffsetOf(position) < std::min(offset, Text().size()) ? position + 1 : position;
}

std::size_t QtRichText::OffsetOf(int position) const {
  return static_cast<std::size_t>(position + document()->findBlock(position).blockNumber());
}

template <class Visit>
void QtRichText::VisitFormats(int from, int to, Visit visit) const {
  for (QTextBlock block = document()->findBlock(from); block.isValid() && block.position() < to;
       block = block.next()) {
    const int lineEnd = block.position() + block.length() - 1;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      const QTextFragment fragment = it.fragment();
      const int start = std::max(from, fragment.position());
      const int end = std::min(to, fragment.position() + fragment.length());
      if (start < end) visit(start, end, fragment.charFormat());
    }
    if (lineEnd >= from && lineEnd < to) visit(lineEnd, lineEnd + 1, block.next().charFormat());
  }
}

// A cursor would know, but moving one lays the text out up to it.
TextFormat QtRichText::FormatAt(int position) const {
  TextFormat found;
  VisitFormats(position, position + 1,
               [&](int /*from*/, int /*to*/, const QTextCharFormat& format) {
                 found = FromCharFormat(format);
               });
  return found;
}

// In an empty control it stays what it was.
void QtRichText::ShowSelFormat() {
  if (quiet_ || document()->isEmpty()) return;
  const QTextCursor cursor = textCursor();
  const int start = cursor.selectionStart();
  selFormat_ = FormatAt(cursor.hasSelection() || start == 0 ? start : start - 1);
}

void QtRichText::Select(int anchor, int position) {
  QTextCursor cursor(document());
  cursor.setPosition(anchor);
  cursor.setPosition(position, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  ShowSelFormat();
}

void QtRichText::Fill(const FormattedText& formatted) {
  const QScopedValueRollback quiet(quiet_, true);
  const QString text = ToDocumentText(formatted.text);
  const std::string& bytes = formatted.text;
  FormatCache formats;
  // This forgets all history.
  document()->setUndoRedoEnabled(false);
  QTextCursor cursor(document());
  cursor.beginEditBlock();
  // Unlike taking the text out with a cursor, this lets the layout begin with what is in view.
  document()->clear();
  std::size_t offset = 0;
  qsizetype position = 0;
  for (std::size_t run = 0; run < formatted.runs.size(); ++run) {
    const bool isLast = run + 1 == formatted.runs.size();
    std::size_t end = isLast ? bytes.size() : formatted.runs[run + 1].start;
    const qsizetype from = position;
    while (offset < end) {
      // A line end takes the format of its CR.
      offset += bytes.compare(offset, kLineEnd.size(), kLineEnd) == 0 ? kLineEnd.size() : 1;
      ++position;
    }
    cursor.insertText(text.mid(from, position - from), formats.Of(formatted.runs[run].format));
  }
  // The caret went along to the end, which would now be laid out for it.
  setTextCursor(QTextCursor(document()));
  cursor.endEditBlock();
  document()->setUndoRedoEnabled(true);
  text_ = bytes;
  textIsCurrent_ = true;
}

void QtRichText::Recolour(const FormattedText& formatted) {
  const QScopedValueRollback quiet(quiet_, true);
  const FormattedText former = TextRTF();
  const bool hasHistory = document()->isUndoAvailable();
  // Its place is where an undo puts the caret.
  QTextCursor history = textCursor();
  if (hasHistory) {
    history.joinPreviousEditBlock();
  } else {
    history.beginEditBlock();
  }
  std::size_t old = 0;
  for (std::size_t run = 0; run < formatted.runs.size(); ++run) {
    const auto endOf = [](const FormattedText& whole, std::size_t index) {
      return index + 1 < whole.runs.size() ? whole.runs[index + 1].start : whole.text.size();
    };
    const std::size_t end = endOf(formatted, run);
    std::size_t start = formatted.runs[run].start;
    while (start < end) {
      while (endOf(former, old) <= start) ++old;
      const std::size_t stop = std::min(end, endOf(former, old));
      if (former.runs[old].format != formatted.runs[run].format) {
        // A line end takes the format of its CR.
        SetFormat(EndPositionOf(start), EndPositionOf(stop), formatted.runs[run].format);
      }
      start = stop;
    }
  }
  history.endEditBlock();
  if (!hasHistory) document()->clearUndoRedoStacks();
}

void QtRichText::SetFormat(int from, int to, const TextFormat& format) {
  QTextCursor cursor(document());
  cursor.setPosition(from);
  cursor.setPosition(to, QTextCursor::KeepAnchor);
  cursor.setCharFormat(ToCharFormat(format));
}

template <class Value>
void QtRichText::SetSelFormat(Value TextFormat::*member, const Value& value) {
  selFormat_.*member = value;
  QTextCursor selection = textCursor();
  if (!selection.hasSelection()) return;
  struct Stretch {
    int from;
    int to;
    TextFormat format;
  };
  std::vector<Stretch> stretches;
  VisitFormats(selection.selectionStart(), selection.selectionEnd(),
               [&](int from, int to, const QTextCharFormat& format) {
                 stretches.push_back({from, to, FromCharFormat(format)});
                 stretches.back().format.*member = value;
               });
  const QScopedValueRollback quiet(quiet_, true);
  selection.beginEditBlock();
  for (const Stretch& stretch : stretches) SetFormat(stretch.from, stretch.to, stretch.format);
  selection.endEditBlock();
  formattedSelection_ = true;
}

void QtRichText::Undo() {
  Travel(&QTextDocument::isUndoAvailable, &QTextDocument::undo);
}
void QtRichText::Redo() {
  Travel(&QTextDocument::isRedoAvailable, &QTextDocument::redo);
}

// A step of colours alone shows nothing, so it goes with the next one of text.
void QtRichText::Travel(bool (QTextDocument::*isAvailable)() const, HistoryStep step) {
  if (Locked) return;
  const std::string former = Text();
  QTextCursor cursor = textCursor();
  while ((document()->*isAvailable)() && Text() == former) (document()->*step)(&cursor);
  if (Text() == former) return;
  // A step that colours as well leaves the cursor behind the colours. Where characters repeat, the
  // end of what has changed isn't one place but a range, within which the cursor is right.
  const std::string& now = Text();
  const std::size_t shorter = std::min(former.size(), now.size());
  const auto common = [](auto from, auto to, auto other) {
    return static_cast<std::size_t>(std::mismatch(from, to, other).first - from);
  };
  const auto reach = static_cast<std::ptrdiff_t>(shorter);
  const std::size_t front = common(now.begin(), now.begin() + reach, former.begin());
  const std::size_t back = common(now.rbegin(), now.rbegin() + reach, former.rbegin());
  const std::size_t earliest = now.size() - back;
  const std::size_t latest = now.size() - std::min(back, shorter - front);
  SetSelStart(std::clamp(OffsetOf(cursor.position()), earliest, latest));
  ensureCursorVisible();
}

void QtRichText::InsertText(std::string_view bytes) {
  // The editor's own cursor moves along.
  textCursor().insertText(ToDocumentText(bytes), ToCharFormat(selFormat_));
}

void QtRichText::Type(const QString& characters) {
  const auto bytes = Utf8ToCodePage(characters.toUtf8().toStdString());
  if (!bytes) {
    QApplication::beep();
    return;
  }
  for (const char byte : *bytes) TypeByte(static_cast<unsigned char>(byte));
}

void QtRichText::TypeByte(std::int16_t character) {
  if (Keys.KeyPress) Keys.KeyPress(character);
  if (Locked || character <= 0 || character > 255) return;
  const char byte = static_cast<char>(static_cast<unsigned char>(character));
  const bool isLineEnd = character == VirtualKeys::kEnter;
  // A word is undone as a whole, whatever its colours.
  const bool startsWord = isLineEnd || byte == ' ' || textCursor().hasSelection();
  const bool continues = typedEnd_ == textCursor().position() && !startsWord;
  QTextCursor history = textCursor();
  if (document()->isUndoAvailable() && (continues || formattedSelection_)) {
    history.joinPreviousEditBlock();
  } else {
    history.beginEditBlock();
  }
  InsertText(isLineEnd ? kLineEnd : std::string_view(&byte, 1));
  history.endEditBlock();
  ensureCursorVisible();
  typedEnd_ = textCursor().position();
}

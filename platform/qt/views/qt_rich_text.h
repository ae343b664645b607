#pragma once

#include <QTextCharFormat>
#include <QTextDocument>
#include <QTextEdit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/qt/views/document_text.h"
#include "platform/rich_text.h"

// Handlers of an editor's keys; any may be empty. Codes are those of VirtualKey and ShiftState.
struct EditorKeys {
  // A key code set to 0 swallows the key.
  std::function<void(std::int16_t& keyCode, std::int16_t& shift)> KeyDown;
  // The byte about to be typed; that of Enter stands for a line end, and 0 types nothing.
  std::function<void(std::int16_t& character)> KeyPress;
  // Once for each key, however long it was held.
  std::function<void(std::int16_t keyCode, std::int16_t shift)> KeyUp;
};

// The rich text control on the screen. A character that the code page lacks can't get in by typing
// or pasting. Whoever lays the window out watches Visible.
//
// What the user typed can be undone word by word. Undo never reaches back over a text that the
// program has put in, and a colouring of the text as it stands goes with the edit before it.
class QtRichText : public QTextEdit, public RichText {
 public:
  explicit QtRichText(QWidget* parent = nullptr);

  EditorKeys Keys;
  // Called, if set, when a text isn't pasted or dropped because of a character in it.
  std::function<void(const RefusedCharacter&)> PasteRefused;

  const std::string& Text() const override;
  void SetText(std::string text) override;

  FormattedText TextRTF() const override;
  void SetTextRTF(FormattedText formatted) override;

  std::size_t SelStart() const override;
  void SetSelStart(std::size_t start) override;
  std::size_t SelLength() const override;
  void SetSelLength(std::size_t length) override;

  std::string SelText() const override;
  void SetSelText(std::string_view text) override;

  Colour SelColor() const override { return selFormat_.color; }
  void SetSelColor(Colour color) override { SetSelFormat(&TextFormat::color, color); }
  bool SelBold() const override { return selFormat_.bold; }
  void SetSelBold(bool bold) override { SetSelFormat(&TextFormat::bold, bold); }
  std::string SelFontName() const override { return selFormat_.fontName; }
  void SetSelFontName(const std::string& name) override {
    SetSelFormat(&TextFormat::fontName, name);
  }
  int SelFontSize() const override { return selFormat_.fontSize; }
  void SetSelFontSize(int points) override { SetSelFormat(&TextFormat::fontSize, points); }

  // To the last text that differs, colours along with it; the caret goes where the text did.
  void Undo();
  void Redo();

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;
  QMimeData* createMimeDataFromSelection() const override;

 private:
  // Positions count a line end as one character. An offset between CR and LF is at the line end
  // or, for the end of a range, behind it.
  int PositionOf(std::size_t offset) const;
  int EndPositionOf(std::size_t offset) const;
  std::size_t OffsetOf(int position) const;
  // Calls visit(from, to, format) for each stretch of one format between two positions.
  template <class Visit>
  void VisitFormats(int from, int to, Visit visit) const;
  // The format of the character behind a position.
  TextFormat FormatAt(int position) const;
  void ShowSelFormat();
  void Select(int anchor, int position);

  void Fill(const FormattedText& formatted);
  // Gives the text that stands there other formats.
  void Recolour(const FormattedText& formatted);
  void SetFormat(int from, int to, const TextFormat& format);
  template <class Value>
  void SetSelFormat(Value TextFormat::*member, const Value& value);

  using HistoryStep = void (QTextDocument::*)(QTextCursor*);
  void Travel(bool (QTextDocument::*isAvailable)() const, HistoryStep step);

  void InsertText(std::string_view bytes);
  // What the user typed, by way of KeyPress; refused with a beep if it isn't in the code page.
  void Type(const QString& characters);
  void TypeByte(std::int16_t character);

  // Rebuilt from the document when somebody asks for it. Whoever watches changes asks at each, so
  // that an undo of colours alone can be told from one of text.
  mutable std::string text_;
  mutable bool textIsCurrent_ = true;
  // What the selection begins with, and what is typed next.
  TextFormat selFormat_;
  // The program is at work: it tells of its changes itself.
  bool quiet_ = false;
  bool changed_ = false;
  // The selection got its format in the key stroke that is being handled.
  bool formattedSelection_ = false;
  // Position behind what was typed last, or -1.
  int typedEnd_ = -1;
  // By the scan code of each key that is down, the virtual key that it was pressed as. It comes up
  // as another one when AltGr has been let go first.
  std::map<std::uint32_t, std::int16_t> pressedKeys_;
};

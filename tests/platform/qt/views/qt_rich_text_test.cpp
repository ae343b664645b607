#include "platform/qt/views/qt_rich_text.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>
#include <QTextDocument>
#include <QUrl>

#include "editor/colouring.h"
#include "editor/editor_events.h"
#include "mainwindow/control_surface.h"
#include "platform/host/desktop.h"
#include "platform/qt/views/colours.h"
#include "settings/settings.h"
#include "tests/platform/rich_text_contract.h"

namespace {

using GlobalVariables::Settings;

INSTANTIATE_TEST_SUITE_P(Qt, RichTextContract,
                         testing::Values(RichTextBody{
                             "qt", [] { return std::make_unique<QtRichText>(); }}));

constexpr Colour kLetters = Rgb(0, 0, 200);
constexpr Colour kNumbers = Rgb(200, 0, 0);

std::string Shown(const FormattedText& formatted) {
  std::string classes;
  for (const TextFormat& format : FormatOfEachByte(formatted)) {
    classes += format.color == kLetters ? 'l' : format.color == kNumbers ? 'n' : '.';
  }
  return classes;
}

// The editor in a window of its own, with the program's handlers bound to it.
class QtEditorTest : public testing::Test {
 protected:
  QtEditorTest() {
    frmMain::ResetControlSurface();
    Settings = {};
    Settings.EditorCharacterColor = kLetters;
    Settings.EditorIntegerColor = kNumbers;
    editor.Keys = {frmMain::TextEditor_KeyDown, frmMain::TextEditor_KeyPress,
                   frmMain::TextEditor_KeyUp};
    frmMain::SetTextEditor(&editor);
    editor.show();
    editor.activateWindow();
    editor.setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&editor));
  }
  ~QtEditorTest() override {
    frmMain::SetTextEditor(nullptr);
    frmMain::ResetControlSurface();
  }
  void TypeKeys(const char* keys) { QTest::keyClicks(&editor, keys); }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&editor, key, modifiers);
  }
  void Paste(const QString& text) {
    QApplication::clipboard()->setText(text);
    Press(Qt::Key_V, Qt::ControlModifier);
  }

  QtRichText editor;
};

TEST_F(QtEditorTest, TypedLettersAreRaisedAndColouredByTheirKeys) {
  TypeKeys("g01 x20.5");
  Press(Qt::Key_Return);
  Press(Qt::Key_Return, Qt::ShiftModifier);
  QTest::keyClick(&editor, Qt::Key_7, Qt::KeypadModifier);
  EXPECT_EQ("G01 X20.5\r\n\r\n7", editor.Text());
  EXPECT_EQ("lnnllnnnnnnnnn", Shown(editor.TextRTF()))
      << "keys without a colour of their own, Enter among them, take the last one";
  EXPECT_TRUE(frmMain::Toolbar.Buttons("Save").Enabled);
}

TEST_F(QtEditorTest, ABracketOffersNothingWhenTheUserWantsNone) {
  Settings.AutoComplete = 0;
  TypeKeys("[");
  Press(Qt::Key_Return);
  EXPECT_EQ("[\r\n", editor.Text());
}

TEST_F(QtEditorTest, ABracketOffersTheBilletAlsoWhenAltGrComesUpFirst) {
  Settings.AutoComplete = 1;
  for (const auto& [type, key] :
       {std::pair{QEvent::KeyPress, Qt::Key_BracketLeft}, {QEvent::KeyRelease, Qt::Key_8}}) {
    QKeyEvent event(type, key, Qt::NoModifier, 17, 0, 0, "[");
    QApplication::sendEvent(&editor, &event);
  }
  EXPECT_EQ("BILLET", editor.SelText());
}

TEST_F(QtEditorTest, SelectionCountsALineEndAsTwo) {
  editor.SetText("G00\r\nX20\r\n\r\nZ5");
  Press(Qt::Key_End);
  Press(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(3u, editor.SelStart());
  EXPECT_EQ("\r\n", editor.SelText());
  editor.SetSelStart(12);
  TypeKeys("W");
  EXPECT_EQ("G00\r\nX20\r\n\r\nWZ5", editor.Text());
  Select(editor, 4, 2);
  EXPECT_EQ(3u, editor.SelStart()) << "no offset stands between CR and LF";
  Select(editor, 0, 4);
  EXPECT_EQ("G00\r\n", editor.SelText());
}

TEST_F(QtEditorTest, UndoGoesBackWordByWordAndNeverIntoAColouring) {
  TypeKeys("G01 X20");
  FormattedText coloured = editor.TextRTF();
  for (FormatRun& run : coloured.runs) run.format.bold = true;
  editor.SetTextRTF(coloured);
  EXPECT_EQ(coloured, editor.TextRTF());
  editor.SetSelStart(7);
  TypeKeys(" Z5");
  editor.Undo();
  EXPECT_EQ(coloured, editor.TextRTF());
  EXPECT_EQ(7u, editor.SelStart());
  editor.Undo();
  EXPECT_EQ("G01", editor.Text());
  EXPECT_EQ("lnn", Shown(editor.TextRTF()));
  EXPECT_FALSE(editor.TextRTF().runs.front().format.bold);
  EXPECT_EQ(3u, editor.SelStart());
  editor.Redo();
  EXPECT_EQ(coloured, editor.TextRTF());
  EXPECT_EQ(7u, editor.SelStart()) << "behind the text, not the colours";
  editor.SetText("X1\r\nX1");
  editor.SetSelStart(2);
  TypeKeys(" X1");
  editor.Undo();
  EXPECT_EQ(2u, editor.SelStart()) << "not in front of the same characters";
  editor.SetTextRTF({"M30", {{0, {}}}});
  editor.Undo();
  EXPECT_EQ("M30", editor.Text()) << "a text put in by the program is no edit";
}

TEST_F(QtEditorTest, EachUserEditIsHeardOnce) {
  // The text at each change.
  std::string heard;
  editor.WatchChange([&] { heard += editor.Text() + '|'; });
  TypeKeys("G");
  Press(Qt::Key_Backspace);
  Paste("G00\nZ5");
  Press(Qt::Key_A, Qt::ControlModifier);
  TypeKeys("M");
  editor.Undo();
  // Colours the number that it passes, which is no change of the text, nor is taking it back.
  editor.SetSelStart(1);
  Press(Qt::Key_Right, Qt::ShiftModifier);
  Press(Qt::Key_Right, Qt::ShiftModifier);
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ("G||G00\r\nZ5|M|G00\r\nZ5||", heard) << "colours alone are no step of an undo";
}

TEST_F(QtEditorTest, CharactersBeyondTheCodePageAreRefused) {
  Paste(QString::fromUtf8("\u20AC \u00E4\u2013\u00A0"));
  EXPECT_EQ("\x80 \xE4\x96\xA0", editor.Text());
  QTest::sendKeyEvent(QTest::Click, &editor, Qt::Key_unknown, QString::fromUtf8("\u0416"),
                      Qt::NoModifier);
  std::string refused;
  editor.PasteRefused = [&](const RefusedCharacter& what) {
    refused += what.character.toStdString() + std::to_string(what.row) + ' ';
  };
  Paste(QString::fromUtf8("G00\nG01\u2192"));
  Paste(QString::fromUtf8("\U0001F600"));
  EXPECT_EQ(
      "\u2192"
      "2 \U0001F600"
      "1 ",
      refused);
  QInputMethodEvent composed;
  composed.setCommitString(QString::fromUtf8("\u0416"));
  QApplication::sendEvent(&editor, &composed);
  EXPECT_EQ("\x80 \xE4\x96\xA0", editor.Text());
  composed.setCommitString(QString::fromUtf8("\u00FCz"));
  QApplication::sendEvent(&editor, &composed);
  EXPECT_EQ("\x80 \xE4\x96\xA0\xFCZ", editor.Text());
}

TEST_F(QtEditorTest, CaretAndSelectionStayInSightOnEachBackground) {
  for (const auto& [back, caret] :
       {std::pair{Rgb(1, 2, 3), Qt::white}, {Rgb(250, 250, 0), Qt::black}}) {
    editor.BackColor = back;
    const QPalette shown = editor.palette();
    EXPECT_EQ(ToQColor(back), editor.grab().toImage().pixelColor(90, 90));
    EXPECT_EQ(QColor(caret), shown.color(QPalette::Text));
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText}) {
      EXPECT_EQ(shown.color(QPalette::Active, role), shown.color(QPalette::Inactive, role));
    }
  }
}

TEST_F(QtEditorTest, ALockedEditorIsReadAndCopiedOnly) {
  editor.SetText("G00");
  editor.Locked = true;
  TypeKeys("X");
  Press(Qt::Key_Return);
  Press(Qt::Key_Delete);
  Paste("M30");
  EXPECT_EQ("G00", editor.Text());
  Press(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ("G", editor.SelText());
  editor.Locked = false;
  TypeKeys("M");
  EXPECT_EQ("M00", editor.Text());
}

}  // namespace

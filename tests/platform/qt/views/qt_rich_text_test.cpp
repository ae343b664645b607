#include "platform/qt/views/qt_rich_text.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>

#include "editor/editor_events.h"
#include "mainwindow/control_surface.h"
#include "settings/settings.h"
#include "tests/platform/rich_text_contract.h"

namespace {

using GlobalVariables::Settings;

INSTANTIATE_TEST_SUITE_P(Qt, RichTextContract,
                         testing::Values(RichTextBody{
                             "qt", [] { return std::make_unique<QtRichText>(); }}));

// The editor in a window of its own, with the program's handlers bound to it.
class QtEditorTest : public testing::Test {
 protected:
  QtEditorTest() {
    frmMain::ResetControlSurface();
    Settings = {};
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

TEST_F(QtEditorTest, ABracketOffersTheBilletAlsoWhenAltGrComesUpFirst) {
  Settings.AutoComplete = 1;
  for (const auto& [type, key] :
       {std::pair{QEvent::KeyPress, Qt::Key_BracketLeft}, {QEvent::KeyRelease, Qt::Key_8}}) {
    QKeyEvent event(type, key, Qt::NoModifier, 17, 0, 0, "[");
    QApplication::sendEvent(&editor, &event);
  }
  EXPECT_EQ("BILLET", editor.SelText());
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

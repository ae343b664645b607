#include <QTest>
#include <QtWidgets>

#include "debugger/debug_grid.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/program_start.h"
#include "settings/frm_options.h"
#include "settings/frm_options_debug.h"
#include "tests/platform/qt/temporary_folder.h"
#include "toollib/frm_tool_select.h"
#include "toollib/tool_files.h"
#include "toollib/tool_folder.h"

namespace {

using GlobalVariables::Settings;

// The dialogs as a user meets them, on a store of settings and a tool folder of the test's own.
class ToolsMenuTest : public TemporaryFolderTest {
 protected:
  void SetUp() override {
    TemporaryFolderTest::SetUp();
    setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
    frmMain::ResetToProgramStart();
    GlobalVariables::LoadSettings();
    GlobalVariables::SetToolFolder(folder.string());
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, [this] {
      const QPointer dialog = QApplication::activeModalWidget();
      std::exchange(next, {})(dialog);
      if (dialog) dialog->close();
    });
  }
  // Runs `act` as soon as a dialog is up, and closes the dialog if it doesn't.
  void WhenShown(const std::function<void(QWidget*)>& act) {
    next = act;
    timer.start(0);
  }
  template <class T>
  static T& The(const char* name) {
    return dynamic_cast<T&>(*QApplication::activeModalWidget()->findChild<QWidget*>(name));
  }
  static void Press(const char* button) { The<QAbstractButton>(button).click(); }
  static void Choose(const char* list, const QString& text) {
    The<QComboBox>(list).setCurrentText(text);
  }

  void Pick(const char* swatch, const QColor& colour, bool cancel = false) {
    WhenShown([=](QWidget* shown) {
      auto& dialog = dynamic_cast<QColorDialog&>(*shown);
      dialog.setCurrentColor(colour);
      cancel ? dialog.reject() : dialog.accept();
    });
    Press(swatch);
  }
  void ChangeAllOptions() {
    Choose("cmbEditorFonts", "Arial");
    Pick("lblEditorColor", QColor(1, 2, 3));
    Choose("cmbDebugFontSize", "12");
    Choose("cmbDebugColors", "Effect Colour");
    Pick("lblDebugColor", QColor(4, 5, 6));
    Press("chkShowLineNumber");
    Pick("lblBackColor", QColor(7, 8, 9), true);
  }
  static void Assign(const char* tool, const char* file) {
    Choose("cmbTools", tool);
    auto& files = The<QListWidget>("FileList");
    files.setCurrentItem(files.findItems(file, Qt::MatchExactly).value(0));
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
    EXPECT_EQ(file, The<QLabel>("lblFile").text());
  }
  void ExpectError() {
    WhenShown([](QWidget* box) { EXPECT_EQ("Error!", box->windowTitle()); });
  }
  QTimer timer;
  std::function<void(QWidget*)> next;
};

TEST_F(ToolsMenuTest, OptionsChangeStoreAndWindowsWithOkAlone) {
  Settings.DebugFontName = "Font of a hand";
  frmMain::TextEditor().SetText("[BILLET X20 Z40");
  frmMain::FillDebugWindow();
  auto expected = Settings;
  const std::string store = Bytes("turnbay/CNC.ini");
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
    EXPECT_TRUE(expected == Settings && store == Bytes("turnbay/CNC.ini"));
    EXPECT_EQ("", frmMain::TextEditor().TextRTF().runs.front().format.fontName);
    WhenShown([this, key](QWidget* dialog) {
      ChangeAllOptions();
      QTest::keyClick(dialog, key);
    });
    frmMain::mnuToolsOptions_Click();
  }
  expected.EditorFontName = "Arial";
  expected.EditorBackColor = Rgb(1, 2, 3);
  expected.DebugLineNumbers = 0;
  expected.DebugFontSize = 12;
  expected.EffectColor = Rgb(4, 5, 6);
  EXPECT_TRUE(expected == Settings) << "with the hidden width and the font that is in no list";
  EXPECT_EQ("Arial", frmMain::TextEditor().TextRTF().runs.front().format.fontName);
  EXPECT_EQ(12, frmMain::DebugWindow.Format(0, 2).FontSize);
  EXPECT_EQ(0, frmMain::DebugWindow.ColWidth(0));
  WhenShown([](QWidget*) {
    auto& tabs = The<QTabWidget>("SSTab");
    tabs.setCurrentIndex(1);
    const auto& sample = dynamic_cast<frmOptions::DebugPage&>(*tabs.widget(1)).Sample();
    for (const int size : {10, 9, 8}) {
      Choose("cmbDebugFontSize", QString::number(size));
      EXPECT_EQ(size, sample.Format(1, 2).FontSize);
      EXPECT_EQ(size > 9 ? size - 2 : size, sample.Format(1, 0).FontSize);
    }
    QWidget* cells = The<QAbstractScrollArea>("DebugSample").viewport();
    QTest::mousePress(cells, Qt::LeftButton, {}, {60, 2 * 19});
    QTest::mouseMove(cells, {60, 2 * 19 + 8});
    for (const char* name : {"cmdEditorDefault", "cmdDebugDefault", "cmdSimDefaults", "cmdOK"}) {
      Press(name);
    }
  });
  frmMain::TextEditor().SetText("");
  frmMain::TextEditor().SetSelFontSize(30);
  frmMain::mnuToolsOptions_Click();
  expected = GlobalVariables::DefaultSettings();
  expected.DebugRowHeight = 285 + 8 * 15;
  EXPECT_TRUE(expected == Settings);
  EXPECT_EQ(expected.EditorFontSize, frmMain::TextEditor().SelFontSize()) << "without a text, too";
}

TEST_F(ToolsMenuTest, ToolLibrarySavesByCloseAlone) {
  QImage(30, 40, QImage::Format_RGB888).save(QString::fromStdString(Path("a.bmp")));
  Put("a.ini", "TOOLNAME=Parting\r\nTOOLWIDTH=12\r\nTOOLHEIGHT=34");
  Put("\xE5\x88\x80.bmp", "no picture");
  const std::string list = Bytes(Put("ToolList.ini", "7=A.BMP\r\n3=gone.bmp\r\n"));
  WhenShown([this](QWidget* dialog) {
    EXPECT_FALSE(The<QAbstractButton>("cmdAssign").isEnabled());
    Choose("cmbTools", "Tool 7");
    EXPECT_EQ("Parting", The<QLabel>("lblName").text()) << "found without regard to case";
    ExpectError();
    Assign("Tool 7", "\u5200.bmp");
    EXPECT_EQ("", The<QLabel>("lblName").text()) << "no description";
    ExpectError();
    Press("cmdClose");
    EXPECT_TRUE(dialog->isVisible());
  });
  frmMain::mnuToolLibrary_Click();
  EXPECT_EQ(list, Bytes("ToolList.ini")) << "neither a failed Close nor the close box";
  frmToolSelect::GetToolList();
  EXPECT_EQ("A.BMP", GlobalVariables::ToolFiles.at(7)) << "M06 reads the list again";
  WhenShown([](QWidget*) {
    Assign("Tool 3", "a.bmp");
    Press("cmdClose");
  });
  frmMain::mnuToolLibrary_Click();
  EXPECT_EQ(
      "0=\r\n1=\r\n2=\r\n3=a.bmp\r\n4=\r\n5=\r\n6=\r\n7=A.BMP\r\n8=\r\n9=\r\n10=\r\n"
      "11=\r\n12=\r\n13=\r\n14=\r\n15=\r\n16=\r\n17=\r\n18=\r\n19=\r\n20=\r\n",
      Bytes("ToolList.ini"));
}

}  // namespace

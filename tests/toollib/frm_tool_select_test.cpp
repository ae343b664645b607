#include "toollib/frm_tool_select.h"

#include "tests/dialog_test.h"
#include "tests/golden.h"
#include "toollib/tool_files.h"

namespace {

class ToolLibraryTest : public DialogTest {
 protected:
  static void Assign(const char* tool, const char* file) {
    Choose("cmbTools", tool);
    auto& files = The<QListWidget>("FileList");
    files.setCurrentItem(files.findItems(file, Qt::MatchExactly).value(0));
    QWidget* dialog = QApplication::activeModalWidget();
    dialog->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
    The<QWidget>("cmdClose").setFocus();
    files.setFocus();
    QTest::keyClick(dialog, Qt::Key_Return);
    EXPECT_EQ(file, The<QLabel>("lblFile").text());
  }
  void ExpectError() {
    WhenShown([](QWidget* box) { EXPECT_EQ("Error!", box->windowTitle()); });
  }
};

TEST_F(ToolLibraryTest, ShowsItsControlsAndTheToolThatIsAssigned) {
  Put("b.txt", "");
  QImage(30, 40, QImage::Format_RGB888).save(QString::fromStdString(Path("B.bmp")));
  QImage(30, 40, QImage::Format_RGB888).save(QString::fromStdString(Path("a.bmp")));
  Put("a.ini", "TOOLNAME=<b>Parting\r\nTOOLWIDTH=12\r\nTOOLHEIGHT=34\r\nCUTTINGPOINT=2");
  Put("ToolList.ini", "7=a.bmp\r\n3=gone.bmp\r\n");
  WhenShown([](QWidget* dialog) {
    std::string text = Describe(*dialog);
    for (const char* tool : {"Tool 3", "Tool 7", "Tool 3"}) {
      Choose("cmbTools", tool);
      text += tool;
      for (const char* label :
           {"lblFile", "lblName", "lblToolWidth", "lblToolHeight", "lblCuttingPoint"}) {
        text += ", " + The<QLabel>(label).text().toStdString();
      }
      const QListWidgetItem* file = The<QListWidget>("FileList").currentItem();
      text += ", " + (file != nullptr ? file->text().toStdString() : "none");
      text += The<QPushButton>("cmdAssign").isEnabled() ? ", open\n" : ", closed\n";
    }
    const QSize picture = The<QLabel>("imgTool").size();
    EXPECT_EQ(QSize(30, 40), picture);
    ExpectGolden("tool_library", text);
  });
  frmMain::mnuToolLibrary_Click();
}

TEST_F(ToolLibraryTest, SavesByCloseAlone) {
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

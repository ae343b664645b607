#include "platform/host/dialogs.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

class DialogsTest : public testing::Test {
 protected:
  DialogsTest() {
    QFile file(PathOf("part.cnc"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    com.Filter = "CNC Code Files|*.cnc|All Files|*.*";
    com.Flags = CommonDialog::kFileFlags;
    com.InitDir = folder.path().toStdString();
    com.CancelError = true;
  }
  QString PathOf(const char* name) const { return folder.filePath(name); }

  // Enters a name as soon as the dialog is up.
  void WhenShown(const QString& name, const char* title) const {
    QTimer::singleShot(0, qApp, [this, name, title] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(nullptr, dialog);
      EXPECT_EQ(title, dialog->windowTitle());
      EXPECT_EQ(QStringList({"CNC Code Files (*.cnc)", "All Files (*)"}), dialog->nameFilters());
      auto* edit = dialog->findChild<QLineEdit*>("fileNameEdit");
      ASSERT_NE(nullptr, edit);
      EXPECT_EQ(QFileInfo(QString::fromStdString(com.FileName)).fileName(), edit->text());
      edit->setText(name);
      QTest::keyClick(edit, Qt::Key_Return);
    });
  }

  QTemporaryDir folder;
  CommonDialog com;
};

TEST_F(DialogsTest, AFileThatExistsIsOpened) {
  WhenShown(PathOf("part.cnc"), "Open");
  EXPECT_TRUE(com.ShowOpen());
  EXPECT_EQ(PathOf("part.cnc").toStdString(), com.FileName);
}

TEST_F(DialogsTest, SavingOverAFileAsksFirst) {
  WhenShown(PathOf("new"), "Save As");
  EXPECT_TRUE(com.ShowSave());
  EXPECT_EQ(PathOf("new").toStdString(), com.FileName) << "no extension is added";
  WhenShown(PathOf("part.cnc"), "Save As");
  bool asked = false;
  QTimer::singleShot(1, qApp, [&] {
    auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    asked = question != nullptr;
    if (asked) QTest::keyClick(question, Qt::Key_Escape);
    if (QWidget* dialog = QApplication::activeModalWidget()) dialog->close();
  });
  EXPECT_FALSE(com.ShowSave());
  EXPECT_TRUE(asked);
}

}  // namespace

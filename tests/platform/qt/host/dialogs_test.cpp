#include "platform/host/dialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <functional>
#include <gtest/gtest.h>
#include <vector>

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

using Step = std::function<void(QWidget* top)>;

// Does what the user does, step by step, each as soon as another dialog than before is on top.
void InDialogs(const std::vector<Step>& steps, std::size_t next = 0, QWidget* before = nullptr) {
  QTimer::singleShot(0, qApp, [=] {
    QWidget* top = QApplication::activeModalWidget();
    const bool isNew = top != nullptr && top != before;
    if (!isNew || next + 1 < steps.size())
      InDialogs(steps, isNew ? next + 1 : next, isNew ? top : before);
    if (isNew) steps[next](top);
  });
}

TEST_F(DialogsTest, SaveStandsInTheFolderOfTheFileAndRefusesEarlyWhatWouldFail) {
  QDir(folder.path()).mkpath("deep/sub");
  QFile::copy(PathOf("part.cnc"), PathOf("deep/part.cnc"));
  com.FileName = PathOf("deep/part.cnc").toStdString();
  const auto edit = [](QWidget* top) { return top->findChild<QLineEdit*>("fileNameEdit"); };
  const auto enter = [=](const QString& name) {
    return [=](QWidget* top) {
      top->activateWindow();
      EXPECT_TRUE(QTest::qWaitForWindowActive(top));
      edit(top)->setFocus();
      edit(top)->selectAll();
      QTest::keyClicks(edit(top), name);
      EXPECT_TRUE(top->findChild<QDialogButtonBox*>()->buttons()[0]->text().contains("Save"));
      QTest::keyClick(edit(top), Qt::Key_Return);
    };
  };
  const auto hear = [](const QString& reason) {
    return [=](QWidget* top) {
      auto* box = qobject_cast<QMessageBox*>(top);
      ASSERT_NE(nullptr, box);
      EXPECT_TRUE(box->text().contains(reason)) << box->text().toStdString();
      QTest::keyClick(box, Qt::Key_Return);
    };
  };
  const auto look = [=, this](QWidget* top) {
    auto* dialog = qobject_cast<QFileDialog*>(top);
    EXPECT_EQ(PathOf("deep"), dialog->directory().path());
    EXPECT_EQ("part.cnc", edit(top)->text());
    const auto* places = top->findChild<QListView*>("sidebar");
    EXPECT_EQ(QUrl::fromLocalFile(QDir::homePath()), dialog->sidebarUrls().constLast());
    EXPECT_EQ("samples", dialog->sidebarUrls().constFirst().fileName());
    EXPECT_GE(places->width(), places->sizeHintForColumn(0));
    const auto* files = top->findChild<QTreeView*>("treeView");
    for (int column = 1; column < 4; ++column) {
      EXPECT_GE(files->columnWidth(column), files->header()->sectionSizeHint(column));
    }
    EXPECT_EQ(files->viewport()->width(), files->header()->length());
    enter("sub")(top);
  };
  const auto goIn = [=, this](QWidget* top) {
    EXPECT_EQ("no/x.cnc", edit(top)->text()) << "what was typed stays";
    enter("sub/")(top);
    EXPECT_EQ(PathOf("deep/sub"), qobject_cast<QFileDialog*>(top)->directory().path());
    enter("a\\B.cnc")(top);
  };
  InDialogs({look, hear("deep/sub\" is a folder."), enter("no/x.cnc"),
             hear("deep/no\" doesn't exist."), goIn});
  EXPECT_TRUE(com.ShowSave());
  EXPECT_EQ(PathOf("deep/sub/a\\B.cnc").toStdString(), com.FileName);
  // A program without a file stands in InitDir again, one whose folder is gone as well.
  for (const QString& name : {QString(), PathOf("gone/part.cnc")}) {
    com.FileName = name.toStdString();
    InDialogs({[this](QWidget* top) {
      EXPECT_EQ(folder.path(), qobject_cast<QFileDialog*>(top)->directory().path());
      QTest::keyClick(top, Qt::Key_Escape);
    }});
    EXPECT_FALSE(com.ShowSave());
  }
  InDialogs({[this](QWidget* top) {
    EXPECT_EQ(PathOf("deep/sub"), qobject_cast<QFileDialog*>(top)->directory().path());
    QTest::keyClick(top, Qt::Key_Escape);
  }});
  EXPECT_FALSE(com.ShowOpen());
}

}  // namespace

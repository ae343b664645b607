#include <QAbstractButton>
#include <QApplication>
#include <QBuffer>
#include <QCloseEvent>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include "editor/documents.h"
#include "interpreter/decoder.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/fading_window.h"
#include "mainwindow/frm_help.h"
#include "mainwindow/frm_splash.h"
#include "mainwindow/listing.h"
#include "mainwindow/notifications.h"
#include "mainwindow/print_listing.h"
#include "mainwindow/program_start.h"
#include "platform/host/desktop.h"
#include "platform/qt/host/late_library.h"
#include "settings/settings.h"
#include "tests/golden.h"

namespace {

// Null unless it is on the screen.
QWidget* Up(const char* name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->objectName() == name) return window;
  }
  return nullptr;
}

FadingWindow* Fading(const char* name) {
  return dynamic_cast<FadingWindow*>(Up(name));
}

// Of a notification: the time that it still has, made 0.
int EndTime(const FadingWindow& info) {
  auto* timer = info.findChild<QTimer*>("Timer4");
  const int time = timer->interval();
  timer->setSingleShot(true);
  timer->start(0);
  return time;
}

TEST(SmallWindowsTest, AClickOrAKeyTurnsTheFadeAroundWhereItStands) {
  for (const Qt::Key way : {Qt::Key_unknown, Qt::Key_Escape, Qt::Key_Space, Qt::Key_Return}) {
    int highest = 0;
    QTimer user;
    user.callOnTimeout([&] {
      FadingWindow* box = Fading("frmSplash");
      if (box == nullptr) return;
      highest = std::max(highest, qRound(box->windowOpacity() * 255));
      if (highest != 95 || !box->Timer1.isActive()) return;
      QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "", true);
      QApplication::sendEvent(box, &held);
      QTest::keyClick(box, Qt::Key_A);
      EXPECT_TRUE(box->Timer1.isActive()) << "what opened it, and another key";
      way == Qt::Key_unknown ? QTest::mouseClick(box, Qt::LeftButton) : QTest::keyClick(box, way);
    });
    user.start(0);
    frmMain::mnuHelpAbout_Click();
    EXPECT_EQ(100, highest);
  }
}

TEST(SmallWindowsTest, AModalNotificationTakesTheWindowOverForItsOwnTime) {
  ModCNC::DecodeMWord("M03");
  QTest::mouseClick(Up("frmInfo"), Qt::LeftButton);
  int time = 0;
  QTimer user;
  user.callOnTimeout([&] {
    FadingWindow* info = Fading("frmInfo");
    if (info == nullptr || info->Timer1.isActive() || time != 0) return;
    EXPECT_FALSE(info->Timer2.isActive());
    EXPECT_TRUE(info->isModal() && !info->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
    EXPECT_EQ("Chuck OPEN", info->findChild<QWidget*>("lblInfo")->property("text").toString());
    time = EndTime(*info);
  });
  user.start(0);
  ModCNC::DecodeMWord("M10");
  EXPECT_EQ(500, time);
  EXPECT_EQ(nullptr, Up("frmInfo"));
}

TEST(SmallWindowsTest, AMessageBoxOutlivesTheNotificationThatIsActive) {
  frmMain::ShowInfoWindow(0, 30'000);
  Up("frmInfo")->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(Up("frmInfo")));
  int time = 0;
  bool isUp = false;
  QTimer user;
  user.callOnTimeout([&] {
    if (const FadingWindow* info = Fading("frmInfo")) {
      if (time == 0) time = EndTime(*info);
      return;
    }
    QWidget* box = QApplication::activeModalWidget();
    isUp = box != nullptr;
    if (isUp) box->close();
    user.stop();
  });
  user.start(1);
  Desktop::MessageBox("Value of Radius is too small to draw");
  EXPECT_EQ(30'000, time);
  EXPECT_TRUE(isUp);
}

TEST(SmallWindowsTest, TheProgramEndsBehindAModalNotificationWithoutAskingAWindow) {
  class Stubborn : public QWidget {
    void closeEvent(QCloseEvent* event) override { event->ignore(); }
  };
  Stubborn window;
  window.show();
  QTimer user;
  user.callOnTimeout([&] {
    if (Up("frmInfo") == nullptr) return;
    user.stop();
    frmMain::Form_Unload();
    Desktop::EndProgram();
  });
  user.start(0);
  QMetaObject::invokeMethod(
      qApp, [] { ModCNC::DecodeMWord("M10"); }, Qt::QueuedConnection);
  EXPECT_EQ(0, QApplication::exec());
  EXPECT_EQ(nullptr, Up("frmInfo"));
  frmMain::ResetToProgramStart();
}

TEST(SmallWindowsTest, WithoutAFileForTheViewerTheManualOpensInTheMiddle) {
  const QTemporaryDir folder;
  QFile viewer(folder.filePath("hh"));
  EXPECT_TRUE(viewer.open(QIODevice::WriteOnly) && viewer.write("#!/bin/sh") > 0);
  viewer.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
  viewer.close();
  qputenv("PATH", folder.path().toUtf8());
  QDialog dialog;
  dialog.show();
  dialog.setModal(true);
  frmMain::mnuHelpContents_Click();
  QWidget* help = Up("frmHelp");
  ASSERT_NE(nullptr, help);
  EXPECT_EQ(help->screen()->availableGeometry().center() - help->rect().center(), help->pos());
  help->close();
}

TEST(SmallWindowsTest, APartThatIsGoneIsTold) {
  std::string reason;
  EXPECT_EQ(nullptr, LateRoutine("turnbay_gone", "PrintProgram", reason));
  EXPECT_TRUE(reason.starts_with("A part of Turnbay can't be loaded: ")) << reason;
  EXPECT_TRUE(reason.ends_with(". Install Turnbay again.")) << reason;
}

// What the pages of a file show, in order: of each stretch of text its colour, its size, the line
// and the column where it begins, and its characters, which a file numbers as they first come up,
// and how far each line goes that is drawn. A column is a character of 10 points wide.
std::string Drawn(const QByteArray& file) {
  static const QRegularExpression marks(
      "([\\d. ]+) scn|/F\\d+ (\\d+) Tf|<00(..)> Tj|(\\d+) \\S+ l\nS|([\\d.]+) (\\S+) Td");
  QString drawn;
  QStringList heights{"0"};
  for (qsizetype at = 0; (at = file.indexOf("\nstream\n", at) + 8) > 8;) {
    if (file[at] != 'x') continue;
    const QString content = qUncompress(QByteArray(4, '\0') + file.mid(at));
    if (!content.contains("Tj")) continue;
    drawn += "\npage";
    for (const auto& mark : marks.globalMatch(content)) {
      if (!mark.hasCaptured(5)) {
        drawn += (mark.hasCaptured(1) ? "\n" : " ") + mark.captured(mark.lastCapturedIndex());
        continue;
      }
      const int columns = qRound(mark.captured(5).toDouble() / 100);
      if (!heights.contains(mark.captured(6))) heights.append(mark.captured(6));
      const auto line = heights.indexOf(mark.captured(6));
      if (columns != 1 || line > 0) drawn += QString(" at %1 of %2").arg(columns).arg(line);
    }
  }
  return drawn.toStdString() + '\n';
}

// What is told when the dialog is left with this file and these choices.
QString PrintByDialog(const QString& path, const std::function<void(QPrintDialog&)>& choose) {
  QString told;
  QTimer user;
  user.callOnTimeout([&] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      told = box->text();
      box->accept();
    }
    auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    dialog->findChild<QLineEdit*>("filename")->setText(path);
    choose(*dialog);
    dialog->accept();
  });
  user.start(0);
  frmMain::mnuFilePrint_Click();
  return told;
}

QByteArray BytesOf(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.readAll();
}

TEST(SmallWindowsTest, PrintsToTheFileOfItsDialogOrLeavesItAndTellsWhy) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("a.pdf");
  // No other disk has to have room.
  qputenv("TMPDIR", "/nowhere");
  frmMain::ResetToProgramStart();
  GlobalVariables::Settings.EditorFontName = "Courier";
  GlobalVariables::Settings.EditorFontSize = 10;
  frmMain::StatusBar.Panels("FileName").Text = "Title";
  const TextFormat light{Rgb(255, 255, 200), true, "", 20};
  frmMain::TextEditor().SetTextRTF({"G00\tX1\r\n" + std::string(90, '0') + "\r\nX1\r\n",
                                    {{0, {Rgb(1, 2, 3), false, "", 0}}, {100, light}}});
  rlimit free{};
  getrlimit(RLIMIT_FSIZE, &free);
  signal(SIGXFSZ, SIG_IGN);
  for (const bool hasRoom : {true, false}) {
    const rlimit full{1'000, free.rlim_max};
    const QString told = PrintByDialog(path, [&](QPrintDialog&) {
      if (!hasRoom) setrlimit(RLIMIT_FSIZE, &full);
    });
    setrlimit(RLIMIT_FSIZE, &free);
    EXPECT_EQ(hasRoom ? "" : "The file \"" + path + "\" can't be written: File too large.", told);
    ExpectGolden("listing", Drawn(BytesOf(path)));
    EXPECT_TRUE(BytesOf(path).contains(QByteArray("/Title (\xFE\xFF\0T\0i\0t\0l\0e)", 20)));
  }
  qunsetenv("TMPDIR");
}

TEST(SmallWindowsTest, LongLinesGoOnAndOnlyThePagesAskedForAreMade) {
  const QTemporaryDir folder;
  frmMain::ResetToProgramStart();
  frmMain::TextEditor().SetText(std::string(20'000, 'X'));
  PrintByDialog(folder.filePath("a.pdf"), [](QPrintDialog& dialog) {
    dialog.findChild<QAbstractButton*>("printRange")->click();
    dialog.findChild<QSpinBox*>("from")->setValue(2);
    dialog.findChild<QSpinBox*>("to")->setValue(3);
  });
  const QByteArray pages = BytesOf(folder.filePath("a.pdf"));
  EXPECT_EQ(2, pages.count("/Type /Page\n"));
  EXPECT_EQ(2, QByteArray::fromStdString(Drawn(pages)).count("page"));
  frmMain::ResetToProgramStart();
}

TEST(SmallWindowsTest, APrinterThatFailsBetweenTwoPagesIsTold) {
  struct Jam : QPdfWriter {
    using QPdfWriter::QPdfWriter;
    bool newPage() override { return false; }
  };
  QBuffer pages;
  pages.open(QIODevice::WriteOnly);
  Jam printer(&pages);
  EXPECT_FALSE(PrintListing({"A", {std::string(20'000, 'X'), {{}}}, {"Courier", 10}}, printer));
}

}  // namespace

#include <QApplication>
#include <QTemporaryFile>
#include <QTest>
#include <gtest/gtest.h>

#include "editor/documents.h"
#include "interpreter/decoder.h"
#include "mainwindow/fading_window.h"
#include "mainwindow/frm_help.h"
#include "mainwindow/frm_splash.h"
#include "mainwindow/listing.h"
#include "mainwindow/notifications.h"
#include "mainwindow/program_start.h"
#include "platform/host/desktop.h"

namespace {

// Null unless it is on the screen.
QWidget* Up(const char* name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->objectName() == name) return window;
  }
  return nullptr;
}

TEST(SmallWindowsTest, AClickTurnsTheFadeAroundWhereItStands) {
  int highest = 0;
  QTimer user;
  user.callOnTimeout([&] {
    auto* box = dynamic_cast<FadingWindow*>(Up("frmSplash"));
    if (box == nullptr) return;
    highest = std::max(highest, qRound(box->windowOpacity() * 255));
    if (highest == 95 && box->Timer1.isActive()) QTest::mouseClick(box, Qt::LeftButton);
  });
  user.start(0);
  frmMain::mnuHelpAbout_Click();
  EXPECT_EQ(100, highest);
}

TEST(SmallWindowsTest, AModalNotificationTakesTheWindowOverForItsOwnTime) {
  ModCNC::DecodeMWord("M03");
  QTimer::singleShot(300, qApp, [info = Up("frmInfo")] {
    EXPECT_EQ(250 / 255.0, info->windowOpacity());
    EXPECT_EQ("Chuck OPEN", info->findChild<QWidget*>("lblInfo")->property("text").toString());
  });
  const QDeadlineTimer early(500), late(1900);
  ModCNC::DecodeMWord("M10");
  EXPECT_TRUE(early.hasExpired() && !late.hasExpired());
  frmMain::ShowInfoWindow(0, 50);
  EXPECT_TRUE(QTest::qWaitFor([] { return Up("frmInfo") == nullptr; }));
}

TEST(SmallWindowsTest, AMessageBoxOutlivesTheNotificationThatIsActive) {
  frmMain::ShowInfoWindow(0, 50);
  Up("frmInfo")->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(Up("frmInfo")));
  bool isUp = false;
  QTimer user;
  user.callOnTimeout([&] {
    if (Up("frmInfo") != nullptr) return;
    QWidget* box = QApplication::activeModalWidget();
    isUp = box != nullptr;
    if (isUp) box->close();
    user.stop();
  });
  user.start(50);
  Desktop::MessageBox("Value of Radius is too small to draw");
  EXPECT_TRUE(isUp);
}

TEST(SmallWindowsTest, TheProgramEndsBehindAModalNotification) {
  QTimer user;
  user.callOnTimeout([] { frmMain::Form_Unload(); });
  user.start(50);
  QMetaObject::invokeMethod(
      qApp, [] { ModCNC::DecodeMWord("M10"); }, Qt::QueuedConnection);
  EXPECT_EQ(0, QApplication::exec());
  EXPECT_EQ(nullptr, Up("frmInfo"));
  frmMain::ResetToProgramStart();
}

TEST(SmallWindowsTest, WithoutAViewerTheManualOpensInOneWindow) {
  qputenv("PATH", "/nowhere");
  frmMain::mnuHelpContents_Click();
  frmMain::mnuHelpContents_Click();
  ASSERT_TRUE(QTest::qWaitForWindowActive(Up("frmHelp")));
  auto* pages = Up("frmHelp")->findChild<QWidget*>("brwHelp");
  QTest::keyClick(pages, Qt::Key_Tab);
  QTest::keyClick(pages, Qt::Key_Return);
  EXPECT_EQ("getting_started.html", pages->property("source").toUrl().fileName());
  QTest::keyClick(pages, Qt::Key_Escape);
  EXPECT_EQ(nullptr, Up("frmHelp"));
}

TEST(SmallWindowsTest, LongLinesGoOnAndOnlyThePagesAskedForAreMade) {
  const auto pagesOf = [](std::size_t length, int from, int to) {
    QTemporaryFile file("XXXXXX.pdf");
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFileName(file.open() ? file.fileName() : "");
    printer.setFromTo(from, to);
    EXPECT_TRUE(PrintListing({"A", {std::string(length, 'X'), {{}}}, {"Courier", 10}}, printer));
    return file.readAll().count("/Type /Page\n");
  };
  EXPECT_EQ(2, pagesOf(20'000, 2, 3));
}

}  // namespace

// Random keys, clicks and commands in the real window, in runs, pauses and dialogs.

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QMenu>
#include <QPointer>
#include <QPrintDialog>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>
#include <memory>
#include <random>

#include "debugger/run_commands.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/frm_main.h"
#include "mainwindow/program_start.h"
#include "platform/host/files.h"
#include "platform/host/settings_store.h"
#include "settings/settings.h"
#include "toollib/tool_folder.h"

namespace {

constexpr Qt::Key kKeys[] = {
    Qt::Key_G,        Qt::Key_X,          Qt::Key_Z,      Qt::Key_M,     Qt::Key_0,
    Qt::Key_1,        Qt::Key_6,          Qt::Key_Period, Qt::Key_Space, Qt::Key_Return,
    Qt::Key_Return,   Qt::Key_Backspace,  Qt::Key_Up,     Qt::Key_Down,  Qt::Key_Left,
    Qt::Key_Right,    Qt::Key_Home,       Qt::Key_End,    Qt::Key_Tab,   Qt::Key_Delete,
    Qt::Key_PageDown, Qt::Key_F2,         Qt::Key_F5,     Qt::Key_F6,    Qt::Key_F7,
    Qt::Key_F8,       Qt::Key_BracketLeft};
constexpr Qt::Key kControlKeys[] = {Qt::Key_F5, Qt::Key_Z, Qt::Key_Y, Qt::Key_A, Qt::Key_C,
                                    Qt::Key_V,  Qt::Key_N, Qt::Key_S, Qt::Key_O};

class MonkeyTest : public testing::Test {
 protected:
  MonkeyTest() {
    for (const char* home : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"}) {
      qputenv(home, folder.path().toUtf8());
    }
    frmMain::ResetToProgramStart();
    GlobalVariables::LoadSettings();
    SaveSetting("CNC", "General", "SplashScreen", "0");
    const QString tools = folder.filePath("tools");
    QDir().mkpath(tools);
    const QDir own(QString::fromStdString(ApplicationFolder() + "/tools"));
    for (const QString& name : own.entryList(QDir::Files)) {
      QFile::copy(own.filePath(name), tools + '/' + name);
    }
    GlobalVariables::SetToolFolder(tools.toStdString());
    window = std::make_unique<frmMain::Window>();
    window->Load();
    auto* exit = window->findChild<QAction*>("mnuFileExit");
    EXPECT_NE(nullptr, exit);
    exit->setVisible(false);
    exit->setEnabled(false);
  }
  ~MonkeyTest() override {
    window.reset();
    frmMain::ResetToProgramStart();
    qputenv("HOME", usersHome);
    // An end that was asked for outside exec() would end the next dialog.
    QTimer::singleShot(0, qApp, QApplication::quit);
    QApplication::exec();
  }

  int Below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
  template <class T>
  auto& AnyOf(T& choices) {
    return choices[Below(static_cast<int>(std::size(choices)))];
  }

  // The window that takes the user's events.
  QWidget* Front() {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup;
    if (QWidget* dialog = QApplication::activeModalWidget()) return dialog;
    return window.get();
  }

  void PressKey() {
    QWidget* front = Front();
    QWidget* user = front->focusWidget() != nullptr ? front->focusWidget() : front;
    if (Below(8) == 0) {
      QTest::keyClick(user, AnyOf(kControlKeys), Qt::ControlModifier);
    } else {
      QTest::keyClick(user, AnyOf(kKeys), Below(10) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
    }
  }
  void ClickSomewhere() {
    QList<QWidget*> widgets = {Front()};
    for (auto* child : Front()->findChildren<QWidget*>()) {
      if (child->isVisible() && child->isEnabled()) widgets += child;
    }
    const QPointer<QWidget> target = AnyOf(widgets);
    const QPoint place(Below(target->width() + 1), Below(target->height() + 1));
    const auto button = Below(8) == 0 ? Qt::RightButton : Qt::LeftButton;
    if (Below(6) == 0) QTest::mouseDClick(target, button, {}, place);
    if (target) QTest::mousePress(target, button, {}, place);
    if (target) QTest::mouseRelease(target, button, {}, place);
  }
  void ChooseCommand() {
    if (Front() != window.get()) return;
    QList<QAction*> open;
    for (auto* action : window->findChildren<QAction*>()) {
      if (action->isEnabled() && action->isVisible() && action->menu() == nullptr) open += action;
    }
    AnyOf(open)->trigger();
  }

  // One event. A dialog of files sees names of the test's own folder alone.
  void Act() {
    auto* files = qobject_cast<QFileDialog*>(Front());
    if (files != nullptr && Below(2) == 0) {
      files->selectFile(folder.filePath(QString("part%1.cnc").arg(Below(3))));
      QTest::keyClick(files->focusWidget() != nullptr ? files->focusWidget() : files,
                      Qt::Key_Return);
    } else if (files != nullptr || qobject_cast<QPrintDialog*>(Front()) != nullptr ||
               (Front() != window.get() && Below(6) == 0)) {
      QTest::keyClick(Front(), Qt::Key_Escape);
    } else if (const int kind = Below(20); kind < 9) {
      PressKey();
    } else if (kind < 16) {
      ClickSomewhere();
    } else if (kind < 18) {
      ChooseCommand();
    } else if (kind == 18) {
      frmMain::Slider.Value = Below(13) - 2;
    } else {
      window->resize(200 + Below(900), 150 + Below(600));
    }
  }

  void Step() {
    // First, so that the events go on inside of dialogs and runs; with the window they end.
    QTimer::singleShot(0, window.get(), [this] { Step(); });
    const bool canPause = frmMain::Toolbar.Buttons("Pause").Enabled;
    EXPECT_TRUE(frmMain::Toolbar.Buttons("Stop").Enabled || !canPause) << "neither idle nor a run";
    if (left > 0) {
      --left;
      Act();
    } else if (const QPointer<QWidget> front = Front(); front != window.get()) {
      QTest::keyClick(front, Qt::Key_Escape);
      // The list of a combo box leaves the key to others.
      if (front && front == Front()) front->close();
    } else if (frmMain::Toolbar.Buttons("Stop").Enabled) {
      frmMain::mnuRunStop_Click();
    } else {
      // Unlike quit(), asks no window.
      QApplication::exit();
    }
  }

  const QByteArray usersHome = qgetenv("HOME");
  QTemporaryDir folder;
  std::unique_ptr<frmMain::Window> window;
  std::mt19937 random{1};
  int left = qEnvironmentVariableIntValue("TURNBAY_MONKEY_EVENTS");
};

TEST_F(MonkeyTest, TheWindowOutlivesEveryEvent) {
  if (left == 0) left = 2'000;
  Step();
  QApplication::exec();
  EXPECT_EQ(0, left) << "the program has ended";
  frmMain::TextEditor().SetText("[BILLET X20 Z40\r\nG00 X16 Z0\r\nG01 Z-9");
  frmMain::mnuRunRunToBreakpoint_Click();
  EXPECT_FALSE(frmMain::Toolbar.Buttons("Stop").Enabled);
  EXPECT_TRUE(window->isVisible());
}

}  // namespace

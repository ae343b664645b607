#include "mainwindow/frm_main.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>
#include <gtest/gtest.h>

#include "editor/recovery_text.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/notifications.h"
#include "mainwindow/program_start.h"
#include "platform/host/settings_store.h"
#include "settings/settings.h"
#include "tests/golden.h"

namespace {

constexpr const char* kProgram =
    "[BILLET X20 Z40\r\n"
    "N10 G00 X30 Z10\r\n"
    "N20 G01 X16 Z-20 F100\r\n"
    "N30 G01 X16 Z-30\r\n";

class WindowTest : public testing::Test {
 protected:
  WindowTest() {
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
    qputenv("XDG_STATE_HOME", folder.path().toUtf8());
    frmMain::ResetToProgramStart();
    GlobalVariables::LoadSettings();
    Store("General", "SplashScreen", "0");
  }

  void TearDown() override {
    window.reset();
    frmMain::ResetToProgramStart();
    // An end of the program that was asked for outside exec() would end the next dialog.
    QTimer::singleShot(0, qApp, QApplication::quit);
    QApplication::exec();
  }

  static void Store(const char* section, const char* key, const char* value) {
    SaveSetting("CNC", section, key, value);
  }
  QString WriteProgram(const char* name, const char* text) const {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    return file.fileName();
  }
  void Open() {
    window = std::make_unique<frmMain::Window>();
    window->Load();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }
  void OpenWithProgram() {
    WriteProgram("part.cnc", kProgram);
    Store("RecentFilePaths", "0", folder.filePath("part.cnc").toUtf8());
    Open();
  }
  template <class T>
  T& The(const char* name) const {
    return *window->findChild<T*>(name);
  }
  bool IsOpen(const char* button) const { return The<QToolButton>(button).isEnabled(); }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
    QTest::keyClick(window->windowHandle(), key, modifiers);
  }
  void Choose(const char* entry) const { The<QAction>(entry).trigger(); }
  void DoubleClickRow(int row) const {
    auto& grid = The<QTableView>("DebugWindow");
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {},
                       grid.visualRect(grid.model()->index(row, 2)).center());
  }

  int RowsBegun() const { return The<QProgressBar>("ProgressBar").value(); }
  // Neither the picture of a run nor of its tool.
  bool PictureIsEmpty() const {
    const QImage picture = The<QWidget>("picSim").grab().toImage();
    QImage background = picture;
    background.fill(QColor::fromRgb(frmMain::picSim.BackColor));
    return picture == background;
  }
  // What the user reads of an entry of a menu or of the tool bar, and whether it is to be had.
  static QString Shown(const QAction& entry) {
    if (entry.isSeparator()) return ("- " + entry.objectName()).trimmed();
    if (!entry.isVisible()) return "hidden";
    QStringList words{entry.objectName(), '"' + entry.text() + '"', entry.shortcut().toString()};
    const auto mode = entry.isEnabled() ? QIcon::Normal : QIcon::Disabled;
    const QIcon icon = entry.icon();
    if (!icon.isNull()) {
      const bool isLost = icon.pixmap(16, mode).isNull() || icon.availableSizes(mode).isEmpty();
      words += isLost ? "lost icon" : "icon";
    }
    if (entry.isCheckable()) words += entry.isChecked() ? "[x]" : "[ ]";
    words += entry.isEnabled() ? "open" : "closed";
    words.removeAll("");
    return words.join(' ');
  }
  std::string Menus() const {
    QStringList lines;
    QList<QMenu*> menus;
    for (const QAction* action : window->menuBar()->actions()) menus += action->menu();
    menus += &The<QMenu>("mnuToolBar");
    for (const QMenu* menu : menus) {
      lines += menu->objectName() + " \"" + menu->title() + "\" " +
               (menu->menuAction()->isEnabled() ? "open" : "closed");
      for (const QAction* entry : menu->actions()) lines += "  " + Shown(*entry);
    }
    return lines.join('\n').toStdString() + '\n';
  }
  std::string Bars() const {
    QStringList lines;
    for (const QAction* button : The<QToolBar>("Toolbar").actions()) {
      lines += Shown(*button);
      if (!button->isSeparator()) {
        lines.back() += " label " + button->iconText() + ", tip " + button->toolTip();
      }
    }
    const QWidget& bar = The<QWidget>("StatusBar");
    lines += QString("StatusBar, height %1").arg(bar.height());
    auto panels = bar.findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    panels += &The<QSlider>("Slider");
    panels += &The<QProgressBar>("ProgressBar");
    for (const QWidget* panel : panels) {
      const QPoint corner =
          panel->mapTo(window.get(), QPoint()) - bar.mapTo(window.get(), QPoint());
      lines += QString("%1 at %2 %3, %4 by %5, tip %6, \"%7\"")
                   .arg(panel->objectName())
                   .arg(corner.x())
                   .arg(corner.y())
                   .arg(panel->width())
                   .arg(panel->height())
                   .arg(panel->toolTip(), panel->accessibleName());
    }
    for (const char* name :
         {"TextEditor", "DebugWindow", "txtDebug", "picSim", "Toolbar", "StatusBar"})
      lines += QString("%1, \"%2\"").arg(name, The<QWidget>(name).accessibleName());
    return lines.join('\n').toStdString() + '\n';
  }

  // Acts once, at the first moment of a run at which `when` holds.
  template <class When, class Action>
  void Once(When when, Action action) {
    auto* watch = new QTimer(window.get());
    QObject::connect(watch, &QTimer::timeout, watch, [watch, when, action] {
      if (!when()) return;
      watch->deleteLater();
      watch->stop();
      action();
    });
    watch->start(1);
  }
  // Answers the save question of what happens next.
  static void Answer(QMessageBox::StandardButton button) {
    QTimer::singleShot(0, qApp, [button] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(nullptr, box);
      EXPECT_EQ("Save changes to Untitled?", box->text());
      box->button(button)->click();
    });
  }

  QTemporaryDir folder;
  std::unique_ptr<frmMain::Window> window;
};

TEST_F(WindowTest, ComesUpMaximizedWithTheKeyboardInTheEditor) {
  Open();
  EXPECT_TRUE(window->isMaximized());
  EXPECT_FALSE(The<QAction>("mnuFileRecentFiles(0)").isEnabled());
  EXPECT_EQ("True", GetSetting("CNC", "Toolbar", "ShowLabels"));
  EXPECT_EQ(&The<QTextEdit>("TextEditor"), QApplication::focusWidget());
}

TEST_F(WindowTest, ShowsTheMenusAndBarsOfItsState) {
  Store("General", "OpenLastFile", "0");
  WriteProgram("part.cnc", kProgram);
  Store("RecentFilePaths", "0", folder.filePath("part.cnc").toUtf8());
  Open();
  QApplication::processEvents();
  ExpectGolden("menus_at_start", Menus());
  ExpectGolden("bars_at_start", Bars());
  Choose("mnuToolsPlaySound");
  EXPECT_FALSE(The<QAction>("mnuToolsPlaySound").isChecked());
  auto& slider = The<QSlider>("Slider");
  for (const Qt::Key key : {Qt::Key_PageUp, Qt::Key_Right}) QTest::keyClick(&slider, key);
  EXPECT_EQ(6, frmMain::Slider.Value);
  frmMain::Slider.Value = 0;
  EXPECT_EQ(0, slider.value());
  Choose("mnuFileRecentFiles(0)");
  ExpectGolden("menus_with_program", Menus());
  Once([this] { return RowsBegun() > 2; },
       [&] {
         ExpectGolden("menus_in_run", Menus());
         QContextMenuEvent press(QContextMenuEvent::Mouse, {3, 3},
                                 The<QToolButton>("New").mapToGlobal(QPoint(3, 3)));
         QApplication::sendEvent(&The<QToolButton>("New"), &press);
         EXPECT_FALSE(The<QMenu>("mnuToolBar").isVisible());
         slider.setValue(SliderControl::kMax);
       });
  Key(Qt::Key_F5);
  ExpectGolden("bars_after_run", Bars());
}

TEST_F(WindowTest, TheToolBarIsLaidOutAnewAndComesBackByReset) {
  Open();
  QStringList lines;
  QTimer::singleShot(0, qApp, [&] {
    QWidget* dialog = QApplication::activeModalWidget();
    EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
    auto& list = *dialog->findChild<QListWidget*>("lstButtons");
    lines += dialog->windowTitle();
    QTest::keyClick(dialog->windowHandle(), Qt::Key_B, Qt::AltModifier);
    EXPECT_TRUE(list.hasFocus());
    // Without a button Space takes or sets the tick.
    for (const auto& [row, button] : {std::pair{0, "Move &Up"},
                                      {0, "Move &Down"},
                                      {11, "Move &Down"},
                                      {10, "Move &Down"},
                                      {11, "Move &Up"},
                                      {2, ""},
                                      {2, "Move &Down"},
                                      {1, ""},
                                      {1, ""},
                                      {5, "&Reset"}}) {
      list.setCurrentRow(row);
      if (*button == 0) QTest::keyClick(&list, Qt::Key_Space);
      for (auto* known : dialog->findChildren<QPushButton*>()) {
        if (known->text() == button) known->click();
      }
      lines += QString("%1 %2:").arg(row).arg(button);
      for (int i = 0; i < list.count(); ++i) {
        const QListWidgetItem& item = *list.item(i);
        lines.back() += (i == list.currentRow() ? " >" : " ") + item.text() +
                        (item.checkState() == Qt::Checked ? "" : "*") +
                        (item.icon().isNull() == (item.text() == "Separator") ? "" : " lost icon");
      }
      lines += "  bar:";
      for (const QAction* action : The<QToolBar>("Toolbar").actions()) {
        if (action->isVisible())
          lines.back() += ' ' + (action->isSeparator() ? "-" : action->text());
      }
    }
    QTest::keyClick(dialog, Qt::Key_Escape);
  });
  Choose("mnuToolBarCustomize");
  ExpectGolden("tool_bar_layout", lines.join('\n').toStdString() + '\n');
}

TEST_F(WindowTest, OptionsKeepSaveAndTakeThePictureAwayUntilF2ShowsOneAnew) {
  OpenWithProgram();
  Once([this] { return !PictureIsEmpty(); }, [&] { The<QToolButton>("Stop").click(); });
  Key(Qt::Key_F5);
  Choose("mnuViewTextEditor");
  QTest::keyClick(&The<QTextEdit>("TextEditor"), Qt::Key_X);
  QTest::keyClick(&The<QTextEdit>("TextEditor"), Qt::Key_Backspace);
  const auto confirm = [&] {
    QTimer::singleShot(0, qApp,
                       [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
    The<QToolButton>("Options").click();
  };
  confirm();
  EXPECT_TRUE(IsOpen("Save") && The<QAction>("mnuFileSave").isEnabled());
  frmMain::EnableCommands("Save", false);
  Once([this] { return !PictureIsEmpty(); }, [&] { The<QToolButton>("Stop").click(); });
  The<QToolButton>("Start").click();
  EXPECT_FALSE(PictureIsEmpty());
  for (QWidget* user : {&The<QWidget>("DebugWindow"), &The<QWidget>("Slider")}) {
    frmMain::picSim.Cls();
    EXPECT_TRUE(PictureIsEmpty());
    user->setFocus();
    Key(Qt::Key_F2);
    EXPECT_FALSE(PictureIsEmpty());
  }
  // A grab paints the area anew; the screen waits for this.
  bool cleared = false;
  frmMain::picSim.Cls = [&cleared, clear = frmMain::picSim.Cls] {
    cleared = true;
    clear();
  };
  confirm();
  EXPECT_TRUE(cleared && PictureIsEmpty());
  EXPECT_FALSE(IsOpen("Save"));
}

TEST_F(WindowTest, TheNextStartShowsTheViewsThatWereStored) {
  for (const auto& [text, grid] :
       {std::pair{"True", "False"}, {"False", "True"}, {"False", "False"}}) {
    Store("ViewOptions", "TextEditor", text);
    Store("ViewOptions", "DebugWindow", grid);
    Store("ViewOptions", "Toolbar", grid);
    OpenWithProgram();
    EXPECT_EQ(QString(text) == "True", The<QWidget>("TextEditor").isVisible());
    EXPECT_EQ(QString(grid) == "True", The<QWidget>("DebugWindow").isVisible());
    EXPECT_EQ(QString(grid) == "True", The<QWidget>("Toolbar").isVisible());
    EXPECT_EQ(QString(grid) == "True", The<QAction>("mnuViewDebugWindow").isChecked());
    EXPECT_TRUE(The<QTextEdit>("TextEditor").toPlainText().startsWith("[BILLET"));
    window.reset();
    frmMain::ResetToProgramStart();
  }
}

TEST_F(WindowTest, EveryViewIsLaidOutStoredAndComesBackAtTheNextStart) {
  Open();
  const auto check = [&](const char* entry, const char* section, const char* key,
                         const char* mark) {
    if (entry != nullptr) Choose(entry);
    QApplication::processEvents();
    EXPECT_EQ(mark, GetSetting("CNC", section, key)) << key;
    const auto heightOf = [&](const char* bar) {
      return The<QWidget>(bar).isVisible() ? The<QWidget>(bar).height() : 0;
    };
    const QWidget& form = *window->centralWidget();
    const QWidget& editor = The<QWidget>("TextEditor");
    const QWidget& grid = The<QWidget>("DebugWindow");
    EXPECT_FALSE(editor.isVisible() && grid.isVisible());
    const int top = heightOf("Toolbar");
    const int pane = editor.isVisible() || grid.isVisible() ? qRound(form.width() * 0.23) : 0;
    const int height = form.height() - top - heightOf("StatusBar");
    EXPECT_EQ(QRect(pane, top, form.width() - pane, height), The<QWidget>("picSim").geometry());
    EXPECT_EQ(QRect(0, top, qRound(form.width() * 0.23), height), grid.geometry());
    EXPECT_EQ(The<QWidget>("StatusBar").isVisible(), The<QWidget>("Slider").isVisible());
    EXPECT_TRUE(The<QLabel>("Slider").geometry().width() - 8 == The<QWidget>("Slider").width());
  };
  check("mnuViewDebugWindow", "ViewOptions", "TextEditor", "False");
  check("mnuViewToolBar", "ViewOptions", "Toolbar", "False");
  check("mnuViewStatusBar", "ViewOptions", "StatusBar", "False");
  check("mnuViewDebugWindow", "ViewOptions", "DebugWindow", "False");
  check("mnuViewToolBar", "ViewOptions", "Toolbar", "True");
  const int labelled = The<QWidget>("Toolbar").height();
  check("mnuToolBarShowLabels", "Toolbar", "ShowLabels", "False");
  EXPECT_LT(The<QWidget>("Toolbar").height(), labelled);
  check("mnuViewTextEditor", "ViewOptions", "TextEditor", "True");
  check("mnuViewDebugWindow", "ViewOptions", "DebugWindow", "True");
  window.reset();
  frmMain::ResetToProgramStart();
  Open();
  EXPECT_FALSE(The<QWidget>("StatusBar").isVisible());
  check(nullptr, "ViewOptions", "DebugWindow", "True");
  EXPECT_EQ(Qt::ToolButtonIconOnly, The<QToolButton>("New").toolButtonStyle());
}

TEST_F(WindowTest, TypingRaisesLettersOffersTheBilletAndOpensTheCommands) {
  Open();
  auto& editor = The<QTextEdit>("TextEditor");
  QTest::keyClick(&editor, Qt::Key_BracketLeft);
  EXPECT_EQ("BILLET", editor.textCursor().selectedText());
  QTest::keyClick(&editor, Qt::Key_Return);
  QApplication::processEvents();
  QTest::keyClicks(&editor, "x20 z40");
  QTest::keyClick(&editor, Qt::Key_Tab);
  EXPECT_NE(&editor, QApplication::focusWidget());
  EXPECT_EQ("[BILLET X20 Z40", editor.toPlainText());
  EXPECT_TRUE(IsOpen("Save") && IsOpen("Start") && IsOpen("Step") && IsOpen("Print"));
  EXPECT_FALSE(IsOpen("Pause") || IsOpen("Stop"));
  Answer(QMessageBox::Cancel);
  EXPECT_FALSE(window->close());
  Answer(QMessageBox::No);
  EXPECT_TRUE(window->close());
}

TEST_F(WindowTest, ARunIsPausedEditedSteppedAndStopped) {
  OpenWithProgram();
  EXPECT_EQ("&1   part.cnc", The<QAction>("mnuFileRecentFiles(0)").text());
  auto& position = The<QLabel>("ToolPosition");
  const auto x = [&] { return position.text().section(' ', 1, 1).toDouble(); };
  const auto z = [&] { return position.text().section(' ', 4, 4).toDouble(); };
  Key(Qt::Key_F8);
  EXPECT_TRUE(The<QAction>("mnuRunStepInto").isChecked());
  Once([] { return frmMain::IsRunPaused(); },
       [&] {
         EXPECT_EQ(2, RowsBegun());
         Key(Qt::Key_F5);
       });
  Once([&] { return frmMain::IsRunPaused() && RowsBegun() == 3; },
       [&] {
         The<QToolButton>("Step").click();
         EXPECT_FALSE(The<QAction>("mnuRunStepInto").isChecked());
         The<QToolButton>("Start").click();
       });
  const QString fileMenuDuringRun = The<QTextEdit>("TextEditor").toPlainText();
  Once([&] { return z() < -1; },
       [&] {
         EXPECT_NEAR(16 + 14 * (z() + 20) / 30, x(), 0.2);
         EXPECT_TRUE(The<QWidget>("DebugWindow").isVisible());
         EXPECT_TRUE(IsOpen("Pause") && IsOpen("Stop"));
         EXPECT_FALSE(IsOpen("Start") || IsOpen("New") || IsOpen("Options"));
         Key(Qt::Key_N, Qt::ControlModifier);
         EXPECT_EQ(fileMenuDuringRun, The<QTextEdit>("TextEditor").toPlainText());
         Key(Qt::Key_F6);
         EXPECT_TRUE(IsOpen("Start") && !IsOpen("Pause"));
         DoubleClickRow(3);
         auto& box = The<QLineEdit>("txtDebug");
         EXPECT_EQ("N30 G01 X16 Z-30", box.text());
         QTest::keyClicks(&box, " [");
         QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_Eacute, QString("é"), {});
         QTest::keyClick(&box, Qt::Key_Return);
         EXPECT_FALSE(box.isVisible());
         EXPECT_TRUE(The<QTextEdit>("TextEditor").toPlainText().contains("Z-30 [é"));
         The<QToolButton>("Start").click();
       });
  Once([&] { return z() < -21; }, [&] { The<QToolButton>("Stop").click(); });
  Key(Qt::Key_F5);
  EXPECT_EQ(16, x());
  EXPECT_LT(-30, z()) << "stopped on the way";
  EXPECT_TRUE(IsOpen("Start") && IsOpen("Save") && IsOpen("New"));
  EXPECT_EQ(&The<QTableView>("DebugWindow"), QApplication::focusWidget());
  Choose("mnuViewTextEditor");
  EXPECT_EQ(&The<QTextEdit>("TextEditor"), QApplication::focusWidget());
}

TEST_F(WindowTest, ARowTakesPastedLinesAsOneAndIsFollowedByItsEdit) {
  OpenWithProgram();
  Choose("mnuViewDebugWindow");
  auto& box = The<QLineEdit>("txtDebug");
  EXPECT_EQ(QColor(Qt::white), box.palette().color(QPalette::Base));
  EXPECT_EQ(QColor(Qt::black), box.palette().color(QPalette::Text));
  const auto liesOver = [&](int row) {
    auto& rows = The<QTableView>("DebugWindow");
    const QRect cell = rows.visualRect(rows.model()->index(row, 2));
    return cell.contains(
        rows.viewport()->mapFrom(window.get(), box.mapTo(window.get(), box.rect().center())));
  };
  DoubleClickRow(1);
  EXPECT_TRUE(liesOver(1));
  DoubleClickRow(2);
  EXPECT_TRUE(liesOver(2));
  box.selectAll();
  QApplication::clipboard()->setText("G01 X10\nZ-5");
  QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ("G01 X10 Z-5", box.text());
  const QWidget& grid = The<QTableView>("DebugWindow");
  const int width = grid.width();
  window->showNormal();
  window->resize(500, 400);
  EXPECT_TRUE(QTest::qWaitFor([&] { return grid.width() < width; }));
  auto& rows = The<QTableView>("DebugWindow");
  rows.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  rows.horizontalScrollBar()->setValue(7);
  const QRect cells = rows.viewport()->geometry().translated(rows.pos());
  EXPECT_EQ(cells.right(), box.geometry().right());
  EXPECT_EQ(cells.x() + rows.columnViewportPosition(2), box.x());
  QApplication::clipboard()->setText("G01\n\u2192");
  QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ("G01 X10 Z-5", box.text());
  QTimer::singleShot(0, window.get(), [] {
    auto* told = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(nullptr, told);
    EXPECT_EQ(
        "The character \"\u2192\" (U+2192) in row 2 of the pasted text can't stand in a program. "
        "Nothing has been pasted.",
        told->text());
    told->close();
  });
  QApplication::processEvents();
  const QWidget& form = *window->centralWidget();
  for (const char* overlay : {"Slider", "ProgressBar"}) {
    EXPECT_TRUE(QTest::qWaitFor([&] {
      return The<QWidget>(overlay).y() == form.height() - 25 + 6;
    })) << overlay;
  }
  EXPECT_EQ(QRect(0, form.height() - 25, form.width(), 25), The<QWidget>("StatusBar").geometry());
  EXPECT_EQ(form.width(), The<QWidget>("Toolbar").width());
  // On a button that is closed, and moved, too.
  The<QToolBar>("Toolbar").insertAction(&The<QAction>("New"), &The<QAction>("Pause"));
  EXPECT_EQ("Pause", The<QToolButton>("Pause").accessibleName());
  QContextMenuEvent press(QContextMenuEvent::Mouse, {3, 3},
                          The<QToolButton>("Pause").mapToGlobal(QPoint(3, 3)));
  QApplication::sendEvent(&The<QToolButton>("Pause"), &press);
  EXPECT_TRUE(The<QMenu>("mnuToolBar").isVisible());
  The<QMenu>("mnuToolBar").close();
  DoubleClickRow(2);
  box.setText("G28");
  for (const auto& [reason, stays] : {std::pair{Qt::PopupFocusReason, true},
                                      {Qt::ActiveWindowFocusReason, true},
                                      {Qt::MouseFocusReason, false}}) {
    QFocusEvent left(QEvent::FocusOut, reason);
    QApplication::sendEvent(&box, &left);
    EXPECT_EQ(stays, box.isVisible()) << reason;
  }
  EXPECT_TRUE(The<QTextEdit>("TextEditor").toPlainText().contains("\nG28\n"));
}

TEST_F(WindowTest, ABreakPointStopsARunThatClosesWithTheWindow) {
  OpenWithProgram();
  Choose("mnuViewDebugWindow");
  auto& grid = The<QTableView>("DebugWindow");
  QTest::mouseClick(grid.viewport(), Qt::LeftButton, {},
                    grid.visualRect(grid.model()->index(3, 1)).center());
  Once([] { return frmMain::IsRunPaused(); },
       [&] {
         EXPECT_EQ("X 16.0  Z -20.0", The<QLabel>("ToolPosition").text());
         EXPECT_TRUE(window->close()) << "without a question";
       });
  Key(Qt::Key_F5, Qt::ControlModifier);
  EXPECT_NE(kFalse, frmMain::WindowClosed);
  EXPECT_EQ("X 16.0  Z -20.0", The<QLabel>("ToolPosition").text());
}

TEST_F(WindowTest, EscDismissesTheNotificationBesideIt) {
  Open();
  frmMain::ShowInfoWindow(0, 30'000);
  const auto isUp = [&] { return window->findChild<QDialog*>("frmInfo") != nullptr; };
  EXPECT_TRUE(isUp());
  Key(Qt::Key_Escape);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !isUp(); }));
}

TEST_F(WindowTest, ATextThatWasLeftIsOfferedOnTheWindowAndKeptOnFromThere) {
  const auto bytes = [](const char* text) {
    return QByteArray::fromStdString(frmMain::EncodeRecovery({"/gone/part.cnc", false, text}));
  };
  QDir(folder.path()).mkdir("turnbay");
  QFile left(folder.filePath("turnbay/1-2.recovery"));
  EXPECT_TRUE(left.open(QIODevice::WriteOnly));
  left.write(bytes("G04"));
  left.close();
  const auto read = [&left] {
    EXPECT_TRUE(left.open(QIODevice::ReadOnly));
    QByteArray all = left.readAll();
    left.close();
    return all;
  };
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
    QString asked;
    QTimer user;
    user.callOnTimeout([&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr || !window->isVisible()) return;
      asked = box->windowTitle() + ": " + box->text();
      for (QAbstractButton* button : box->buttons()) {
        if (button->isVisible()) asked += ' ' + button->text();
      }
      QTest::keyClick(box, key);
    });
    user.start(0);
    window.reset();
    window = std::make_unique<frmMain::Window>();
    window->Load();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return !asked.isEmpty() && QApplication::activeModalWidget() == nullptr; }));
    EXPECT_EQ(
        "Orvane's Turnbay: Turnbay ended while \"part.cnc\" had changes that were not saved. "
        "Open them? &Yes &No",
        asked);
    EXPECT_EQ(bytes("G04"), read());
    EXPECT_EQ(key == Qt::Key_Return, IsOpen("Save"));
  }
  QTest::keyClick(&The<QTextEdit>("TextEditor"), Qt::Key_X);
  EXPECT_TRUE(QTest::qWaitFor([&] { return read() == bytes("XG04"); }));
}

TEST_F(WindowTest, ADroppedFileIsOpened) {
  Open();
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(WriteProgram("a&b.cnc", kProgram))});
  // A source that would rather move it away, and one that can't do else.
  for (const auto actions : {Qt::CopyAction | Qt::MoveAction, Qt::DropActions(Qt::MoveAction)}) {
    QDragEnterEvent enter({50, 200}, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QDragMoveEvent move({50, 200}, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop({50, 200}, actions, &data, Qt::LeftButton, Qt::NoModifier);
    for (QDropEvent* event :
         {static_cast<QDropEvent*>(&enter), static_cast<QDropEvent*>(&move), &drop}) {
      event->setDropAction(Qt::MoveAction);
      event->ignore();
      QApplication::sendEvent(window.get(), event);
      const bool copies = actions.testFlag(Qt::CopyAction);
      EXPECT_EQ(copies, event->isAccepted());
      EXPECT_EQ(copies, event->dropAction() == Qt::CopyAction);
    }
  }
  QApplication::processEvents();
  EXPECT_EQ("a&b.cnc", The<QLabel>("FileName").text());
  EXPECT_EQ("&1   a&&b.cnc", The<QAction>("mnuFileRecentFiles(0)").text());
  EXPECT_TRUE(The<QTextEdit>("TextEditor").toPlainText().startsWith("[BILLET"));
}

}  // namespace

// The transcripts in tests/data/windows: what a user does in the real windows, a row each, and
// below it what then has changed on the screen and in files. Rows go on inside of dialogs and runs.

#include <QtTest>
#include <QtWidgets>
#include <random>

#include "debugger/run_commands.h"
#include "editor/recovery_text.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/frm_main.h"
#include "mainwindow/notifications.h"
#include "mainwindow/program_start.h"
#include "mainwindow/view_toggles.h"
#include "platform/host/files.h"
#include "platform/host/settings_store.h"
#include "settings/settings.h"
#include "tests/session_file.h"
#include "tests/windows/on_screen.h"
#include "toollib/tool_folder.h"

namespace {

class WindowSessions : public testing::TestWithParam<std::string> {
 protected:
  WindowSessions() {
    for (const char* home : kHomes) {
      homes_ += qgetenv(home);
      qputenv(home, folder_.path().toUtf8());
    }
    QApplication::setQuitOnLastWindowClosed(false);
    SetPoints(9);
    QDir(folder_.path()).mkpath("tools");
    QDir(folder_.path()).mkpath("turnbay");
    QFile::copy((ApplicationFolder() + "/tools/tool.bmp").c_str(),
                folder_.filePath("tools/tool.bmp"));
    GlobalVariables::LoadSettings();
    SaveSetting("CNC", "General", "SplashScreen", "0");
    user_.setSingleShot(true);
    user_.callOnTimeout([this] { Step(); });
  }
  ~WindowSessions() override {
    End();
    for (std::size_t i = 0; i < std::size(kHomes); ++i) {
      const QByteArray& former = homes_[static_cast<qsizetype>(i)];
      former.isNull() ? qunsetenv(kHomes[i]) : qputenv(kHomes[i], former);
    }
    QApplication::setQuitOnLastWindowClosed(true);
    QApplication::setPalette(palette_);
    QApplication::setFont(font_);
    // An end that was asked for outside exec() would end the next dialog.
    QTimer::singleShot(0, qApp, QApplication::quit);
    QApplication::exec();
  }

  void Play() {
    user_.start(0);
    while (!isOver_) {
      QApplication::exec();
      if (isMonkey_) {
        EndMonkey();
      } else if (!isOver_) {
        said_.emplace_back("the program ends");
      }
    }
  }

 private:
  using Words = const QString&;
  static constexpr const char* kHomes[] = {"HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME"};

  // As often as events are handled, also while a row hasn't come to its end.
  void Step() {
    if (isOver_) return;
    user_.start(0);
    if (isMonkey_) return DoAnything();
    // There is no window manager to do so.
    if (FrontWindow() == nullptr && window_ && window_->isVisible()) window_->activateWindow();
    if (until_ && !until_() && !deadline_.hasExpired()) return;
    EXPECT_TRUE(!until_ || until_()) << session_.Place() << " for too long";
    until_ = nullptr;
    if (!session_.ComesNext("wait")) {
      if (!IsAtRest()) return;
      Tell();
    }
    const QString row = QString::fromStdString(session_.Next());
    calm_ = 0;
    deadline_.setRemainingTime(30'000);
    ++depth_;
    row.isEmpty() ? Finish() : Act(row);
    --depth_;
  }

  bool IsRunning() const {
    return window_ && window_->isVisible() && frmMain::Toolbar.Buttons("Stop").Enabled;
  }

  // What is posted has come, and what came shows. A row may not have come to its end while a dialog
  // is up or a run goes on.
  bool IsAtRest() {
    std::vector<Shown> now = LookAround();
    calm_ = now == now_ ? calm_ + 1 : 0;
    now_ = std::move(now);
    const bool isWithin = QApplication::activeModalWidget() != nullptr || IsRunning();
    // A yield of a run handles events several times, and another may follow at once.
    return calm_ >= (IsRunning() ? 30 : 4) && (depth_ == 0 || isWithin);
  }

  // With the settings and the files. While a run moves, it is at no place to be told.
  std::vector<Shown> LookAround() const {
    std::vector<Shown> now = OnScreen();
    if (IsRunning() && frmMain::Toolbar.Buttons("Pause").Enabled) {
      static const QRegularExpression moving(
          "^(StatusBar|DebugWindow|picSim)/|^frmMain/(ProgressBar|picSim|DebugWindow)$");
      const auto moves = [](const Shown& line) { return line.name.contains(moving); };
      std::erase_if(now, moves);
      std::ranges::copy_if(told_, std::back_inserter(now), moves);
    }
    QString section;
    for (const QString& line : QString(Bytes("turnbay/CNC.ini")).split('\n')) {
      if (line.startsWith('[')) section = line.mid(1).remove(']');
      if (!line.contains('=')) continue;
      now.push_back({"store " + section + ' ' + line.section('=', 0, 0), line.section('=', 1)});
    }
    for (QDirIterator files(folder_.path(), {"*.cnc", "Tool*.ini"}, QDir::Files,
                            QDirIterator::Subdirectories);
         files.hasNext();) {
      const QString text = QString::fromLatin1(Bytes(files.next()));
      now.push_back({"file " + files.fileName(), Quoted(QString(text).remove('\r'))});
    }
    return now;
  }
  QByteArray Bytes(const QString& name) const {
    QFile file(QDir(folder_.path()).filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  void Tell() {
    const auto isUp = [this](const QString& name) {
      return std::ranges::find(now_, name, &Shown::name) != now_.end();
    };
    for (const Shown& line : now_) {
      if (isQuiet_ || std::ranges::find(told_, line) != told_.end()) continue;
      Say(line.name + ": " + line.what);
    }
    for (const Shown& line : told_) {
      // What it was in tells it as well.
      const bool goesAlong =
          line.name.contains('/') && std::ranges::none_of(now_, [&](auto& other) {
            return ('/' + other.name).endsWith('/' + line.name.section('/', 0, 0));
          });
      if (!isQuiet_ && !isUp(line.name) && !goesAlong) Say(line.name + " is gone");
    }
    if (isBegun_) session_.Hold(said_);
    isBegun_ = true;
    isQuiet_ = false;
    said_.clear();
    told_ = now_;
  }
  void Say(QString line) {
    line.replace(folder_.path(), "~").replace(ApplicationFolder().c_str(), "/app");
    said_.push_back(line.toStdString());
  }

  void Finish() {
    EXPECT_EQ(nullptr, QApplication::activeModalWidget()) << session_.Place();
    EXPECT_FALSE(IsRunning()) << session_.Place();
    isOver_ = true;
    // Unlike quit(), asks no window.
    QApplication::exit();
  }
  void End() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window != window_.get() && window->isVisible()) window->close();
    }
    window_.reset();
    frmMain::ResetToProgramStart();
  }
  void Start() {
    End();
    GlobalVariables::LoadSettings();
    GlobalVariables::SetToolFolder(folder_.filePath("tools").toStdString());
    window_ = std::make_unique<frmMain::Window>();
    window_->Load();
  }

  void Act(const QString& row) {
    const auto verb = verbs_.find(row.section(' ', 0, 0));
    ASSERT_NE(verbs_.end(), verb) << session_.Place();
    QString words = row.section(' ', 1);
    (*verb)(words.replace(" / ", "\r\n").replace("\\s", " "));
  }

  // By its name or caption, of all windows the one in front first, and labels last.
  template <class T = QWidget>
  static T* Find(const QString& name) {
    T* found = nullptr;
    for (const QWidget* window : QApplication::topLevelWidgets() + QWidgetList{FrontWindow()}) {
      if (window == nullptr || !window->isVisible()) continue;
      for (T* child : window->findChildren<T*>()) {
        const QString text = child->property("text").toString().remove('&');
        const bool isBetter = found == nullptr || qobject_cast<QLabel*>(child) == nullptr;
        if ((child->objectName() == name || text == name) && isBetter) found = child;
      }
    }
    if (found == nullptr) ADD_FAILURE() << name.toStdString() << " isn't there";
    return found;
  }
  static QWidget* Surface(QWidget* widget) {
    auto* area = qobject_cast<QAbstractScrollArea*>(widget);
    return area != nullptr ? area->viewport() : widget;
  }
  // "12 2" is the text of row 12 of the grid in front, "NAME 30 40" a place in a widget.
  static std::pair<QWidget*, QPoint> At(Words words) {
    const QStringList parts = words.split(' ');
    if (parts.size() > 2) return {Surface(Find(parts[0])), {parts[1].toInt(), parts[2].toInt()}};
    const int row = parts[0].toInt() - 1;
    const int column = parts[1].toInt();
    for (auto* grid : FrontWindow()->findChildren<QTableView*>()) {
      const QRect cell = grid->visualRect(grid->model()->index(row, column));
      if (column > 0 && grid->isVisible()) return {grid->viewport(), cell.center()};
      // Beside the border of a line number, too.
      const QPoint number(5, grid->rowViewportPosition(row) + 1);
      if (grid->isVisible()) return {grid->verticalHeader()->viewport(), number};
    }
    return {FrontWindow(), {}};
  }
  static void Press(Words name) {
    auto* widget = Find(name);
    if (widget == nullptr || !widget->isEnabled()) return;
    // Of a box the tick.
    const bool isBox = qobject_cast<QCheckBox*>(widget) != nullptr;
    QTest::mouseClick(widget, Qt::LeftButton, {},
                      isBox ? QPoint(8, widget->height() / 2) : widget->rect().center());
  }
  static void Click(Words words, Qt::MouseButton button) {
    const auto [widget, place] = At(words);
    QTest::mouseClick(widget, button, {}, place);
  }
  static void DoubleClick(Words words) {
    const auto [widget, place] = At(words);
    QTest::mouseDClick(widget, Qt::LeftButton, {}, place);
  }
  void Drag(Words words) {
    const auto [widget, from] = At(words);
    const QPoint to = At(words.section(' ', 0, 0) + ' ' + words.section(' ', 3)).second;
    QTest::mousePress(widget, Qt::LeftButton, {}, from);
    QTest::mouseMove(widget, to);
    Say(QString("pointer %1").arg(widget->cursor().shape()));
    QTest::mouseRelease(widget, Qt::LeftButton, {}, to);
  }
  void Key(QKeyCombination key, const QString& text = {}) {
    calm_ = 0;
    QWidget* front = FrontWindow();
    if (front == nullptr) return Say("nobody hears it");
    QWindow* window = front->windowHandle();
    const auto modifiers = key.keyboardModifiers();
    text.isEmpty() ? QTest::keyClick(window, key.key(), modifiers)
                   : QTest::sendKeyEvent(QTest::Click, window, key.key(), text, modifiers);
  }
  static void KeyPart(QTest::KeyAction action, Words key) {
    QTest::sendKeyEvent(action, FrontWindow()->windowHandle(), QKeySequence(key)[0].key(), "", {});
  }
  void Type(Words text) {
    for (const QChar each : text) {
      Key(each.unicode() < 128 ? QTest::asciiToKey(each.toLatin1()) : Qt::Key_unknown, each);
    }
  }
  static void Compose(Words text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(QApplication::focusWidget(), &event);
  }
  void GoRound() {
    QStringList reached;
    while (!reached.contains(NameOf(*QApplication::focusWidget()))) {
      reached += NameOf(*QApplication::focusWidget());
      Key(Qt::Key_Tab);
    }
    Say("Tab goes " + reached.join(' '));
  }
  void Choose(Words name) {
    auto* action = Find<QAction>(name);
    if (action == nullptr || !action->isEnabled()) return Say("closed");
    if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
    action->trigger();
  }
  static void AskForMenu(Words name) {
    QWidget* widget = Surface(Find(name));
    const QPoint at(3, 3);
    QContextMenuEvent press(QContextMenuEvent::Mouse, at, widget->mapToGlobal(at));
    QApplication::sendEvent(widget, &press);
  }
  static void Pick(Words words) {
    const QString item = words.section(' ', 1);
    QWidget* widget = Find(words.section(' ', 0, 0));
    if (auto* list = qobject_cast<QListWidget*>(widget)) list->setCurrentRow(item.toInt() - 1);
    auto* box = qobject_cast<QComboBox*>(widget);
    if (box == nullptr) return;
    box->setCurrentText(item);
    emit box->activated(box->currentIndex());
  }
  void Drop(Words name, Qt::DropActions actions) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(folder_.filePath(name))});
    QDragEnterEvent enter({50, 200}, actions, &data, Qt::LeftButton, {});
    QDragMoveEvent move({50, 200}, actions, &data, Qt::LeftButton, {});
    QDropEvent drop({50, 200}, actions, &data, Qt::LeftButton, {});
    for (QDropEvent* event : std::initializer_list<QDropEvent*>{&enter, &move, &drop}) {
      event->setDropAction(Qt::MoveAction);
      event->ignore();
      QApplication::sendEvent(window_.get(), event);
      const bool isCopied = event->dropAction() == Qt::CopyAction;
      Say(!event->isAccepted() ? "refused" : isCopied ? "copied" : "moved");
      if (!event->isAccepted()) return;
    }
  }
  void Enter(Words name) {
    auto* edit = Find<QLineEdit>("fileNameEdit");
    if (edit == nullptr) return;
    edit->window()->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(edit->window()));
    edit->setFocus();
    edit->selectAll();
    // What it offers comes up at any time.
    edit->setCompleter(nullptr);
    QTest::keyClicks(edit, QString(name).replace('~', folder_.path()));
    Say(edit->window()->findChild<QDialogButtonBox*>()->buttons()[0]->text());
    QTest::keyClick(edit, Qt::Key_Return);
  }
  static void TakeColour(Words name) {
    auto* dialog = qobject_cast<QColorDialog*>(FrontWindow());
    dialog->setCurrentColor(QColor(name));
    dialog->accept();
  }
  void Resize(Words words) {
    window_->showNormal();
    QCoreApplication::processEvents();
    window_->resize(words.section(' ', 0, 0).toInt(), words.section(' ', 1).toInt());
  }
  static void SetPoints(int points) {
    QFont font = QApplication::font();
    font.setPointSize(points);
    QApplication::setFont(font);
  }
  static void Store(Words words) {
    const std::string place = words.section(' ', 0, 0).toStdString();
    const std::size_t slash = place.find('/');
    SaveSetting("CNC", place.substr(0, slash), place.substr(slash + 1),
                words.section(' ', 1).toStdString());
  }
  void Write(Words name, const QByteArray& bytes) const {
    QFile file(folder_.filePath(name));
    QFileInfo(file).dir().mkpath(".");
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
  }
  static QByteArray Recovery(Words text) {
    return QByteArray::fromStdString(
        frmMain::EncodeRecovery({"/gone/part.cnc", false, text.toStdString()}));
  }

  // From now on, until so many events have come: anything that a user can do, but to leave.
  void Monkey(int events) {
    isMonkey_ = true;
    events_ = qEnvironmentVariable("TURNBAY_MONKEY_EVENTS", QString::number(events)).toInt();
    auto* exit = window_->findChild<QAction*>("mnuFileExit");
    exit->setVisible(false);
    exit->setEnabled(false);
  }
  void DoAnything() {
    EXPECT_TRUE(IsRunning() || !frmMain::Toolbar.Buttons("Pause").Enabled) << "no run to pause";
    const QPointer<QWidget> popup = QApplication::activePopupWidget();
    const QPointer<QWidget> dialog = QApplication::activeModalWidget();
    const QPointer<QWidget> front = popup ? popup : dialog ? dialog : window_.get();
    if (events_ > 0) {
      --events_;
      AnyEvent(front.get());
    } else if (front != window_.get()) {
      QTest::keyClick(front.get(), Qt::Key_Escape);
      // The list of a combo box leaves the key to others.
      if (front) front->close();
    } else if (IsRunning()) {
      frmMain::mnuRunStop_Click();
    } else {
      // With all that it has begun.
      QApplication::exit();
    }
  }
  void EndMonkey() {
    EXPECT_EQ(0, events_) << "the program has ended";
    isMonkey_ = false;
    user_.stop();
    if (!frmMain::TextEditor().Visible) frmMain::mnuViewTextEditor_Click();
    if (frmMain::mnuRunStepInto.Checked) frmMain::mnuRunStepInto_Click();
    frmMain::TextEditor().SetText("[BILLET X20 Z40\r\nG00 X16 Z0\r\nG01 Z-9");
    frmMain::mnuRunRunToBreakpoint_Click();
    Say(QString(IsRunning() ? "runs" : "has run") + (window_->isVisible() ? "" : " unseen"));
    user_.start(0);
  }
  // In a dialog of files only names in the own folder.
  void AnyEvent(QWidget* front) {
    static constexpr const char* kKeys =
        "G X Z M 0 1 6 . Space Return Return Backspace Up Down Left Right Home End Tab Del PgDown "
        "F2 F5 F6 F7 F8 [ Shift+Up Shift+Down Shift+End Ctrl+F5 Ctrl+Z Ctrl+Y Ctrl+A Ctrl+C "
        "Ctrl+V Ctrl+N Ctrl+S Ctrl+O";
    static const QStringList keys = QString(kKeys).split(' ');
    auto* files = qobject_cast<QFileDialog*>(front);
    QWidget* user = front->focusWidget() != nullptr ? front->focusWidget() : front;
    if (files != nullptr && Below(2) == 0) {
      files->selectFile(folder_.filePath(QString("part%1.cnc").arg(Below(3))));
      QTest::keyClick(user, Qt::Key_Return);
    } else if (files != nullptr || front->inherits("QPrintDialog") ||
               (front != window_.get() && Below(6) == 0)) {
      QTest::keyClick(front, Qt::Key_Escape);
    } else if (const int kind = Below(20); kind < 9) {
      const QKeyCombination key = QKeySequence(keys[Below(keys.size())])[0];
      QTest::keyClick(user, key.key(), key.keyboardModifiers());
    } else if (kind < 16) {
      ClickAnywhere(front);
    } else if (kind < 18) {
      auto commands = window_->findChildren<QAction*>();
      commands.removeIf(
          [](auto* a) { return !a->isEnabled() || !a->isVisible() || a->menu() != nullptr; });
      const bool canChoose = front == window_.get() && !commands.isEmpty();
      if (canChoose) commands[Below(commands.size())]->trigger();
    } else if (kind == 18) {
      frmMain::Slider.Value = Below(13) - 2;
    } else {
      window_->resize(200 + Below(900), 150 + Below(600));
    }
  }
  void ClickAnywhere(QWidget* front) {
    QWidgetList widgets = front->findChildren<QWidget*>();
    widgets.removeIf([](auto* widget) { return !widget->isVisible() || !widget->isEnabled(); });
    widgets += front;
    const QPointer<QWidget> target = widgets[Below(widgets.size())];
    const QPoint place(Below(target->width() + 1), Below(target->height() + 1));
    const auto button = Below(8) == 0 ? Qt::RightButton : Qt::LeftButton;
    if (Below(6) == 0) QTest::mouseDClick(target, button, {}, place);
    if (target) QTest::mousePress(target, button, {}, place);
    if (target) QTest::mouseRelease(target, button, {}, place);
  }
  int Below(qsizetype limit) {
    return static_cast<int>(random_() % static_cast<std::size_t>(limit));
  }

  void Wait(Words words) {
    const QString name = words.section(' ', 1);
    const QMap<QString, std::function<bool()>> conditions = {
        {"paused", [] { return frmMain::IsRunPaused(); }},
        {"idle", [this] { return !IsRunning(); }},
        {"row", [name] { return frmMain::ProgressBar.Value >= name.toInt(); }},
        {"feed", [] { return !frmMain::StatusBar.Panels("FeedRate").Text.Get().empty(); }},
        {"fade", [this] { return window_->findChild<QDialog*>("frmInfo") == nullptr; }},
        {"kept", [this, name] { return Bytes("turnbay/1-2.recovery") == Recovery(name); }}};
    until_ = conditions[words.section(' ', 0, 0)];
  }

  const QMap<QString, std::function<void(Words)>> verbs_ = {
      {"start", [this](Words) { Start(); }},
      {"wait", [this](Words w) { Wait(w); }},
      {"unseen",
       [this](Words w) {
         isQuiet_ = true;
         Act(w);
       }},
      {"key",
       [this](Words w) {
         for (auto& key : w.split(' ')) Key(QKeySequence(key)[0]);
       }},
      {"down", [](Words w) { KeyPart(QTest::Press, w); }},
      {"up", [](Words w) { KeyPart(QTest::Release, w); }},
      {"type", [this](Words w) { Type(w); }},
      {"compose", [](Words w) { Compose(w); }},
      {"clipboard", [](Words w) { QApplication::clipboard()->setText(QString(w).remove('\r')); }},
      {"round", [this](Words) { GoRound(); }},
      {"focus", [](Words w) { Find(w)->setFocus(); }},
      {"press", [](Words w) { Press(w); }},
      {"click", [](Words w) { Click(w, Qt::LeftButton); }},
      {"right-click", [](Words w) { Click(w, Qt::RightButton); }},
      {"double-click", [](Words w) { DoubleClick(w); }},
      {"drag", [this](Words w) { Drag(w); }},
      {"ask", [](Words w) { AskForMenu(w); }},
      {"choose", [this](Words w) { Choose(w); }},
      {"pick", [](Words w) { Pick(w); }},
      {"scroll",
       [](Words w) { Find<QTableView>("DebugWindow")->verticalScrollBar()->setValue(w.toInt()); }},
      {"drop", [this](Words w) { Drop(w, Qt::CopyAction | Qt::MoveAction); }},
      {"drop-to-move", [this](Words w) { Drop(w, Qt::MoveAction); }},
      {"enter", [this](Words w) { Enter(w); }},
      {"colour", [](Words w) { TakeColour(w); }},
      {"look", [this](Words w) { Say(Find(w)->visibleRegion().isEmpty() ? "unseen" : "seen"); }},
      {"resize", [this](Words w) { Resize(w); }},
      {"monkey", [this](Words w) { Monkey(w.toInt()); }},
      {"blank", [](Words) { frmMain::picSim.Cls(); }},
      {"close", [](Words) { FrontWindow()->close(); }},
      {"notification", [](Words w) { frmMain::ShowInfoWindow(w.toShort(), 30'000); }},
      {"theme", [](Words w) { QApplication::setPalette(QPalette(QColor(w))); }},
      {"points", [](Words w) { SetPoints(w.toInt()); }},
      // Settings and files as they are found.
      {"store", [](Words w) { Store(w); }},
      {"recent", [this](Words w) { Store("RecentFilePaths/0 " + folder_.filePath(w)); }},
      {"file", [this](Words w) { Write(w.section(' ', 0, 0), w.section(' ', 1).toLatin1()); }},
      {"left", [this](Words w) { Write("turnbay/1-2.recovery", Recovery(w)); }},
      {"bitmap",
       [this](Words w) {
         QImage(30, 40, QImage::Format_RGB888).save(folder_.filePath("tools/" + w));
       }},
  };

  const QPalette palette_ = QApplication::palette();
  const QFont font_ = QApplication::font();
  QByteArrayList homes_;
  QTemporaryDir folder_;
  std::unique_ptr<frmMain::Window> window_;
  SessionFile session_{std::string(TURNBAY_WINDOWS "/") + GetParam() + ".session"};
  // What the last row said, the screen as told and as seen last, and how often it was the same.
  std::vector<std::string> said_;
  std::vector<Shown> told_;
  std::vector<Shown> now_;
  int calm_ = 0;
  // Of rows that haven't come to their end.
  int depth_ = 0;
  bool isBegun_ = false;
  bool isQuiet_ = false;
  // Of the monkey: whether it is about, what it still does, and what it thinks of next.
  bool isMonkey_ = false;
  int events_ = 0;
  std::mt19937 random_{1};
  bool isOver_ = false;
  std::function<bool()> until_;
  QDeadlineTimer deadline_;
  // Unlike what is posted, it lets all else come first.
  QTimer user_;
};

TEST_P(WindowSessions, AreAsTheyAreKept) {
  Play();
}

INSTANTIATE_TEST_SUITE_P(Kept, WindowSessions,
                         testing::ValuesIn(SessionFile::NamesIn(TURNBAY_WINDOWS)),
                         [](const auto& session) { return session.param; });

}  // namespace

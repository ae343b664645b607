// The transcripts in tests/data/windows: what a user does in the real windows, a row each, and
// below it what then has changed on the screen and in files. Rows go on inside of dialogs and runs.

#include <QtTest>
#include <QtWidgets>

#include "debugger/run_commands.h"
#include "editor/recovery_text.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/fading_window.h"
#include "mainwindow/frm_main.h"
#include "mainwindow/notifications.h"
#include "mainwindow/program_start.h"
#include "mainwindow/view_toggles.h"
#include "platform/host/files.h"
#include "platform/host/settings_store.h"
#include "settings/settings.h"
#include "tests/session_file.h"
#include "tests/windows/hands.h"
#include "tests/windows/monkey.h"
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
      if (monkey_) {
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
    if (monkey_) return DoAnything();
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
    const auto fades = [](QWidget* window) {
      const auto* box = dynamic_cast<FadingWindow*>(window);
      return box != nullptr && (box->Timer1.isActive() || box->Timer2.isActive());
    };
    if (std::ranges::any_of(QApplication::topLevelWidgets(), fades)) return false;
    const bool isWithin = QApplication::activeModalWidget() != nullptr || IsRunning();
    // A yield of a run handles events several times, and another may follow at once.
    const bool isCalm = calm_ >= (IsRunning() ? 30 : 4) && (depth_ == 0 || isWithin);
    return isCalm && (IsPainted() || deadline_.hasExpired());
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
      QString text = QString::fromLatin1(Bytes(files.next()));
      text.replace("\r\n", " / ").replace('\r', "\\r").replace('\n', "\\n");
      now.push_back({"file " + files.fileName(), Quoted(text)});
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
    EXPECT_TRUE(IsPainted()) << session_.Place() << " isn't painted";
    if (isBegun_) session_.Hold(said_);
    isBegun_ = true;
    isQuiet_ = false;
    said_.clear();
    told_ = now_;
  }
  // Whether the window in front shows what it would paint now, but for the rest of a line. A tool
  // button that is clicked by a test keeps its look while it acts, and a gauge waits for a whole
  // step.
  static bool IsPainted() {
    QWidget* front = FrontWindow();
    if (front == nullptr) return true;
    QWidget& window = *front;
    const auto rgb = [&](const QPixmap& picture) {
      QImage image = picture.toImage().convertToFormat(QImage::Format_RGB32);
      QPainter painter(&image);
      for (auto* own : window.findChildren<QWidget*>()) {
        if (!own->inherits("QToolBar") && !own->inherits("QProgressBar")) continue;
        painter.fillRect(QRect(own->mapTo(&window, QPoint()), own->size()), Qt::black);
      }
      return image;
    };
    const QImage shown = rgb(window.screen()->grabWindow(window.winId()));
    const QImage due = rgb(window.grab());
    if (shown.size() != due.size()) return true;
    int stale = 0;
    for (int y = 0; y < due.height(); ++y) {
      for (int x = 0; x < due.width(); ++x) stale += shown.pixel(x, y) != due.pixel(x, y) ? 1 : 0;
    }
    return stale < 100;
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
    const QString name = row.section(' ', 0, 0);
    QString words = row.section(' ', 1);
    words.replace(" / ", "\r\n").replace("\\s", " ").replace("~", folder_.path());
    if (const auto verb = verbs_.find(name); verb != verbs_.end()) return (*verb)(words);
    const auto hand = Hands().find(name);
    ASSERT_NE(Hands().end(), hand) << session_.Place();
    (*hand)(words, [this](const QString& line) { Say(line); });
    calm_ = 0;
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
        frmMain::EncodeRecovery({"/gone/part.cnc", false, Unquoted(text.toStdString())}));
  }

  void LetGoMonkey(int events) {
    events_ = qEnvironmentVariable("TURNBAY_MONKEY_EVENTS", QString::number(events)).toInt();
    monkey_ = std::make_unique<Monkey>(*window_, folder_.path());
  }
  void DoAnything() {
    const auto isOpen = [](frmMain::CommandKey key) {
      return frmMain::Toolbar.Buttons(key).Enabled;
    };
    EXPECT_FALSE(isOpen("Pause") && (isOpen("Start") || !isOpen("Stop"))) << "no run to pause";
    EXPECT_TRUE(isOpen("New") == isOpen("Options") && isOpen("New") != isOpen("Stop"));
    EXPECT_FALSE(frmMain::TextEditor().Visible && frmMain::DebugWindow.Visible);
    EXPECT_FALSE(frmMain::TextEditor().Locked && !isOpen("Stop"));
    QWidget* up = QApplication::activePopupWidget();
    if (up == nullptr) up = QApplication::activeModalWidget();
    const QPointer<QWidget> front = up != nullptr ? up : window_.get();
    if (events_ > 0) {
      --events_;
      monkey_->Act(front.get());
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
    monkey_.reset();
    user_.stop();
    if (!frmMain::TextEditor().Visible) frmMain::mnuViewTextEditor_Click();
    if (frmMain::mnuRunStepInto.Checked) frmMain::mnuRunStepInto_Click();
    frmMain::TextEditor().SetText("[BILLET X20 Z40\r\nG00 X16 Z0\r\nG01 Z-9");
    frmMain::mnuRunRunToBreakpoint_Click();
    Say(QString(IsRunning() ? "runs" : "has run") + (window_->isVisible() ? "" : " unseen"));
    user_.start(0);
  }
  void Wait(Words words) {
    const QString name = words.section(' ', 1);
    const QMap<QString, std::function<bool()>> conditions = {
        {"paused", [] { return frmMain::IsRunPaused(); }},
        {"idle", [this] { return !IsRunning(); }},
        {"row", [name] { return frmMain::ProgressBar.Value >= name.toInt(); }},
        {"feed", [] { return !frmMain::StatusBar.Panels("FeedRate").Text.Get().empty(); }},
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
      {"monkey", [this](Words w) { LetGoMonkey(w.toInt()); }},
      {"blank", [](Words) { frmMain::picSim.Cls(); }},
      {"notification", [](Words w) { frmMain::ShowInfoWindow(w.toShort(), 30'000); }},
      {"theme", [](Words w) { QApplication::setPalette(QPalette(QColor(w))); }},
      {"points", [](Words w) { SetPoints(w.toInt()); }},
      // Settings and files as they are found.
      {"store", [](Words w) { Store(w); }},
      {"recent", [this](Words w) { Store("RecentFilePaths/0 " + folder_.filePath(w)); }},
      {"file",
       [this](Words w) {
         const std::string bytes = Unquoted(w.section(' ', 1).toStdString());
         Write(w.section(' ', 0, 0), QByteArray::fromStdString(bytes));
       }},
      {"left", [this](Words w) { Write("turnbay/1-2.recovery", Recovery(w)); }},
      {"bitmap",
       [this](Words w) {
         QImage image(30, 40, QImage::Format_RGB888);
         image.fill(Qt::magenta);
         image.save(folder_.filePath("tools/" + w));
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
  // While it is about, and what it still does.
  std::unique_ptr<Monkey> monkey_;
  int events_ = 0;
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

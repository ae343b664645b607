#include <QApplication>
#include <QIcon>
#include <QTimer>
#include <memory>

#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/frm_main.h"
#include "mainwindow/program_start.h"
#include "platform/host/desktop.h"
#include "platform/qt/host/application_folder.h"
#include "platform/qt/host/settings_trouble.h"

namespace {

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128}) {
    icon.addFile(QString(":/pictures/icon/turnbay_%1.png").arg(size));
  }
  return icon;
}

// Wayland lets no client place, shape or fade a window, so an X display is taken where one answers.
// What the user has chosen stands.
std::unique_ptr<QApplication> MakeApplication(int& argc, char** argv) {
  constexpr const char* kPlatform = "QT_QPA_PLATFORM";
  const bool prefersX =
      !qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty(kPlatform);
  if (prefersX) qputenv(kPlatform, "xcb;wayland");
  auto application = std::make_unique<QApplication>(argc, argv);
  // It is none of the programs that are started from here.
  if (prefersX) qunsetenv(kPlatform);
  return application;
}

}  // namespace

// The desktop program.
int main(int argc, char** argv) {
  const auto application = MakeApplication(argc, argv);
  QApplication::setApplicationName("turnbay");
  QApplication::setApplicationVersion(TURNBAY_VERSION);
  // With the first window, which doesn't wait for its pictures.
  QTimer::singleShot(0, qApp, [] { QApplication::setWindowIcon(ProgramIcon()); });
  // Under Wayland the icon comes from the desktop entry.
  QApplication::setDesktopFileName("turnbay");
  if (!UseUsersApplicationFolder()) {
    Desktop::ShowError(
        "Your home folder can't take the tools and samples. Those of the installation are used, "
        "and no change of the tool list can be saved. Make room, and start again.");
  }
  // Later, since a setting may be written in the midst of a command.
  WatchSettingsTrouble([](const std::string& reason) {
    QTimer::singleShot(0, qApp, [reason] {
      Desktop::MessageBox(reason + " Your settings hold until Turnbay ends.", Desktop::kCritical,
                          "Error!");
    });
  });
  frmMain::ResetToProgramStart();
  frmMain::Window window;
  window.Load();
  if (frmMain::WindowClosed != kFalse) return 0;
  return QApplication::exec();
}

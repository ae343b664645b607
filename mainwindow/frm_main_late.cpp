#include "mainwindow/print_listing.h"
#include "platform/host/desktop.h"
#include "platform/qt/host/late_library.h"
#include "view3d/frm_3d.h"

// The commands whose windows stand in libraries of their own.
namespace frmMain {

namespace {

void Run(const char* library, const char* command) {
  std::string reason;
  const QFunctionPointer run = LateRoutine(library, command, reason);
  run != nullptr ? run() : Desktop::ShowError(reason);
}

}  // namespace

void mnuFilePrint_Click() {
  Run("turnbay_print", "PrintProgram");
}

void mnuView3DWindow_Click() {
  Run("turnbay_view3d", "Show3DWindow");
}

}  // namespace frmMain

#include "mainwindow/program_start.h"

#include "debugger/row_edit.h"
#include "debugger/run_commands.h"
#include "editor/editor_events.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/layout.h"
#include "motion/player.h"
#include "motion/stock.h"
#include "settings/settings.h"

namespace frmMain {

void ResetToProgramStart() {
  ResetControlSurface();
  ResetRunCommands();
  ResetRowEdit();
  ResetLayout();
  TextChanged = kFalse;
  ModCNC::ResetMachine();
  Graphics::ResetStock();
  GCodes::ResetPlayer();
  GlobalVariables::Settings = {};
}

}  // namespace frmMain

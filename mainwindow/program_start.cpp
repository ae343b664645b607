#include "mainwindow/program_start.h"

#include "debugger/run_commands.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "motion/player.h"
#include "motion/stock.h"
#include "settings/settings.h"

namespace frmMain {

void ResetToProgramStart() {
  ResetControlSurface();
  ResetRunCommands();
  ModCNC::ResetMachine();
  Graphics::ResetStock();
  GCodes::ResetPlayer();
  GlobalVariables::Settings = {};
}

}  // namespace frmMain

#include "mainwindow/program_start.h"

#include "debugger/row_edit.h"
#include "debugger/run_commands.h"
#include "editor/documents.h"
#include "editor/editor_events.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/layout.h"
#include "mainwindow/notifications.h"
#include "motion/pattern_cycle.h"
#include "motion/player.h"
#include "motion/stock.h"
#include "motion/tool.h"
#include "settings/settings.h"
#include "toollib/tool_files.h"
#include "toollib/tool_folder.h"

namespace frmMain {

void ResetToProgramStart() {
  ResetControlSurface();
  ResetRunCommands();
  ResetRowEdit();
  ResetLayout();
  WatchTextEditor(TextEditor_Change);
  ResetDocuments();
  ModCNC::ResetMachine();
  Graphics::ResetTool();
  Graphics::ResetStock();
  GCodes::ResetPlayer();
  GCodes::ResetPatternCycle();
  frmToolSelect::ResetToolFiles();
  GlobalVariables::SetToolFolder("");
  frmInfo::ResetNotifications();
  GlobalVariables::Settings = {};
}

}  // namespace frmMain

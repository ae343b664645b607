#include "mainwindow/start_up.h"

#include "mainwindow/control_surface.h"
#include "settings/settings.h"

namespace frmMain {

void Form_Load() {
  GlobalVariables::LoadSettings();
  EnableCommands("Save,Print,Step,Start,Pause,Stop", false);
  StatusBar.Panels("FileName").Text = "Untitled";
}

}  // namespace frmMain

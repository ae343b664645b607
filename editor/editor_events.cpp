#include "editor/editor_events.h"

#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"

namespace frmMain {

std::int16_t TextChanged = kFalse;

void TextEditor_Change() {
  TextChanged = kTrue;
  if (TextEditor().Text().empty()) {
    EnableCommands("Save,Print,Step,Start,Pause,Stop", false);
  } else if (!Toolbar.Buttons("Save").Enabled) {
    EnableCommands("Save,Print,Start,Step", true);
  }
}

}  // namespace frmMain

#pragma once

#include <string>
#include <string_view>

#include "editor/editor_events.h"
#include "settings/settings.h"
#include "tests/fakes/machine_test.h"

class EditorTest : public MachineTest {
 protected:
  // A document as it stands when it has just been opened.
  static RichText& Open(const std::string& text) {
    RichText& editor = frmMain::TextEditor();
    editor.SetText(text);
    frmMain::EnableCommands("Save", false);
    frmMain::TextChanged = kFalse;
    return editor;
  }

  static bool IsOpen(std::string_view command) { return frmMain::Toolbar.Buttons(command).Enabled; }
};

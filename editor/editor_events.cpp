#include "editor/editor_events.h"

#include <cstddef>
#include <string>
#include <string_view>

#include "interpreter/machine.h"
#include "interpreter/run_driver.h"
#include "mainwindow/control_surface.h"
#include "platform/host/desktop.h"
#include "platform/virtual_keys.h"
#include "settings/settings.h"

namespace frmMain {

using GlobalVariables::Settings;

namespace {

constexpr std::int16_t kNoModifier = 0;
constexpr std::int16_t kShiftAlone = 1;

constexpr std::string_view kOfferedWord = ModCNC::kBilletMark.substr(1);

bool IsBetween(std::int16_t value, std::int16_t low, std::int16_t high) {
  return value >= low && value <= high;
}

bool PicksCharacterColour(std::int16_t keyCode) {
  return keyCode == VirtualKeys::kRightArrow || keyCode == VirtualKeys::kSpaceBar ||
         keyCode == VirtualKeys::kBracket || IsBetween(keyCode, 'A', 'Z');
}

// The digits of the main block and of the number pad.
bool PicksIntegerColour(std::int16_t keyCode) {
  return IsBetween(keyCode, '0', '9') ||
         IsBetween(keyCode, VirtualKeys::kNumberPad0, VirtualKeys::kNumberPad9);
}

}  // namespace

void TextEditor_Change() {
  TextChanged = kTrue;
  if (TextEditor().Text().empty()) {
    EnableCommands(kProgramCommands, false);
  } else if (!Toolbar.Buttons("Save").Enabled) {
    EnableCommands(kChangedProgramCommands, true);
  }
}

void TextEditor_KeyDown(std::int16_t& keyCode, std::int16_t& shift) {
  RichText& editor = TextEditor();
  if (keyCode == VirtualKeys::kEnter && editor.SelLength() != 0 && Settings.AutoComplete != 0) {
    Desktop::SendKeys(Desktop::kRightArrowKeys);
    Desktop::SendKeys(" ");
    keyCode = 0;
    return;
  }
  if (shift != kNoModifier && shift != kShiftAlone) return;
  if (PicksCharacterColour(keyCode)) {
    editor.SetSelColor(Settings.EditorCharacterColor);
  } else if (shift == kNoModifier && PicksIntegerColour(keyCode)) {
    editor.SetSelColor(Settings.EditorIntegerColor);
  }
}

void TextEditor_KeyPress(std::int16_t& character) {
  if (IsBetween(character, 'a', 'z')) character = static_cast<std::int16_t>(character - 'a' + 'A');
}

void TextEditor_KeyUp(std::int16_t keyCode, std::int16_t /*shift*/) {
  if (keyCode != VirtualKeys::kBracket || Settings.AutoComplete == 0) return;
  const std::size_t caret = TextEditor().SelStart();
  Desktop::SendKeys(std::string(kOfferedWord));
  Desktop::Yield();
  TextEditor().SetSelStart(caret);
  TextEditor().SetSelLength(kOfferedWord.size());
}

}  // namespace frmMain

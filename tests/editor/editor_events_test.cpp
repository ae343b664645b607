#include "editor/editor_events.h"

#include "settings/settings.h"
#include "tests/fakes/machine_test.h"

namespace {

using EditorEventsTest = MachineTest;

TEST_F(EditorEventsTest, TheKeyPicksTheColourOfWhatIsTyped) {
  GlobalVariables::Settings.EditorCharacterColor = 'c';
  GlobalVariables::Settings.EditorIntegerColor = 'i';
  std::string picked;
  std::int16_t shift = 0;
  for (std::int16_t key : std::initializer_list<std::int16_t>{65, 90, 32, 39, 48, 57, 96, 105, 47,
                                                              58, 64, 91, 95, 106, 190}) {
    frmMain::TextEditor().SetSelColor('.');
    frmMain::TextEditor_KeyDown(key, shift);
    picked += static_cast<char>(frmMain::TextEditor().SelColor());
  }
  EXPECT_EQ("cccciiii.......", picked);
}

}  // namespace

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

TEST_F(EditorEventsTest, ModifiersEnterAndBracket) {
  constexpr std::int16_t kEnter = 13;
  constexpr std::int16_t kBracket = 219;
  GlobalVariables::Settings.EditorCharacterColor = 'c';
  GlobalVariables::Settings.EditorIntegerColor = 'i';
  const struct {
    std::int16_t autoComplete, key, shift;
    std::size_t selected;
    // Colour at the caret, key that is left, selection, keys that the program presses.
    const char* expected;
  } cases[] = {
      {1, 'G', 1, 0, "c 71 ()"},
      {1, '5', 1, 0, ". 53 ()"},
      {1, 'G', 2, 0, ". 71 ()"},
      {1, '5', 2, 0, ". 53 ()"},
      {1, 'G', 4, 0, ". 71 ()"},
      {1, kBracket, 1, 0, "c 219 (X1 Z5)BILLET"},
      {1, kBracket, 0, 0, "c 219 (X1 Z5)BILLET"},
      {0, kBracket, 0, 0, "c 219 ()"},
      {1, kEnter, 0, 0, ". 13 ()"},
      {1, kEnter, 0, 2, ". 0 (X1){RIGHT} "},
      {0, kEnter, 0, 2, ". 13 (X1)"},
  };
  RichText& editor = frmMain::TextEditor();
  for (const auto& c : cases) {
    Fakes::Reset();
    editor.SetText("G01 X1 Z5");
    GlobalVariables::Settings.AutoComplete = c.autoComplete;
    editor.SetSelStart(4);
    editor.SetSelLength(c.selected);
    editor.SetSelColor('.');
    std::int16_t key = c.key;
    std::int16_t shift = c.shift;
    frmMain::TextEditor_KeyDown(key, shift);
    const std::string colour(1, static_cast<char>(editor.SelColor()));
    frmMain::TextEditor_KeyUp(c.key, c.shift);
    EXPECT_EQ(c.expected, colour + ' ' + std::to_string(key) + " (" + editor.SelText() + ')' +
                              Fakes::SentKeys());
  }
}

}  // namespace

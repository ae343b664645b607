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

TEST_F(EditorEventsTest, BracketOffersTheBilletWordAndEnterTakesIt) {
  for (const bool offers : {false, true}) {
    GlobalVariables::Settings.AutoComplete = offers ? 1 : 0;
    RichText& editor = Open("[");
    editor.SetSelStart(1);
    Fakes::AtSentKeys([&](const std::string& keys) {
      if (keys != Desktop::kRightArrowKeys) return editor.SetSelText(keys);
      editor.SetSelStart(editor.SelStart() + editor.SelLength());
    });
    frmMain::TextEditor_KeyUp(219, 0);
    Desktop::Yield();
    EXPECT_EQ(offers ? "BILLET" : "", editor.SelText());
    std::int16_t shift = 0;
    std::int16_t key = 13;
    frmMain::TextEditor_KeyDown(key, shift);
    Desktop::Yield();
    EXPECT_EQ(offers ? 0 : 13, key) << "Enter has no effect of its own then";
    EXPECT_EQ(offers ? "[BILLET " : "[", editor.Text());
  }
}

}  // namespace

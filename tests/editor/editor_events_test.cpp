#include "editor/editor_events.h"

#include "platform/memory_rich_text.h"
#include "tests/editor/editor_test.h"
#include "tests/platform/rich_text_contract.h"

namespace {

constexpr std::int16_t kEnterKey = 13;
constexpr std::int16_t kBracketKey = 219;
constexpr Colour kPlain = Rgb(1, 1, 1);

// The user at the keyboard; the editor has the focus and gets the keys that are sent, too.
class EditorEventsTest : public EditorTest {
 protected:
  void SetUp() override {
    EditorTest::SetUp();
    GlobalVariables::Settings.EditorCharacterColor = Rgb(0, 0, 255);
    GlobalVariables::Settings.EditorIntegerColor = Rgb(200, 0, 0);
    Fakes::AtSentKeys([](const std::string& keys) {
      if (keys == Desktop::kRightArrowKeys) {
        RichText& editor = frmMain::TextEditor();
        editor.SetSelStart(editor.SelStart() + editor.SelLength());
        return;
      }
      for (const char c : keys) Press(c, c);
    });
  }

  // `typed` is what the key would insert; 0 for nothing.
  static void Press(std::int16_t keyCode, std::int16_t typed, std::int16_t shift = 0) {
    std::int16_t key = keyCode;
    frmMain::TextEditor_KeyDown(key, shift);
    if (key != 0 && typed != 0) {
      frmMain::TextEditor_KeyPress(typed);
      const std::string text =
          typed == kEnterKey ? "\r\n" : std::string(1, static_cast<char>(typed));
      frmMain::TextEditor().SetSelText(text);
    }
    frmMain::TextEditor_KeyUp(keyCode, shift);
  }
};

TEST_F(EditorEventsTest, TheKeyPicksTheColourOfWhatIsTyped) {
  const Colour character = GlobalVariables::Settings.EditorCharacterColor;
  const Colour integer = GlobalVariables::Settings.EditorIntegerColor;
  struct Row {
    int keyCode;
    std::int16_t shift;
    Colour expected;
  };
  const Row rows[] = {
      {'A', 0, character},  {'Z', 1, character}, {32, 0, character},     {39, 0, character},
      {219, 1, character},  {'0', 0, integer},   {'9', 0, integer},      {96, 0, integer},
      {105, 0, integer},    {'5', 1, kPlain},    {100, 1, kPlain},       {'A', 2, kPlain},
      {'A', 3, kPlain},     {'5', 4, kPlain},    {189, 0, kPlain},       {190, 0, kPlain},
      {'0' - 1, 0, kPlain}, {58, 0, kPlain},     {64, 0, kPlain},        {91, 0, kPlain},
      {95, 0, kPlain},      {106, 0, kPlain},    {kEnterKey, 0, kPlain},
  };
  for (const Row& row : rows) {
    frmMain::TextEditor().SetSelColor(kPlain);
    auto keyCode = static_cast<std::int16_t>(row.keyCode);
    std::int16_t shift = row.shift;
    frmMain::TextEditor_KeyDown(keyCode, shift);
    EXPECT_EQ(row.expected, frmMain::TextEditor().SelColor()) << row.keyCode << ' ' << row.shift;
    EXPECT_EQ(row.keyCode, keyCode);
  }
}

TEST_F(EditorEventsTest, LettersAreTypedAsCapitals) {
  const std::pair<int, int> rows[] = {{'a', 'A'}, {'i', 'I'}, {'z', 'Z'},  {'A', 'A'},
                                      {'`', '`'}, {'{', '{'}, {0xE4, 0xE4}};
  for (const auto& [typed, expected] : rows) {
    auto character = static_cast<std::int16_t>(typed);
    frmMain::TextEditor_KeyPress(character);
    EXPECT_EQ(expected, character);
  }
}

TEST_F(EditorEventsTest, BracketOffersTheBilletWordAndEnterTakesIt) {
  RichText& editor = Open("");
  Press(kBracketKey, '[');
  EXPECT_EQ("[BILLET", editor.Text());
  EXPECT_EQ("BILLET", editor.SelText());
  EXPECT_EQ(GlobalVariables::Settings.EditorCharacterColor, editor.SelColor());
  Press(kEnterKey, kEnterKey);
  EXPECT_EQ("[BILLET", editor.Text()) << "Enter has no effect of its own";
  Desktop::Yield();
  EXPECT_EQ("[BILLET ", editor.Text());
  EXPECT_EQ(8u, editor.SelStart());

  Press(kBracketKey, '{', 1);
  EXPECT_EQ("BILLET", editor.SelText());
  Press('F', 'f');
  EXPECT_EQ("[BILLET {F", editor.Text()) << "typing goes over the offered word";
  EXPECT_EQ((std::vector<std::string>{"BILLET", "{RIGHT}", " ", "BILLET"}), Fakes::SentKeys());
}

TEST_F(EditorEventsTest, TheOfferReachesBeyond32767Characters) {
  RichText& editor = Open(std::string(40'000, '1'));
  editor.SetSelStart(40'000);
  Press(kBracketKey, '[');
  EXPECT_EQ(40'001u, editor.SelStart());
  EXPECT_EQ("BILLET", editor.SelText());
}

TEST_F(EditorEventsTest, WithoutAutoCompleteKeysAreJustKeys) {
  GlobalVariables::Settings.AutoComplete = 0;
  RichText& editor = Open("X1 Z2");
  Press(kBracketKey, '[');
  Select(editor, 3, 1);
  Press(kEnterKey, kEnterKey);
  EXPECT_EQ("[X1\r\nZ2", editor.Text());
  EXPECT_TRUE(Fakes::SentKeys().empty());
}

TEST_F(EditorEventsTest, ChangesOfTheTextMoveTheCommands) {
  RichText& editor = Open("");
  frmMain::EnableCommands("Save,Print,Step,Start,Pause,Stop", false);
  editor.SetSelText("G");
  for (const auto* command : {"Save", "Print", "Start", "Step"}) EXPECT_TRUE(IsOpen(command));
  EXPECT_TRUE(frmMain::mnuFileSave.Enabled);
  for (const auto* command : {"Pause", "Stop"}) EXPECT_FALSE(IsOpen(command));
  EXPECT_EQ(kTrue, frmMain::TextChanged);

  frmMain::EnableCommands("Start", false);
  editor.SetSelText("0");
  EXPECT_FALSE(IsOpen("Start")) << "with Save open, a change opens nothing";

  frmMain::EnableCommands("Pause,Stop", true);
  editor.SetText("");
  for (const auto* command : {"Save", "Print", "Step", "Start", "Pause", "Stop"}) {
    EXPECT_FALSE(IsOpen(command)) << command;
  }
}

TEST_F(EditorEventsTest, AWindowBringsItsOwnBody) {
  Open("G01").BackColor = Rgb(1, 2, 3);
  const FormattedText before = frmMain::TextEditor().TextRTF();
  MemoryRichText body;
  frmMain::SetTextEditor(&body);
  EXPECT_EQ(&body, &frmMain::TextEditor());
  EXPECT_EQ(before, body.TextRTF());
  EXPECT_EQ(Rgb(1, 2, 3), body.BackColor.Get());
  EXPECT_FALSE(IsOpen("Save")) << "taking over is no change";
  body.SetText("X5");
  EXPECT_TRUE(IsOpen("Save"));
  frmMain::SetTextEditor(nullptr);
  EXPECT_EQ("X5", frmMain::TextEditor().Text());
  frmMain::EnableCommands("Save", false);
  body.SetText("X6");
  EXPECT_FALSE(IsOpen("Save")) << "a body that was taken out is no editor any more";
}

}  // namespace

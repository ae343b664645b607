#include "editor/colouring.h"

#include "tests/editor/editor_test.h"
#include "tests/platform/rich_text_contract.h"

namespace {

constexpr Colour kKept = Rgb(1, 2, 3);

class ColouringTest : public EditorTest {
 protected:
  void SetUp() override {
    EditorTest::SetUp();
    auto& settings = GlobalVariables::Settings;
    settings.EditorCharacterColor = Rgb(0, 0, 255);
    settings.EditorIntegerColor = Rgb(9, 9, 9);
    settings.EditorCommentColor = Rgb(0, 128, 0);
    settings.EditorBackColor = Rgb(255, 255, 200);
    settings.EditorFontBold = 1;
    settings.EditorFontName = "Courier New";
    settings.EditorFontSize = 12;
  }

  // Colours a text that is kKept all over.
  static void Colour(const std::string& text) {
    RichText& buffer = frmMain::TextBuffer();
    buffer.SetText(text);
    Select(buffer, 0, text.size());
    buffer.SetSelColor(kKept);
    frmMain::ColourText();
  }

  // One letter for each byte of the editor: character, integer, comment, or a dot for kKept.
  static std::string Classes() {
    const auto& settings = GlobalVariables::Settings;
    std::string classes;
    for (const TextFormat& format : FormatOfEachByte(frmMain::TextEditor().TextRTF())) {
      classes += format.color == settings.EditorCharacterColor ? 'c'
                 : format.color == settings.EditorIntegerColor ? 'i'
                 : format.color == settings.EditorCommentColor ? 'm'
                 : format.color == kKept                       ? '.'
                                                               : '?';
    }
    return classes;
  }
};

TEST_F(ColouringTest, EachByteHasTheColourOfItsClass) {
  const std::pair<std::string, std::string> rows[] = {
      {"", ""},
      {"G01 X-2.5", "ciiiciiii"},
      {"gyZ@[", "ccc.m"},
      {"X+5,\t;\xE4", "c.i...."},
      {"[A [b+\r\nX1", "mmmmmm..ci"},
      {"X1 [end", "ciimmmm"},
      {"[a\rb\n[c\r\n[", "mmmmmmm..m"},
      {"\r\n[\r\n\r\n", "..m...."},
  };
  for (const auto& [text, classes] : rows) {
    Colour(text);
    EXPECT_EQ(text, frmMain::TextEditor().Text());
    EXPECT_EQ(classes, Classes()) << text;
  }
}

TEST_F(ColouringTest, TheEditorTakesFontAndBackgroundAndCountsAsSaved) {
  Open("x");
  frmMain::EnableCommands("Save", true);
  Colour("G01 +[a");
  const auto& settings = GlobalVariables::Settings;
  for (const TextFormat& format : FormatOfEachByte(frmMain::TextEditor().TextRTF())) {
    EXPECT_EQ((TextFormat{format.color, true, "Courier New", 12}), format);
  }
  EXPECT_EQ(settings.EditorBackColor, frmMain::TextEditor().BackColor.Get());
  EXPECT_FALSE(IsOpen("Save"));
  EXPECT_TRUE(IsOpen("Start"));
  EXPECT_EQ(kTrue, frmMain::TextChanged);
}

TEST_F(ColouringTest, TheLimitIsExact) {
  // No two neighbours of one class: the most runs that a text can have.
  std::string text;
  while (text.size() < frmMain::kMaxColouredLength) text += "X1";
  Colour(text);
  EXPECT_EQ(text, frmMain::TextEditor().Text());
  EXPECT_EQ(text.size(), frmMain::TextEditor().TextRTF().runs.size());

  const FormattedText before = frmMain::TextEditor().TextRTF();
  frmMain::EnableCommands("Save", true);
  GlobalVariables::Settings.EditorBackColor = Rgb(5, 5, 5);
  Fakes::ExpectMessage("The text has 32767 characters; at most 32766 can be coloured.",
                       Desktop::kOkOnly);
  Colour(text + "[");
  EXPECT_EQ(before, frmMain::TextEditor().TextRTF());
  EXPECT_EQ(Rgb(255, 255, 200), frmMain::TextEditor().BackColor.Get());
  EXPECT_TRUE(IsOpen("Save"));
}

}  // namespace

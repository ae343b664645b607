#include "editor/reformat.h"

#include "editor/colouring.h"
#include "settings/settings.h"
#include "tests/fakes/machine_test.h"
#include "tests/platform/rich_text_contract.h"

namespace {

using ReformatTest = MachineTest;

TEST_F(ReformatTest, BringsALineIntoItsCanonicalLayout) {
  const std::pair<std::string, std::string> rows[] = {
      {"g01x20z-5", "G01 X20 Z-5"},
      {"  G 0 1 X -5  ", "G01 X-5"},
      {"G01\tX\t5 [a\tb  ", "G01 X5 [a\tb"},
      {"f0,3;y(+5)x[A [b", "F0,3; Y(+5) X [A [b"},
      {"G00 X1\r\n\r\n \t \r\nX2\r\n\r\n", "G00 X1\r\nX2\r\n"},
      {" \r\n\t", ""},
      // Only the pair ends a line, and blanks that keep its halves apart hold it off.
      {"x1\r \t\nx2", "X1\r \n X2"},
      {"x1\ny2\rz3", "X1\n Y2\r Z3"},
      // Bytes beyond ASCII have no case here, whatever the user's language.
      {std::string("x1\xE4\0z2", 6), std::string("X1\xE4\0 Z2", 7)},
  };
  for (const auto& [text, expected] : rows) {
    Open(text);
    frmMain::mnuToolsReformatText_Click();
    EXPECT_EQ(expected, frmMain::TextEditor().Text());
    EXPECT_FALSE(frmMain::mnuFileSave.Enabled);
  }
}

TEST_F(ReformatTest, ColouringGivesEachByteTheColourOfItsClass) {
  auto& settings = GlobalVariables::Settings;
  settings.EditorCharacterColor = 'c';
  settings.EditorIntegerColor = 'i';
  settings.EditorCommentColor = 'm';
  settings.EditorBackColor = 'b';
  settings.EditorFontBold = 1;
  settings.EditorFontName = "Mono";
  settings.EditorFontSize = 14;
  const std::pair<std::string, std::string> rows[] = {
      {"G01 X-2.5", "ciiiciiii"},       {"gyZ@[", "ccc.m"},
      {"X+5,\t;\xE4", "c.i...."},       {"[A [b+\r\nX1", "mmmmmm..ci"},
      {"[a\rb\n[c\r\n[", "mmmmmmm..m"}, {"", ""},
  };
  for (const auto& [text, classes] : rows) {
    RichText& buffer = frmMain::TextBuffer();
    buffer.SetText(text);
    Select(buffer, 0, text.size());
    buffer.SetSelColor('.');
    frmMain::ColourText();
    std::string shown;
    for (const TextFormat& format : FormatOfEachByte(frmMain::TextEditor().TextRTF())) {
      shown += static_cast<char>(format.color);
      EXPECT_EQ((TextFormat{format.color, true, "Mono", 14}), format);
    }
    EXPECT_EQ(classes, shown) << text;
    EXPECT_EQ(text, frmMain::TextEditor().Text());
    EXPECT_EQ(Colour{'b'}, frmMain::TextEditor().BackColor.Get());
    EXPECT_FALSE(frmMain::mnuFileSave.Enabled);
  }
}

TEST_F(ReformatTest, ATextTooLongToColourStaysAsItIs) {
  const FormattedText before = Open("G00 X1").TextRTF();
  for (const std::size_t length : {32'767U, 32'766U}) {
    const bool isTooLong = length > 32'766;
    frmMain::TextBuffer().SetText(std::string(length, 'G'));
    if (isTooLong) {
      Fakes::ExpectMessage(
          {"The text has 32767 characters; at most 32766 can be coloured.", 0, ""});
    }
    frmMain::ColourText();
    EXPECT_EQ(isTooLong, before == frmMain::TextEditor().TextRTF());
  }
}

}  // namespace

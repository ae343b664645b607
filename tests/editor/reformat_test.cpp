#include "editor/reformat.h"

#include <algorithm>

#include "editor/colouring.h"
#include "platform/text.h"
#include "tests/editor/editor_test.h"

namespace {

class ReformatTest : public EditorTest {};

struct ReformatRow {
  std::string text;
  std::string expected;
};

const ReformatRow kRows[] = {
    {"", ""},
    {"g01x20z-5", "G01 X20 Z-5"},
    {"G 0 1 X 2 0", "G01 X20"},
    {"  X -5  ", "X-5"},
    {"1 2", "12"},
    {"8250 G00 Z150", "8250 G00 Z150"},
    {"G01\tX\t5 [a\tb", "G01 X5 [a\tb"},
    {"G01 X20 [Face the  end  ", "G01 X20 [Face the  end"},
    {"x10[A [b", "X10 [A [b"},
    {"\t[billet x20 z40", "[billet x20 z40"},
    {"f0,3;y(+5)", "F0,3; Y(+5)"},
    {"G00 X1\r\n\r\n \t \r\nX2", "G00 X1\r\nX2"},
    {"G00\r\n\r\n\r\n", "G00\r\n"},
    {"\r\n \r\n\t", ""},
    // Only the pair ends a line, and blanks that keep its halves apart hold it off.
    {"x1\ry2\nz3", "X1\r Y2\n Z3"},
    {"x1\r \t\nx2", "X1\r \n X2"},
    // Bytes beyond ASCII have no case here, whatever the user's language.
    {"x1\xE4\xFD\xB5", "X1\xE4\xFD\xB5"},
    {std::string("x1\0z2", 5), std::string("X1\0 Z2", 6)},
};

TEST_F(ReformatTest, BringsALineIntoItsCanonicalLayout) {
  for (const ReformatRow& row : kRows) {
    EXPECT_EQ(row.expected, Reformatted(row.text)) << row.text;
    EXPECT_EQ(row.expected, Reformatted(row.expected)) << "a second time: " << row.text;
  }
}

std::string WithoutLayout(std::string_view text) {
  std::string kept;
  for (const char c : text) {
    if (std::string_view(" \t\r\n").find(c) == std::string_view::npos) kept += ToUpper(c);
  }
  return kept;
}

TEST_F(ReformatTest, GeneratedProgramsLoseNothingAndStayAsTheyBecome) {
  ProgramGenerator programs(7);
  for (int i = 0; i < GeneratedPrograms(); ++i) {
    const std::string text = programs.Next();
    const std::string once = Reformatted(text);
    ASSERT_EQ(once, Reformatted(once)) << text;
    ASSERT_EQ(WithoutLayout(text), WithoutLayout(once)) << text;
  }
}

TEST_F(ReformatTest, TheMenuKeepsTheModifiedMarkAndMarksTheRowsStale) {
  for (const bool modified : {false, true}) {
    Open("g00 x1");
    frmMain::EnableCommands("Save", modified);
    frmMain::mnuToolsReformatText_Click();
    EXPECT_EQ("G00 X1", frmMain::TextEditor().Text());
    EXPECT_EQ(modified, IsOpen("Save"));
    EXPECT_EQ(modified, frmMain::mnuFileSave.Enabled.Get());
    frmMain::TextChanged = kFalse;
    frmMain::mnuToolsReformatText_Click();
    EXPECT_EQ(kTrue, frmMain::TextChanged) << "even when no character moved";
  }
}

TEST_F(ReformatTest, ATextOfBlankLinesClosesTheCommands) {
  Open(" \r\n \r\n");
  frmMain::mnuToolsReformatText_Click();
  EXPECT_EQ("", frmMain::TextEditor().Text());
  for (const auto* command : {"Print", "Step", "Start"}) EXPECT_FALSE(IsOpen(command)) << command;
}

TEST_F(ReformatTest, ATextTooLongToColourStaysAsItWas) {
  const std::string text = "g0" + std::string(frmMain::kMaxColouredLength - 2, '1') + '[';
  Open(text);
  frmMain::EnableCommands("Save", true);
  Fakes::ExpectMessage("The text has 32768 characters; at most 32766 can be coloured.", 0);
  frmMain::mnuToolsReformatText_Click();
  EXPECT_EQ(text, frmMain::TextEditor().Text());
  EXPECT_TRUE(IsOpen("Save"));
}

}  // namespace

#include "editor/syntax_check.h"

#include "platform/code_page.h"
#include "platform/numbers.h"
#include "tests/editor/editor_test.h"

namespace {

class SyntaxCheckTest : public EditorTest {
 protected:
  static void ExpectFault(const std::string& message) {
    Fakes::ExpectMessage(message, Desktop::kInformation, "Syntax Error!");
  }
};

const std::string kBadNumber = "This is not a valid numeric value";
const std::string kMissing = "Missing Character at this position.";

std::string Invalid(const std::string& selected) {
  return "An invalid character '" + selected + "' was found.";
}
std::string BadG(const std::string& selected) {
  return selected + " is not a valid G Code";
}

struct FaultRow {
  std::string typed;
  // The text behind Start, with the selection between bars.
  std::string shown;
  std::string message;
};

const FaultRow kFaults[] = {
    // Slips of people who come from other controls.
    {"G01 X20 F0,3", "G01 X20 F0|,|3", Invalid(",")},
    {"8250 G00 Z150", "| |8250 G00 Z150", kMissing},
    {"G21\r\nG48 X5", "G21\r\n|G48| X5", BadG("G48")},
    {"%\r\nG00 X5", "|%|\r\nG00 X5", Invalid("%")},
    {"O8007\r\nG21", "|O|8007\r\nG21", Invalid("O")},
    {"N10 G00 X5;", "N10 G00 X5|;|", Invalid(";")},
    {"G21\r\n( )", "G21\r\n|(|)", Invalid("(")},
    {"(face it)", "|(| F A C E I T)", Invalid("(")},
    // Each kind, and which of two comes first.
    {"g01 x20 y5 a3", "G01 X20 |Y|5 A3", Invalid("Y")},
    {"G01 X20\r\nG20", "G01 X20\r\n|G20|", BadG("G20")},
    {"G-1", "|G-1|", BadG("G-1")},
    {"G32768", "|G32768|", BadG("G32768")},
    {"G98.6", "|G98.6|", BadG("G98.6")},
    {"G", "G||", kBadNumber},
    {"X5 Z", "X5 Z||", kBadNumber},
    {"X1-2", "X|1-2|", kBadNumber},
    {"X-5-", "X|-5-|", kBadNumber},
    {"X1.2.3", "X|1.2.3|", kBadNumber},
    {"X.", "X|.|", kBadNumber},
    {"N10\r\n12 X5", "N10\r\n| |12 X5", kMissing},
    {"-5", "| |-5", kMissing},
    {"-5,", "-5|,|", Invalid(",")},
    {"X1\tZ2 [a\r\nZ\xE4 [b", "X1 Z2 [a\r\nZ|\xE4| [b", Invalid("\xC3\xA4")},
    {"X1\rZ2", "X1|\r| Z2", Invalid("\r")},
};

TEST_F(SyntaxCheckTest, StartShowsTheFirstFaultAndRunsNothing) {
  for (const FaultRow& row : kFaults) {
    SCOPED_TRACE(row.typed);
    RichText& editor = Open(row.typed);
    frmMain::EnableCommands("Pause,Stop", false);
    ExpectFault(row.message);
    frmMain::mnuRunStart_Click();
    const std::size_t start = row.shown.find('|');
    const std::size_t length = row.shown.find('|', start + 1) - start - 1;
    EXPECT_EQ(row.shown.substr(0, start) + row.shown.substr(start + 1, length) +
                  row.shown.substr(start + length + 2),
              editor.Text());
    EXPECT_EQ(start, editor.SelStart());
    EXPECT_EQ(length, editor.SelLength());
    EXPECT_EQ(row.message == kMissing, IsOpen("Save")) << "only an inserted blank is a change";
    EXPECT_TRUE(IsOpen("Start"));
    EXPECT_FALSE(IsOpen("Stop"));
    EXPECT_FALSE(editor.Locked);
  }
}

TEST_F(SyntaxCheckTest, WhatHasTheShapeOfWordsGoesOnToTheRun) {
  for (const char* text :
       {"", " \r\n\t", "G00 X20 X30 Z5 Z6", "M06 T0101", "M99999", "X007 Z-40 I+5 K.5 P5. Q5-",
        "G0 G1.0 G02 G3 G4 G21 G28 G70 G71 G72 G73 G90 G94 G97 G98", "G1.5 G2.5 G0.4 G0-",
        "N5 N5 N1", "[no (check) here; %", "g01 x5[Y is free"}) {
    Open(text);
    Fakes::ExpectMessage("Billet Size Not Found", Desktop::kCritical);
    frmMain::mnuRunStart_Click();
  }
}

TEST_F(SyntaxCheckTest, AFaultComesIntoView) {
  RichText& editor = Open("g00 x1 y2");
  editor.Visible = false;
  frmMain::mnuViewTextEditor.Checked = false;
  ExpectFault(Invalid("Y"));
  frmMain::mnuRunStart_Click();
  EXPECT_TRUE(editor.Visible);
  EXPECT_EQ(7u, editor.SelStart());
  EXPECT_EQ("Y", editor.SelText());
}

TEST_F(SyntaxCheckTest, ATextTooLongToReformatIsCheckedAsItStands) {
  std::string text;
  for (int line = 0; line < 5'000; ++line) text += "  g01  x5\r\n";
  RichText& editor = Open(text + "   g01  g48");
  editor.Visible = true;  // else showing it would try to colour it once more
  Fakes::ExpectMessage("The text has 40007 characters; at most 32766 can be coloured.", 0);
  ExpectFault(BadG("g48"));
  frmMain::mnuRunStart_Click();
  EXPECT_EQ(text.size() + 8, editor.SelStart());
  EXPECT_EQ("g48", editor.SelText());
}

void ExpectSelectionToHoldTheFault(const RichText& editor, const std::string& message) {
  const std::string selected = editor.SelText();
  const std::size_t start = editor.SelStart();
  const std::string& text = editor.Text();
  ASSERT_LE(start + editor.SelLength(), text.size());
  if (message == kMissing) {
    ASSERT_EQ(" ", selected);
    ASSERT_NE(std::string_view::npos, std::string_view("0123456789.-+").find(text[start + 1]));
  } else if (message == kBadNumber) {
    ASSERT_FALSE(IsNumeric(selected)) << selected;
    ASSERT_TRUE(text[start - 1] >= 'A' && text[start - 1] <= 'Z') << text;
  } else if (selected.size() > 1) {
    ASSERT_EQ(BadG(selected), message);
    ASSERT_EQ('G', selected[0]);
  } else {
    ASSERT_EQ(Invalid(CodePageToUtf8(selected)), message);
    ASSERT_EQ(std::string_view::npos,
              std::string_view("FGIKMNPQRSTUWXZ0123456789.-+[ ").find(selected));
  }
}

TEST_F(SyntaxCheckTest, FaultsOfGeneratedProgramsAreSelected) {
  Fakes::CollectMessages();
  ProgramGenerator programs(11);
  std::size_t faults = 0;
  const int count = GeneratedPrograms();
  for (int i = 0; i < count; ++i) {
    const std::string text = programs.Next();
    RichText& editor = Open(text);
    frmMain::ReformatText(editor);
    if (frmMain::CheckSyntax(editor)) {
      ++faults;
      ASSERT_EQ(faults, Fakes::Messages().size());
      ExpectSelectionToHoldTheFault(editor, Fakes::Messages().back().text);
      ASSERT_FALSE(HasFatalFailure()) << text;
    }
  }
  ASSERT_EQ(faults, Fakes::Messages().size());
  EXPECT_GT(faults, static_cast<std::size_t>(count / 4)) << "the programs are too tame";
  EXPECT_LT(faults, static_cast<std::size_t>(count * 3 / 4)) << "the programs are too wild";
}

}  // namespace

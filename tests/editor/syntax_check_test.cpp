#include "editor/syntax_check.h"

#include <clocale>
#include <cstdlib>
#include <random>
#include <vector>

#include "editor/reformat.h"
#include "platform/code_page.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "tests/fakes/machine_test.h"

namespace {

using SyntaxCheckTest = MachineTest;

// All but the layout: what neither command may lose.
std::string Substance(std::string_view text) {
  std::string kept;
  for (const char c : text) {
    if (std::string_view(" \t\r\n").find(c) == std::string_view::npos) kept += ToUpper(c);
  }
  return kept;
}

// Plays generated programs up to the check, and tells what became of them.
std::string Transcript() {
  static const std::vector<std::string> pieces = {
      "\r\n", "\r\n", "\r\n", "\r\n", " ",    "  ",   "\t",    "G00 ", "g01 ",
      "X20",  "x",    "z-5",  " M03", "f0.3", "I-.5", "G21",   "[a ",  "X1.",
      "N10",  "u-2.", "G48",  "F0,3", "X--1", "8250", "G4e4 ", "\r",   "\xE4"};
  const int count = std::getenv("TURNBAY_LONG_TESTS") != nullptr ? 100'000 : 2'000;
  std::mt19937 random(7);
  std::string told;
  for (int i = 0; i < count; ++i) {
    std::string text;
    for (auto n = random() % 12; n > 0; --n) text += pieces[random() % pieces.size()];
    RichText& editor = frmMain::TextEditor();
    editor.SetText(text);
    frmMain::ReformatText(editor);
    const std::string once = editor.Text();
    EXPECT_EQ(Substance(text), Substance(once));
    frmMain::ReformatText(editor);
    EXPECT_EQ(once, editor.Text());
    told += once;
    if (!frmMain::CheckSyntax(editor)) continue;
    const std::string selected = editor.SelText();
    const std::string message = Fakes::world.messages.back();
    told += message + selected;
    const bool namesIt = message.find(CodePageToUtf8(selected)) != std::string::npos;
    EXPECT_TRUE(message.starts_with("This") ? !IsNumeric(selected) : namesIt || selected == " ");
  }
  return told;
}

TEST_F(SyntaxCheckTest, GeneratedProgramsBecomeTheSameInEachLanguage) {
  Fakes::world.collectsMessages = true;
  const std::string expected = Transcript();
  EXPECT_LT(500u, Fakes::world.messages.size()) << "the programs are too tame";
  for (const char* locale : {"de_DE.UTF-8", "tr_TR.UTF-8"}) {
    if (std::setlocale(LC_ALL, locale) == nullptr) continue;
    EXPECT_EQ(expected, Transcript()) << locale;
  }
  std::setlocale(LC_ALL, "C");
}

}  // namespace

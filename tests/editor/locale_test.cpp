#include <clocale>

#include "tests/editor/editor_test.h"

namespace {

// Reformat, check and run of some programs, told as text.
class LocaleTest : public EditorTest, public testing::WithParamInterface<const char*> {
 protected:
  void TearDown() override {
    std::setlocale(LC_ALL, "C");
    EditorTest::TearDown();
  }

  static std::string Transcript() {
    Fakes::CollectMessages();
    ProgramGenerator programs(13);
    std::string told;
    for (int i = 0; i < 500; ++i) {
      RichText& editor = Open(programs.Next());
      frmMain::ReformatText(editor);
      if (frmMain::CheckSyntax(editor)) told += Fakes::Messages().back().text;
      told += '<' + editor.SelText() + '>' + editor.Text();
    }
    Play({"[BILLET X20.5 Z40", "G00 X10.5 Z0", "g01 z-12.5 f0.3 i1.5"});
    for (const auto& slice : Graphics::StockProfile) told += std::to_string(slice.Radius) + ' ';
    return told + frmMain::StatusBar.Panels("FeedRate").Text.Get() + frmMain::TextEditor().Text();
  }
};

TEST_P(LocaleTest, TheUsersLanguageChangesNothing) {
  const std::string expected = Transcript();
  if (std::setlocale(LC_ALL, GetParam()) == nullptr) GTEST_SKIP() << "not installed";
  EXPECT_EQ(expected, Transcript());
}

INSTANTIATE_TEST_SUITE_P(Locales, LocaleTest, testing::Values("C", "de_DE.UTF-8", "tr_TR.UTF-8"));

}  // namespace

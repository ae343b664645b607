#include "tests/platform/rich_text_contract.h"

#include <algorithm>

namespace {

constexpr Colour kRed = Rgb(255, 0, 0);
constexpr Colour kBlue = Rgb(0, 0, 255);

TEST_P(RichTextContract, EveryByteSurvives) {
  std::string text;
  for (int byte = 0; byte < 256; ++byte) {
    if (byte != '\r' && byte != '\n') text += static_cast<char>(static_cast<unsigned char>(byte));
  }
  text += "\r\nX1\r\n\r\n";
  control.SetText(text);
  EXPECT_EQ(text, control.Text());
  Select(control, 128, 16);
  EXPECT_EQ(text.substr(128, 16), control.SelText());
  control.SetSelText(control.SelText());
  EXPECT_EQ(text, control.Text());
  EXPECT_EQ(text, control.TextRTF().text);
}

TEST_P(RichTextContract, OffsetsCountBytesAndEndWithTheText) {
  control.SetText("G00\r\nX20 Z5");
  Select(control, 5, 3);
  EXPECT_EQ("X20", control.SelText());
  EXPECT_EQ(5u, control.SelStart());
  EXPECT_EQ(3u, control.SelLength());
  control.SetSelLength(99);
  EXPECT_EQ("X20 Z5", control.SelText());
  control.SetSelStart(2);
  EXPECT_EQ(0u, control.SelLength());
  EXPECT_EQ("", control.SelText());
  Select(control, 99, 99);
  EXPECT_EQ(11u, control.SelStart());
  EXPECT_EQ(0u, control.SelLength());
}

TEST_P(RichTextContract, NewSelectionTextLeavesTheCaretBehindIt) {
  control.SetText("G00 X20");
  Select(control, 4, 3);
  control.SetSelText("Z5\r\nZ6");
  EXPECT_EQ("G00 Z5\r\nZ6", control.Text());
  EXPECT_EQ(10u, control.SelStart());
  EXPECT_EQ(0u, control.SelLength());
  Select(control, 0, 4);
  control.SetSelText("");
  EXPECT_EQ("Z5\r\nZ6", control.Text());
  EXPECT_EQ(0u, control.SelStart());
}

TEST_P(RichTextContract, FormatsReachTheSelectionAlone) {
  control.SetText("G01 X20");
  Select(control, 0, 3);
  control.SetSelColor(kRed);
  Select(control, 2, 3);
  control.SetSelBold(true);
  control.SetSelFontName("Courier New");
  control.SetSelFontSize(12);
  const TextFormat red{kRed, false, "", 0};
  const TextFormat bold{0, true, "Courier New", 12};
  const TextFormat both{kRed, true, "Courier New", 12};
  const std::vector<FormatRun> expected = {{0, red}, {2, both}, {3, bold}, {5, {}}};
  EXPECT_EQ(expected, control.TextRTF().runs);
  Select(control, 2, 4);
  EXPECT_EQ(kRed, control.SelColor());
  EXPECT_TRUE(control.SelBold());
  EXPECT_EQ("Courier New", control.SelFontName());
  EXPECT_EQ(12, control.SelFontSize());
  Select(control, 0, 7);
  control.SetSelColor(0);
  control.SetSelBold(false);
  control.SetSelFontName("");
  control.SetSelFontSize(0);
  EXPECT_EQ(1u, control.TextRTF().runs.size()) << "equal neighbours are one run";
}

TEST_P(RichTextContract, TextTakesTheFormatAtTheCaret) {
  control.SetText("GX");
  Select(control, 0, 1);
  control.SetSelColor(kRed);
  control.SetSelStart(1);
  control.SetSelText("0");
  control.SetSelColor(kBlue);
  control.SetSelText("1");
  control.SetSelColor(kBlue);
  control.SetSelStart(4);
  control.SetSelText("2");
  const TextFormat red{kRed, false, "", 0};
  const TextFormat blue{kBlue, false, "", 0};
  EXPECT_EQ("G01X2", control.Text());
  EXPECT_EQ((std::vector<TextFormat>{red, red, blue, {}, {}}), FormatOfEachByte(control.TextRTF()))
      << "a colour picked at the caret is gone when the caret moves";
  Select(control, 1, 3);
  control.SetSelText("7");
  EXPECT_EQ((std::vector<TextFormat>{red, red, {}}), FormatOfEachByte(control.TextRTF()));
}

TEST_P(RichTextContract, AnEmptyControlKeepsTheFontForItsFirstText) {
  control.SetSelFontSize(14);
  control.SetSelBold(true);
  control.SetSelColor(kRed);
  control.SetSelText("G");
  const TextFormat typed{kRed, true, "", 14};
  EXPECT_EQ(std::vector<TextFormat>{typed}, FormatOfEachByte(control.TextRTF()));
  control.SetText("");
  control.SetText("X1");
  const TextFormat assigned{0, true, "", 14};
  EXPECT_EQ((std::vector<TextFormat>{assigned, assigned}), FormatOfEachByte(control.TextRTF()))
      << "assigned text is black";
}

TEST_P(RichTextContract, FormattedTextMovesInOneStep) {
  control.SetText("G01 X2\r\n[end");
  Select(control, 8, 4);
  control.SetSelColor(kBlue);
  const FormattedText formatted = control.TextRTF();
  const auto other = GetParam().make();
  other->SetText("[longer than the new text");
  other->SetSelStart(20);
  int changes = 0;
  other->WatchChange([&] { ++changes; });
  other->SetTextRTF(formatted);
  EXPECT_EQ(formatted, other->TextRTF());
  EXPECT_EQ(1, changes);
  EXPECT_EQ(0u, other->SelStart());
  other->SetTextRTF({});
  EXPECT_EQ("", other->Text());
}

TEST_P(RichTextContract, TheWatcherHearsOfEachAssignmentOnce) {
  std::vector<std::string> heard;
  control.WatchChange([&] { heard.push_back(control.Text()); });
  control.SetText("G01");
  control.SetText("G01");
  Select(control, 0, 3);
  control.SetSelText("G01");
  control.SetTextRTF(control.TextRTF());
  EXPECT_EQ(4, std::count(heard.begin(), heard.end(), "G01"));
  Select(control, 0, 3);
  control.SetSelColor(kRed);
  control.SetSelBold(true);
  control.SetSelFontSize(9);
  EXPECT_EQ(4u, heard.size()) << "a format is no change of the text";
  control.SetText("");
  EXPECT_EQ("", heard.back());
  control.WatchChange({});
  control.SetText("X1");
  EXPECT_EQ(5u, heard.size());
}

TEST_P(RichTextContract, ALockedControlObeysTheProgram) {
  control.Locked = true;
  control.SetText("G01");
  Select(control, 0, 1);
  control.SetSelText("M");
  EXPECT_EQ("M01", control.Text());
}

TEST_P(RichTextContract, FindIgnoresTheCaseOfLettersOnly) {
  control.SetText("\xE4\r\n[billet X20");
  EXPECT_EQ(3, control.Find("[BILLET"));
  EXPECT_EQ(-1, control.Find("[BILLETS"));
  EXPECT_EQ(-1, control.Find("\xC4"));
  EXPECT_EQ(-1, control.Find("{BILLET"));
}

}  // namespace

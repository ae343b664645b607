#include "tests/platform/rich_text_contract.h"

namespace {

constexpr Colour kRed = Rgb(255, 0, 0);

TEST_P(RichTextContract, EveryByteSurvives) {
  std::string text = "\r\nX1\r\n\r\n";
  for (int byte = 0; byte < 256; ++byte) text += static_cast<char>(byte);
  control.SetText(text);
  EXPECT_EQ(text, control.Text());
  Select(control, 128, 16);
  control.SetSelText(control.SelText());
  EXPECT_EQ(text, control.TextRTF().text);
  EXPECT_EQ(2, control.Find("x1\r"));
  EXPECT_EQ(-1, control.Find("\xE4\xC5"));
}

TEST_P(RichTextContract, SelectionsCountBytesAndEndWithTheText) {
  control.Locked = true;  // The program may change the text all the same.
  control.SetText("G00\r\nX20 Z5");
  Select(control, 5, 3);
  EXPECT_EQ("X20", control.SelText());
  control.SetSelLength(99);
  EXPECT_EQ("X20 Z5", control.SelText());
  control.SetSelText("Y\r\n");
  EXPECT_EQ("G00\r\nY\r\n", control.Text());
  EXPECT_EQ(8u, control.SelStart());
  Select(control, 99, 99);
  EXPECT_EQ(8u, control.SelStart());
  EXPECT_EQ(0u, control.SelLength());
}

TEST_P(RichTextContract, FormatsReachTheSelectionAlone) {
  control.SetText("G01 X20");
  Select(control, 0, 3);
  control.SetSelColor(kRed);
  Select(control, 2, 3);
  control.SetSelBold(true);
  control.SetSelFontSize(12);
  const TextFormat red{kRed, false, "", 0};
  const TextFormat bold{0, true, "", 12};
  const TextFormat both{kRed, true, "", 12};
  EXPECT_EQ((std::vector<FormatRun>{{0, red}, {2, both}, {3, bold}, {5, {}}}),
            control.TextRTF().runs);
  Select(control, 2, 4);
  EXPECT_EQ(kRed, control.SelColor());
}

TEST_P(RichTextContract, TheWatcherHearsOfEachAssignmentOnce) {
  int heard = 0;
  control.WatchChange([&] { ++heard; });
  control.SetText("G01");
  control.SetText("G01");
  Select(control, 0, 3);
  control.SetSelText("G\r\n01");
  Select(control, 3, 1);
  control.SetSelColor(kRed);
  EXPECT_EQ(3, heard) << "a format is no change of the text";
  const FormattedText formatted = control.TextRTF();
  control.SetTextRTF({});
  control.SetTextRTF(formatted);
  EXPECT_EQ(formatted, control.TextRTF());
  EXPECT_EQ(5, heard);
}

}  // namespace

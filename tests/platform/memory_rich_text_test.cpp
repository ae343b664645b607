#include "platform/memory_rich_text.h"

#include <algorithm>
#include <random>

#include "tests/platform/rich_text_contract.h"

namespace {

INSTANTIATE_TEST_SUITE_P(Memory, RichTextContract,
                         testing::Values(RichTextBody{
                             "memory", [] { return std::make_unique<MemoryRichText>(); }}));

// The plain way: a format for each byte.
struct PlainText {
  std::string text;
  std::vector<TextFormat> formats;
  std::size_t start = 0;
  std::size_t length = 0;
  TextFormat next;

  void Select(std::size_t newStart, std::size_t newLength) {
    start = std::min(newStart, text.size());
    length = std::min(newLength, text.size() - start);
    if (!text.empty()) next = formats[start - (length == 0 && start > 0 ? 1 : 0)];
  }
  void Replace(const std::string& inserted) {
    using Difference = std::vector<TextFormat>::difference_type;
    const auto first = formats.begin() + static_cast<Difference>(start);
    const auto place = formats.erase(first, first + static_cast<Difference>(length));
    formats.insert(place, inserted.size(), next);
    text.replace(start, length, inserted);
    Select(start + inserted.size(), 0);
  }
  void SetColor(Colour color) {
    next.color = color;
    for (std::size_t i = start; i < start + length; ++i) formats[i].color = color;
  }
};

void ExpectSame(const PlainText& plain, const MemoryRichText& control) {
  const FormattedText formatted = control.TextRTF();
  ASSERT_EQ(plain.text, formatted.text);
  ASSERT_EQ(plain.formats, FormatOfEachByte(formatted));
  ASSERT_EQ(plain.next.color, control.SelColor());
  const auto equal = std::adjacent_find(
      formatted.runs.begin(), formatted.runs.end(),
      [](const FormatRun& a, const FormatRun& b) { return a.format == b.format; });
  ASSERT_EQ(formatted.runs.end(), equal) << "two equal runs stand side by side";
}

TEST(MemoryRichTextTest, RunsHoldWhatAFormatForEachByteWouldHold) {
  std::mt19937 random(20'240'611);
  PlainText plain;
  MemoryRichText control;
  for (int step = 0; step < 20'000; ++step) {
    if (step % 2 == 0) {
      const std::size_t start = random() % 30;
      const std::size_t length = random() % 8;
      plain.Select(start, length);
      Select(control, start, length);
    } else if (random() % 2 == 0) {
      const auto color = static_cast<Colour>(random() % 3);
      plain.SetColor(color);
      control.SetSelColor(color);
    } else {
      const std::string inserted(random() % 6, static_cast<char>('a' + step % 26));
      plain.Replace(inserted);
      control.SetSelText(inserted);
    }
    ExpectSame(plain, control);
    ASSERT_FALSE(HasFatalFailure()) << "step " << step;
  }
}

}  // namespace

#include "platform/code_page.h"

#include <gtest/gtest.h>

namespace {

TEST(CodePageTest, AllBytesSurviveTheWayThereAndBack) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_EQ(all, Utf8ToCodePage(CodePageToUtf8(all)));
}

TEST(CodePageTest, KnowsTheCharactersOfTheCodePage) {
  constexpr struct {
    const char* byte;
    const char* utf8;
  } kCases[] = {
      {"\x7F", "\x7F"},         {"\x80", "\xE2\x82\xAC"}, {"\x81", "\xC2\x81"},
      {"\x83", "\xC6\x92"},     {"\x8A", "\xC5\xA0"},     {"\x8E", "\xC5\xBD"},
      {"\x96", "\xE2\x80\x93"}, {"\x99", "\xE2\x84\xA2"}, {"\x9F", "\xC5\xB8"},
      {"\xA0", "\xC2\xA0"},     {"\xB0", "\xC2\xB0"},     {"\xD8", "\xC3\x98"},
      {"\xDF", "\xC3\x9F"},     {"\xFC", "\xC3\xBC"},     {"\xFF", "\xC3\xBF"},
  };
  for (const auto& [byte, utf8] : kCases) {
    EXPECT_EQ(utf8, CodePageToUtf8(byte));
    EXPECT_EQ(byte, Utf8ToCodePage(utf8));
  }
}

TEST(CodePageTest, RefusesWhatIsNoUtf8OrNotInTheCodePage) {
  constexpr const char* kCases[] = {
      "\x80",              // continuation without a lead
      "\xC3",              // cut off
      "\xE2\x82",          // cut off
      "\xC3(",             // no continuation
      "\xC1\x81",          // longer than needed
      "\xE0\x83\xBC",      // longer than needed
      "\xED\xA0\x80",      // half a pair
      "\xF0\x9F\x94\xA7",  // beyond three bytes
      "\xC2\x80",          // the code page has the euro sign in its place
      "\xC4\x80",          // A with macron
      "\xE6\x97\xA5",      // Japanese
      "good, then \xFF",   // no lead at all
  };
  for (const char* utf8 : kCases) EXPECT_FALSE(Utf8ToCodePage(utf8)) << utf8;
}

TEST(CodePageTest, TakesAFileForUtf8OnlyWhenItMustBe) {
  const struct {
    std::string file;
    std::string text;
    bool isUtf8;
  } cases[] = {
      {"", "", false},
      {"G00", "G00", false},
      {"\xC3\xBC", "\xFC", true},
      {"\xFC", "\xFC", false},
      {"\xC3\xBC\xFC", "\xC3\xBC\xFC", false},
      {"\xEF\xBB\xBF", "", false},
      {"\xEF\xBB\xBFG00", "G00", false},
      {"\xEF\xBB\xBF\xC3\xBC", "\xFC", true},
      {"\xEF\xBB\xBF\xFC", "\xFC", false},
      // Only at the front is it a mark, and one is enough.
      {"G\xEF\xBB\xBF", "G\xEF\xBB\xBF", false},
      {std::string("\0\xC3\xBC", 3), std::string("\0\xFC", 2), true},
  };
  for (const auto& [file, text, isUtf8] : cases) {
    const DecodedText decoded = DecodeProgram(file);
    EXPECT_EQ(text, decoded.text);
    EXPECT_EQ(isUtf8, decoded.isUtf8) << file;
  }
}

}  // namespace

#include "platform/numbers.h"

#include <clocale>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <string>

namespace {

TEST(Numbers, ShapeDecidesWhatIsNumeric) {
  for (const char* text : {"20", "007", "-40", "+5", ".5", "5.", "5-", "5.+", "-.5"}) {
    EXPECT_TRUE(IsNumeric(text)) << text;
    EXPECT_TRUE(ParseNumber(text)) << text;
  }
  for (const char* text : {"", "-", ".", "-.", "1.2.3", "1-2", "-5-", "+5-", "--5", "1e3", "0x10",
                           "inf", "nan", " 5", "5 ", "1,5"}) {
    EXPECT_FALSE(IsNumeric(text)) << text;
    EXPECT_FALSE(ParseNumber(text)) << text;
  }
}

TEST(Numbers, ValuesOfSignedAndLongNumbers) {
  EXPECT_EQ(-5, ParseNumber("5-"));
  EXPECT_EQ(5.5, ParseNumber("+5.5"));
  EXPECT_EQ(0.1, ParseNumber(".1"));
  EXPECT_EQ(1.0, ParseNumber("1." + std::string(100'000, '0')));
  // Too small for a double is 0, too large is no number that could be stored.
  EXPECT_EQ(0.0, ParseNumber("0." + std::string(400, '0') + "1"));
  EXPECT_TRUE(IsNumeric(std::string(400, '9')));
  EXPECT_FALSE(ParseNumber(std::string(400, '9')));
}

TEST(Numbers, TheLocaleHasNoSay) {
  for (const char* locale : {"de_DE.UTF-8", "tr_TR.UTF-8", "C"}) {
    std::setlocale(LC_ALL, locale);
    EXPECT_EQ(20.5, ParseNumber("20.5")) << locale;
    EXPECT_EQ("20.5", NumberText(20.5)) << locale;
  }
}

TEST(Numbers, AHalfGoesToTheEvenNeighbour) {
  const struct {
    double value;
    std::optional<std::int16_t> rounded;
  } cases[] = {{123.5, 124},       {102.5, 102},
               {126.5, 126},       {127.5, 128},
               {-0.5, 0},          {-1.5, -2},
               {0.2, 0},           {32767.4, 32767},
               {32767.5, {}},      {-32768.5, -32768},
               {-32768.6, {}},     {1e300, {}},
               {std::nan(""), {}}, {-std::numeric_limits<double>::infinity(), {}}};
  for (const auto& c : cases) EXPECT_EQ(c.rounded, RoundToInt16(c.value)) << c.value;
  EXPECT_EQ(32767, ClipToInt16(65534));
  EXPECT_EQ(-32768, ClipToInt16(-40000));
  EXPECT_LT(RoundToPixel(-1e30), -100'000);
  EXPECT_EQ(2, RoundToPixel(2.5));
}

}  // namespace

#include "platform/host/pictures.h"

#include <QImage>
#include <gmock/gmock.h>
#include <map>
#include <set>

#include "tests/platform/qt/temporary_folder.h"

namespace {

using PicturesTest = TemporaryFolderTest;

std::string LittleEndian(std::int32_t value, int bytes) {
  std::string text;
  for (; bytes > 0; --bytes, value >>= 8) text += static_cast<char>(value & 0xFF);
  return text;
}

// A picture file of two by two pixels, or with another header before them. Rows from the bottom,
// blue first: red, green, then yellow, the key colour.
std::string Bmp(std::int32_t width = 2, std::int32_t height = 2, std::int32_t bits = 24) {
  return "BM" + LittleEndian(70, 4) + LittleEndian(0, 4) + LittleEndian(54, 4) +
         LittleEndian(40, 4) + LittleEndian(width, 4) + LittleEndian(height, 4) +
         LittleEndian(1, 2) + LittleEndian(bits, 2) + std::string(24, '\0') +
         std::string("\0\0\xFF\0\xFF\0\0\0\0\xFF\xFF\xFF\0\xFF\0\0", 16);
}

TEST_F(PicturesTest, ReadsColoursOfBothRowOrders) {
  for (const int height : {2, -2}) {
    std::string reason;
    const auto picture = LoadPicture(Put("tool.bmp", Bmp(2, height)), reason);
    ASSERT_TRUE(picture) << reason;
    const int red = height > 0 ? 1 : 0;
    EXPECT_EQ(Rgb(255, 0, 0), picture->GetPixel(0, red));
    EXPECT_EQ(Rgb(0, 255, 0), picture->GetPixel(1, red));
    EXPECT_EQ(kTransparent, picture->GetPixel(1, 1 - red));
  }
}

// A white and a black pixel, made by hand since Qt writes few depths. Palettes hold black and
// white.
std::string BmpOfDepth(int bits) {
  const int colours = bits <= 8 ? 1 << bits : 0;
  std::string palette(static_cast<std::size_t>(4 * colours), '\0');
  if (colours > 0) palette.replace(4, 3, 3, '\xFF');
  const std::map<int, std::string> rows = {{1, "\x80"},          {4, "\x10"},
                                           {8, "\x01"},          {16, "\xFF\x7F"},
                                           {24, "\xFF\xFF\xFF"}, {32, "\xFF\xFF\xFF"}};
  std::string pixels = rows.at(bits);
  pixels.resize(8);
  return "BM" + LittleEndian(0, 8) + LittleEndian(54 + 4 * colours, 4) + LittleEndian(40, 4) +
         LittleEndian(2, 4) + LittleEndian(1, 4) + LittleEndian(1, 2) + LittleEndian(bits, 2) +
         std::string(24, '\0') + palette + pixels;
}

// Whatever its name says.
TEST_F(PicturesTest, ReadsBitmapsOfEveryDepthAndNoOtherFormat) {
  std::string reason;
  for (const int bits : {1, 4, 8, 16, 24, 32}) {
    const auto picture = LoadPicture(Put("tool.png", BmpOfDepth(bits)), reason);
    ASSERT_TRUE(picture) << bits << reason;
    EXPECT_EQ(Rgb(255, 255, 255), picture->GetPixel(0, 0)) << bits;
    EXPECT_EQ(Rgb(0, 0, 0), picture->GetPixel(1, 0)) << bits;
  }
  // Two bytes a pixel, with six bits of green: the key colour.
  std::string bitmap = BmpOfDepth(16);
  bitmap.replace(10, 1, 1, 66).replace(30, 1, 1, 3);
  bitmap.replace(54, 4,
                 LittleEndian(0xF800, 4) + LittleEndian(0x7E0, 4) + LittleEndian(0x1F, 4) +
                     "\x1F\xF8\x20\x04");
  const auto picture = LoadPicture(Put("tool.bmp", bitmap), reason);
  EXPECT_EQ(kTransparent, picture->GetPixel(0, 0));
  EXPECT_EQ(Rgb(0, 134, 0), picture->GetPixel(1, 0));
  const QImage image(2, 1, QImage::Format_RGB32);
  for (const char* format : {"PNG", "XPM", "PPM", "SVG"}) {
    Put("tool.bmp", "<svg xmlns='http://www.w3.org/2000/svg' width='2' height='1'/>");
    const std::string file = Path("tool.bmp");
    ASSERT_NE(format == std::string("SVG"), image.save(QString::fromStdString(file), format));
    EXPECT_FALSE(LoadPicture(file, reason)) << format;
    EXPECT_THAT(reason, testing::HasSubstr("tool.bmp\" can't be read: it is no bitmap."));
  }
}

// Cut off anywhere, the missing pixels would otherwise be whatever the memory held before.
TEST_F(PicturesTest, RefusesHostileFilesWithAReason) {
  constexpr std::int32_t kHuge = 0x7FFFFFFF;
  std::vector<std::string> files = {
      "no picture", Bmp(kHuge, kHuge), Bmp(4097),    Bmp(2, -4097),      Bmp(0),
      Bmp(2, 0),    Bmp(-2),           Bmp(2, 2, 7), Bmp(2, -kHuge - 1), Bmp(4096, 4096)};
  for (std::size_t size = 0; size < Bmp().size(); ++size) files.push_back(Bmp().substr(0, size));
  std::set<std::string> reasons;
  for (const std::string& bytes : files) {
    std::string reason;
    EXPECT_FALSE(LoadPicture(Put("tool.bmp", bytes), reason)) << &bytes - files.data();
    reasons.insert(reason);
  }
  const std::string start = "The picture \"" + Path("tool.bmp") + "\" can't be read: ";
  EXPECT_THAT(reasons,
              testing::ElementsAre(start + "Unable to read image data.",
                                   start + "it is larger than 4096 pixels.",
                                   start + "it is no bitmap.", start + "its end is missing."));
}

}  // namespace

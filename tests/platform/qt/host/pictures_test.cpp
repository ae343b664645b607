#include "platform/host/pictures.h"

#include <QImage>
#include <gmock/gmock.h>

#include "tests/platform/qt/temporary_folder.h"

namespace {

using PicturesTest = TemporaryFolderTest;

std::string LittleEndian(std::int32_t value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) text += static_cast<char>(value >> (8 * i) & 0xFF);
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

// Whatever its name says.
TEST_F(PicturesTest, ReadsBitmapsOfEveryDepthAndNoOtherFormat) {
  QImage image(2, 1, QImage::Format_RGB32);
  image.setPixel(0, 0, qRgb(255, 255, 255));
  image.setPixel(1, 0, qRgb(0, 0, 0));
  std::string reason;
  for (const auto depth : {QImage::Format_Mono, QImage::Format_Indexed8, QImage::Format_RGB16,
                           QImage::Format_RGB888, QImage::Format_ARGB32}) {
    ASSERT_TRUE(image.convertToFormat(depth).save(QString::fromStdString(Path("tool.png")), "BMP"));
    const auto picture = LoadPicture(Path("tool.png"), reason);
    ASSERT_TRUE(picture) << reason;
    EXPECT_EQ(Rgb(255, 255, 255), picture->GetPixel(0, 0));
    EXPECT_EQ(Rgb(0, 0, 0), picture->GetPixel(1, 0));
  }
  for (const char* format : {"PNG", "XPM", "PPM"}) {
    ASSERT_TRUE(image.save(QString::fromStdString(Path("tool.bmp")), format));
    EXPECT_FALSE(LoadPicture(Path("tool.bmp"), reason)) << format;
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
  for (const std::string& bytes : files) {
    std::string reason;
    EXPECT_FALSE(LoadPicture(Put("tool.bmp", bytes), reason)) << &bytes - files.data();
    EXPECT_THAT(reason, testing::HasSubstr("tool.bmp\" can't be read: "));
  }
}

}  // namespace

#include "platform/pictures.h"

#include <gmock/gmock.h>
#include <vector>

#include "tests/platform/qt/temporary_folder.h"

namespace {

using testing::HasSubstr;

std::string LittleEndian(std::uint32_t value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) text += static_cast<char>(value >> (8 * i) & 0xFF);
  return text;
}

struct Header {
  std::int32_t width = 2;
  std::int32_t height = 2;
  std::uint32_t bits = 24;
  std::uint32_t compression = 0;
  std::uint32_t dataOffset = 54;
  std::uint32_t colours = 0;
};

// A picture file with the given header before the pixels.
std::string Bmp(const Header& header, const std::string& pixels) {
  return "BM" + LittleEndian(static_cast<std::uint32_t>(54 + pixels.size()), 4) +
         LittleEndian(0, 4) + LittleEndian(header.dataOffset, 4) + LittleEndian(40, 4) +
         LittleEndian(static_cast<std::uint32_t>(header.width), 4) +
         LittleEndian(static_cast<std::uint32_t>(header.height), 4) + LittleEndian(1, 2) +
         LittleEndian(header.bits, 2) + LittleEndian(header.compression, 4) + LittleEndian(0, 4) +
         LittleEndian(0, 4) + LittleEndian(0, 4) + LittleEndian(header.colours, 4) +
         LittleEndian(0, 4) + pixels;
}

// Rows of two pixels, blue first, filled up to four bytes: yellow and key colour over red and
// green.
const std::string kPixels("\0\0\xFF\0\xFF\0\0\0\0\xFF\xFF\xFF\0\xFF\0\0", 16);

using PicturesTest = TemporaryFolderTest;

TEST_F(PicturesTest, ReadsColoursOfBothRowOrders) {
  std::string reason;
  for (const int height : {2, -2}) {
    const auto picture = LoadPicture(Put("tool.bmp", Bmp({.height = height}, kPixels)), reason);
    ASSERT_TRUE(picture) << reason;
    ASSERT_EQ((PixelRect{0, 0, 2, 2}), picture->Area());
    const int red = height > 0 ? 1 : 0;
    EXPECT_EQ(Rgb(255, 0, 0), picture->GetPixel(0, red));
    EXPECT_EQ(Rgb(0, 255, 0), picture->GetPixel(1, red));
    EXPECT_EQ(Rgb(255, 255, 0), picture->GetPixel(0, 1 - red));
    EXPECT_EQ(kTransparent, picture->GetPixel(1, 1 - red));
  }
}

TEST_F(PicturesTest, RefusesHostileHeadersWithAReason) {
  constexpr std::int32_t kHuge = 0x7FFFFFFF;
  constexpr const char* kTooLarge = "it is larger than 4096 pixels";
  const struct {
    std::string bytes;
    const char* reason;
  } cases[] = {
      {"", ""},
      {"BM", ""},
      {"no picture at all", ""},
      {Bmp({}, "").substr(0, 20), ""},
      {Bmp({.width = kHuge, .height = kHuge}, kPixels), ""},
      {Bmp({.width = 4097}, kPixels), kTooLarge},
      {Bmp({.height = 4097}, kPixels), kTooLarge},
      {Bmp({.height = -4097}, kPixels), kTooLarge},
      {Bmp({.width = 0}, kPixels), ""},
      {Bmp({.height = 0}, kPixels), ""},
      {Bmp({.width = -2}, kPixels), ""},
      {Bmp({.height = -kHuge - 1}, kPixels), ""},
      {Bmp({.bits = 7}, kPixels), ""},
      {Bmp({.compression = 99}, kPixels), ""},
      {Bmp({.bits = 8, .colours = 0xFFFFFFFF}, kPixels), ""},
  };
  for (const auto& [bytes, why] : cases) {
    std::string reason;
    EXPECT_FALSE(LoadPicture(Put("tool.bmp", bytes), reason)) << &bytes - &cases[0].bytes;
    EXPECT_THAT(reason, HasSubstr("tool.bmp\" can't be read: "));
    EXPECT_THAT(reason, HasSubstr(why));
  }
}

// Otherwise its missing pixels would be whatever the memory held before.
TEST_F(PicturesTest, RefusesAPictureThatIsCutOffAnywhere) {
  const std::string whole = Bmp({}, kPixels);
  for (std::size_t size = 0; size < whole.size(); ++size) {
    std::string reason;
    EXPECT_FALSE(LoadPicture(Put("tool.bmp", whole.substr(0, size)), reason)) << size;
    EXPECT_NE("", reason);
  }
  std::string reason;
  EXPECT_FALSE(LoadPicture(Put("tool.bmp", Bmp({.width = 4096, .height = 4096}, kPixels)), reason));
  EXPECT_THAT(reason, HasSubstr("its end is missing"));
}

TEST_F(PicturesTest, SaysThatThereIsNoFile) {
  std::string reason;
  EXPECT_FALSE(LoadPicture(Path("none.bmp"), reason));
  EXPECT_THAT(reason, HasSubstr("none.bmp\" can't be read: No such file or directory."));
}

}  // namespace

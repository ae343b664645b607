#include "platform/qt/paths.h"

#include <gmock/gmock.h>

#include "platform/files.h"
#include "tests/platform/qt/temporary_folder.h"

namespace {

using testing::HasSubstr;

class PathsTest : public TemporaryFolderTest {
 protected:
  void SetUp() override {
    TemporaryFolderTest::SetUp();
    std::filesystem::create_directories(folder / "Tools/deep");
    Put("Tools/Tool.bmp", "");
    Put("Tools/deep/a.ini", "lower");
    Put("Tools/deep/A.ini", "upper");
  }
  std::string Resolved(const std::string& name) const {
    return ResolvePath(Path(name)).toStdString();
  }
};

TEST_F(PathsTest, FindsPathsWithBackslashesWithoutRegardToCase) {
  constexpr struct {
    const char* asked;
    const char* found;
  } kCases[] = {
      {"\\tools\\TOOL.BMP", "/Tools/Tool.bmp"},
      {"\\Tools/deep\\a.ini", "/Tools/deep/a.ini"},
      {"\\TOOLS\\deep\\A.ini", "/Tools/deep/A.ini"},
      {"\\tools\\DEEP\\..\\tool.bmp", "/Tools/deep/../Tool.bmp"},
      // What isn't there keeps the name that was asked for.
      {"\\tools\\New.ini", "/Tools/New.ini"},
      {"\\other\\New.ini", "/other/New.ini"},
  };
  for (const auto& [asked, found] : kCases) {
    EXPECT_EQ(folder.string() + found, ResolvePath(folder.string() + asked).toStdString());
  }
}

// The user's own "Part.cnc" and "part.cnc" are two files: one is never opened, and so never
// saved over, for the other.
TEST_F(PathsTest, TakesOtherPathsExactly) {
  EXPECT_EQ(Path("Tools/TOOL.BMP"), Resolved("Tools/TOOL.BMP"));
  std::string reason;
  EXPECT_FALSE(ReadFile(Path("Tools/TOOL.BMP"), reason));
  EXPECT_TRUE(ReplaceFile(Path("Tools/deep/a.INI"), "third", reason)) << reason;
  EXPECT_EQ("lower", Bytes("Tools/deep/a.ini"));
}

TEST_F(PathsTest, PrefersAFileWhoseNameHoldsABackslash) {
  const std::string path = Put("a\\b.cnc", "odd");
  EXPECT_EQ(path, Resolved("a\\b.cnc"));
}

TEST_F(PathsTest, ReadsAllBytesOrSaysWhyNot) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  std::string reason;
  EXPECT_EQ(all, ReadFile(Put("all", all), reason));
  EXPECT_EQ("", ReadFile(Put("empty", ""), reason));
  EXPECT_EQ("", reason);
  constexpr struct {
    const char* path;
    const char* reason;
  } kFailures[] = {
      {"/missing.cnc", "\" can't be read: No such file or directory."},
      {"/Tools", "\" can't be read: it is a folder."},
      {"/Tools/Tool.bmp/x", "\" can't be read: Not a directory."},
      // A device without an end, behind a link.
      {"/endless", "/endless\" can't be read: it has more than 67108864 bytes."},
  };
  std::filesystem::create_symlink("/dev/zero", folder / "endless");
  for (const auto& [path, why] : kFailures) {
    EXPECT_FALSE(ReadFile(folder.string() + path, reason)) << path;
    EXPECT_THAT(reason, HasSubstr(why));
  }
}

}  // namespace

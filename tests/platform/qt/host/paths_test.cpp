#include <gmock/gmock.h>
#include <sys/stat.h>

#include "platform/host/files.h"
#include "tests/platform/qt/temporary_folder.h"

namespace {

using PathsTest = TemporaryFolderTest;

// With backslashes, as the program writes them, without regard to case. What the user has named
// keeps its backslashes, and "Part.cnc" and "part.cnc" are two files: one is never opened, and so
// never saved over, for the other.
TEST_F(PathsTest, ABackslashDividesFoldersInPathsOfAssetsAlone) {
  std::filesystem::create_directories(folder / "Tools/deep");
  std::filesystem::create_directories(folder / "m\\y/tools");
  for (const char* name : {"Tools/T.bmp", "Tools/deep/a.ini", "Tools/deep/A.ini", "a\\b.cnc",
                           "m\\y/tools/t.bmp", "Part.cnc"}) {
    Put(name, "");
  }
  constexpr const char* kCases[][2] = {
      {"\\tools\\t.BMP", "/Tools/T.bmp"},
      {"\\TOOLS\\deep\\A.ini", "/Tools/deep/A.ini"},
      {"\\tools\\DEEP\\..\\t.bmp", "/Tools/deep/../T.bmp"},
      // What isn't there keeps the name that was asked for.
      {"\\other\\New.ini", "/other/New.ini"},
      {"/Tools/t.BMP", "/Tools/t.BMP"},
      {"/a\\b.cnc", "/a\\b.cnc"},
      {"/m\\y/tools\\T.bmp", "/m\\y/tools/t.bmp"},
      {"/m\\y\\TOOLS\\", "/m\\y/tools/"},
  };
  for (const auto& [asked, found] : kCases) {
    EXPECT_EQ(folder.string() + found, AssetPath(folder.string() + asked));
  }
  std::string reason;
  EXPECT_TRUE(ReplaceFile(Path("TOOLS\\t.bmp"), "x", reason)) << reason;
  EXPECT_EQ("x", Bytes("TOOLS\\t.bmp"));
  EXPECT_EQ("", Bytes("Tools/T.bmp"));
  for (const char* name : {"tools\\T.bmp", "part.cnc"}) EXPECT_FALSE(ReadFile(Path(name), reason));
}

TEST_F(PathsTest, ReadsAllBytesOrSaysWhyNot) {
  const std::string bytes("\0\xFF\r\n", 4);
  std::string reason;
  EXPECT_EQ(bytes, ReadFile(Put("file", bytes), reason));
  EXPECT_FALSE(ReadFile(Path("gone.cnc"), reason));
  EXPECT_EQ("The file \"" + Path("gone.cnc") + "\" can't be read: No such file or directory.",
            reason);
  EXPECT_FALSE(ReadFile(folder, reason));
  EXPECT_THAT(reason, testing::HasSubstr("\" can't be read: it is a folder."));
  EXPECT_FALSE(ReadFile("/proc/self/mem", reason));
  EXPECT_THAT(reason, testing::HasSubstr("can't be read: Input/output error."));
  std::ofstream(folder / "large").seekp(kMaxFileSize) << 'x';
  EXPECT_FALSE(ReadFile(Path("large"), reason));
  EXPECT_THAT(reason,
              testing::HasSubstr("large\" can't be read: it has more than 67108864 bytes."));
  // A device without an end, behind a link, and a pipe that nobody writes.
  std::filesystem::create_symlink("/dev/zero", Path("endless"));
  mkfifo(Path("pipe").c_str(), 0600);
  for (const char* name : {"endless", "pipe"}) {
    EXPECT_FALSE(ReadFile(Path(name), reason));
    EXPECT_THAT(reason, testing::HasSubstr("\" can't be read: it is no ordinary file."));
  }
}

}  // namespace

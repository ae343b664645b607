#include <gtest/gtest.h>

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

}  // namespace

#include "platform/qt/host/application_folder.h"

#include <filesystem>
#include <string>

#include "tests/platform/qt/temporary_folder.h"

namespace {

namespace fs = std::filesystem;

class ApplicationFolderTest : public TemporaryFolderTest {
 protected:
  void SetUp() override {
    TemporaryFolderTest::SetUp();
    for (const char* name : {"tools", "samples", "sound", "help"}) {
      fs::create_directories(folder / "installed" / name);
    }
    Put("installed/tools/ToolList.ini", "installed");
    Put("installed/tools/tool.bmp", "bitmap");
    Put("installed/help/index.html", "help");
    fs::permissions(folder / "installed/tools/ToolList.ini", fs::perms::owner_read);
  }

  bool Fill(const std::string& users) const {
    return FillApplicationFolder(QString::fromStdString(Path("installed")),
                                 QString::fromStdString(Path(users)));
  }
};

TEST_F(ApplicationFolderTest, BringsWhatIsMissingAndKeepsWhatTheUserHasChanged) {
  ASSERT_TRUE(Fill("home/turnbay"));
  EXPECT_EQ("installed", Bytes("home/turnbay/tools/ToolList.ini"));
  EXPECT_EQ("help", Bytes("home/turnbay/help/index.html"));
  const fs::perms copied = fs::status(folder / "home/turnbay/tools/ToolList.ini").permissions();
  EXPECT_NE(fs::perms::none, copied & fs::perms::owner_write);

  Put("home/turnbay/tools/ToolList.ini", "mine");
  Put("home/turnbay/tools/own.bmp", "my own");
  fs::remove(folder / "home/turnbay/tools/tool.bmp");
  // A link of an installation that is gone, and a folder with sounds of the user's own.
  fs::remove(folder / "home/turnbay/help");
  fs::create_symlink("/nowhere/help", folder / "home/turnbay/help");
  fs::remove(folder / "home/turnbay/sound");
  fs::create_directories(folder / "home/turnbay/sound/own");
  ASSERT_TRUE(Fill("home/turnbay"));
  EXPECT_EQ("mine", Bytes("home/turnbay/tools/ToolList.ini"));
  EXPECT_EQ("my own", Bytes("home/turnbay/tools/own.bmp"));
  EXPECT_EQ("bitmap", Bytes("home/turnbay/tools/tool.bmp"));
  EXPECT_EQ("help", Bytes("home/turnbay/help/index.html"));
  EXPECT_TRUE(fs::exists(folder / "home/turnbay/sound/own"));
}

TEST_F(ApplicationFolderTest, TellsThatItCannotBeFilled) {
  Put("file", "");
  EXPECT_FALSE(Fill("file/turnbay"));
  EXPECT_EQ("", Bytes("file"));
  // Takes no files.
  fs::create_directories(folder / "home");
  fs::create_directory_symlink("/proc/self", folder / "home/tools");
  EXPECT_FALSE(Fill("home"));
}

}  // namespace

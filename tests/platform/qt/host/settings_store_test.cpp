#include "platform/host/settings_store.h"

#include <QSettings>
#include <cstdlib>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/qt/host/settings_trouble.h"
#include "platform/settings_text.h"
#include "tests/platform/qt/temporary_folder.h"

namespace {

class SettingsStoreTest : public TemporaryFolderTest {
 protected:
  void SetUp() override {
    TemporaryFolderTest::SetUp();
    setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
  }
  std::string Store() const { return Bytes("turnbay/CNC.ini"); }
};

const std::string kTexts[] = {"",
                              "16711680",
                              "a, b,c",
                              "\"quoted\"",
                              "gr\xC3\xBCn \xE2\x82\xAC",
                              " blanks ",
                              "back\\slash\\n and / and %20;#=[x]",
                              "two\r\nlines\tand a tab",
                              std::string("\x01"
                                          "face\x02\x03\x04\x05\x06\x08\x0B\x0C\x0E\x19\x1A\x1F"),
                              "@Invalid()",
                              "@ByteArray(x)"};

TEST_F(SettingsStoreTest, GivesBackEveryTextAndReadsWhatQtWroteAsQtReadsIt) {
  int copies = 0;
  for (const std::string& text : kTexts) {
    SaveSetting("CNC", "Debug", "Font", text);
    SaveSetting("CNC", "General", "Font", "another section");
    EXPECT_EQ(text, GetSetting("CNC", "Debug", "Font", "default"));
    // A file of its own each time: the peer remembers what it has read.
    const std::string copy = Path("peer" + std::to_string(++copies) + ".ini");
    std::filesystem::copy_file(Path("turnbay/CNC.ini"), copy);
    QSettings peer(QString::fromStdString(copy), QSettings::IniFormat);
    EXPECT_EQ(text, peer.value("Debug/Font").toString().toStdString());
    EXPECT_EQ("another section", peer.value("General/Font").toString());
    peer.setValue("RecentFilePaths/0", QString::fromStdString(text));
    peer.sync();
    std::filesystem::rename(copy, Path("turnbay/CNC.ini"));
    EXPECT_EQ(text, GetSetting("CNC", "RecentFilePaths", "0", "default"));
  }
  EXPECT_EQ("10", GetSetting("CNC", "Debug", "Size", "10"));
}

TEST_F(SettingsStoreTest, ChangesNothingButTheValueAndWritesOnlyAChange) {
  std::filesystem::create_directory(folder / "turnbay");
  Put("turnbay/CNC.ini",
      "; mine\r\nlone\n[Debug]\r\nFont = Old, Face "
      "\r\nSize=9\nSize=10\n\n[Other]\nx=\\xe9\\x20ac");
  EXPECT_EQ("Old, Face", GetSetting("CNC", "Debug", "Font"));
  EXPECT_EQ("10", GetSetting("CNC", "Debug", "Size")) << "the last one counts";
  EXPECT_EQ("\xC3\xA9\xE2\x82\xAC", GetSetting("CNC", "Other", "x"));
  SaveSetting("CNC", "Debug", "Font", "Mono");
  SaveSetting("CNC", "Debug", "Grid", "1");
  SaveSetting("CNC", "New", "y", "2 3");
  EXPECT_EQ(
      "; mine\r\nlone\n[Debug]\r\nFont "
      "=Mono\r\nSize=9\nSize=10\nGrid=1\n\n[Other]\nx=\\xe9\\x20ac\n\n[New]\ny=\"2 "
      "3\"\n",
      Store());
  const auto written = std::filesystem::last_write_time(folder / "turnbay/CNC.ini");
  const auto inode = [&] {
    struct stat s {};
    stat(Path("turnbay/CNC.ini").c_str(), &s);
    return s.st_ino;
  };
  const auto before = inode();
  SaveSetting("CNC", "New", "y", "2 3");
  EXPECT_EQ(written, std::filesystem::last_write_time(folder / "turnbay/CNC.ini"));
  EXPECT_EQ(before, inode());
}

TEST_F(SettingsStoreTest, HoldsInMemoryWhatCantBeWrittenAndTellsItOnce) {
  std::vector<std::string> told;
  WatchSettingsTrouble([&](const std::string& reason) { told.push_back(reason); });
  Put("turnbay", "in the way");
  SaveSetting("CNC", "Debug", "Font", "Mono");
  SaveSetting("CNC", "Debug", "Size", "12");
  EXPECT_EQ("Mono", GetSetting("CNC", "Debug", "Font"));
  ASSERT_EQ(1U, told.size());
  EXPECT_EQ("The folder \"" + Path("turnbay") + "\" can't be made: Not a directory.", told[0]);
  std::filesystem::remove(folder / "turnbay");
  SaveSetting("CNC", "Debug", "Grid", "1");
  EXPECT_EQ("[Debug]\nFont=Mono\nGrid=1\nSize=12\n", Store()) << "all at once";
}

// In a process of its own: a store that couldn't be read isn't written before the next start.
TEST_F(SettingsStoreTest, NeverWritesOverWhatItCouldntRead) {
  std::filesystem::create_directories(folder / "turnbay/CNC.ini");
  const auto use = [&] {
    int told = 0;
    WatchSettingsTrouble([&](const std::string&) { ++told; });
    const bool isAbsent = GetSetting("CNC", "TextEditor", "Font").empty();
    std::filesystem::remove(folder / "turnbay/CNC.ini");
    Put("turnbay/CNC.ini", "[TextEditor]\nFont=Mine\n");
    SaveSetting("CNC", "TextEditor", "Font", "Default");
    const bool isKept = GetSetting("CNC", "TextEditor", "Font") == "Default";
    _exit(isAbsent && isKept && told == 1 ? 0 : 1);
  };
  EXPECT_EXIT(use(), testing::ExitedWithCode(0), "");
  EXPECT_EQ("[TextEditor]\nFont=Mine\n", Store());
}

TEST_F(SettingsStoreTest, KeepsEveryKeyOfProgramsThatWriteAtOnce) {
  constexpr int kKeys = 40;
  for (const char* section : {"One", "Two"}) {
    if (fork() != 0) continue;
    for (int i = 0; i < kKeys; ++i) SaveSetting("CNC", section, std::to_string(i), "x");
    _exit(0);
  }
  while (wait(nullptr) > 0) {
  }
  for (int i = 0; i < kKeys; ++i) {
    EXPECT_EQ("x", GetSetting("CNC", "One", std::to_string(i)));
    EXPECT_EQ("x", GetSetting("CNC", "Two", std::to_string(i)));
  }
  const std::filesystem::directory_iterator files(folder / "turnbay");
  EXPECT_EQ(1, std::distance(begin(files), end(files))) << "and leaves no other file";
}

}  // namespace

#include "platform/settings_store.h"

#include <cstdlib>
#include <gmock/gmock.h>

#include "tests/platform/qt/temporary_folder.h"

namespace {

class SettingsStoreTest : public TemporaryFolderTest {
 protected:
  void SetUp() override {
    TemporaryFolderTest::SetUp();
    setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
  }
};

TEST_F(SettingsStoreTest, GivesBackEveryTextAsItWasSaved) {
  const std::string texts[] = {
      "",
      "Courier New",
      "16711680",
      "True",
      "a, b,c",
      ", ",
      "\"quoted\" and 'single'",
      "gr\xC3\xBCn \xE2\x82\xAC",
      " blanks at both ends ",
      "back\\slash\\n and / and %20;#=[x]",
      "two\r\nlines\tand a tab",
      "@Invalid()",
      "@ByteArray(x)",
      std::string("a\0b", 3),
  };
  for (const char* section : {"General", "RecentFilePaths"}) {
    int key = 0;
    for (const std::string& text : texts) {
      SaveSetting("CNC", section, std::to_string(key++), text);
    }
    key = 0;
    for (const std::string& text : texts) {
      EXPECT_EQ(text, GetSetting("CNC", section, std::to_string(key++), "default")) << section;
    }
  }
}

TEST_F(SettingsStoreTest, KeepsApplicationsSectionsAndKeysApart) {
  SaveSetting("CNC", "General", "Font", "general");
  SaveSetting("CNC", "Debug", "Font", "debug");
  SaveSetting("Other", "Debug", "Font", "other");
  EXPECT_EQ("general", GetSetting("CNC", "General", "Font"));
  EXPECT_EQ("debug", GetSetting("CNC", "Debug", "Font"));
  EXPECT_EQ("other", GetSetting("Other", "Debug", "Font"));
  EXPECT_EQ("", GetSetting("CNC", "Debug", "Size"));
  EXPECT_EQ("10", GetSetting("CNC", "Debug", "Size", "10"));
  SaveSetting("CNC", "Debug", "Font", "replaced");
  EXPECT_EQ("replaced", GetSetting("CNC", "Debug", "Font"));
}

TEST_F(SettingsStoreTest, IsInTheFileAtOnce) {
  SaveSetting("CNC", "Debug", "Font", "Courier New");
  const std::string file = Bytes("turnbay/CNC.ini");
  EXPECT_THAT(file, testing::HasSubstr("[Debug]"));
  EXPECT_THAT(file, testing::HasSubstr("Font=Courier New"));
}

TEST_F(SettingsStoreTest, RemembersWhatCannotBeWritten) {
  const std::string blocked = Put("file", "where the folder should be");
  setenv("XDG_CONFIG_HOME", blocked.c_str(), 1);
  EXPECT_EQ("none", GetSetting("CNC", "Debug", "Font", "none"));
  SaveSetting("CNC", "Debug", "Font", "Courier New");
  EXPECT_EQ("Courier New", GetSetting("CNC", "Debug", "Font", "none"));
  std::filesystem::remove(blocked);
  SaveSetting("CNC", "Debug", "Font", "Arial");
  EXPECT_EQ("Arial", GetSetting("CNC", "Debug", "Font", "none"));
  EXPECT_THAT(Bytes("file/turnbay/CNC.ini"), testing::HasSubstr("Font=Arial"));
}

}  // namespace

#include "platform/host/settings_store.h"

#include <cstdlib>
#include <gmock/gmock.h>

#include "tests/platform/qt/temporary_folder.h"

namespace {

using SettingsStoreTest = TemporaryFolderTest;

TEST_F(SettingsStoreTest, GivesBackEveryTextAsItWasSaved) {
  setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
  for (const std::string text : {"", "16711680", "a, b,c", "\"quoted\"", "gr\xC3\xBCn \xE2\x82\xAC",
                                 " blanks ", "back\\slash\\n and / and %20;#=[x]",
                                 "two\r\nlines\tand a tab", "@Invalid()", "@ByteArray(x)"}) {
    SaveSetting("CNC", "Debug", "Font", text);
    SaveSetting("CNC", "General", "Font", "another section");
    EXPECT_EQ(text, GetSetting("CNC", "Debug", "Font", "default"));
  }
  EXPECT_THAT(Bytes("turnbay/CNC.ini"), testing::HasSubstr("[Debug]"));
  EXPECT_EQ("10", GetSetting("CNC", "Debug", "Size", "10"));
}

}  // namespace

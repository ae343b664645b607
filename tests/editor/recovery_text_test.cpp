#include "editor/recovery_text.h"

#include <gtest/gtest.h>

namespace {

using namespace frmMain;

TEST(RecoveryTextTest, EveryChangeOfAByteDamagesAFile) {
  for (const RecoveryText& document :
       {RecoveryText{"/a\nb/p\xC3\xA4rt.cnc", true, std::string("\0[\xE4\r\n\n", 6),
                     std::string("\0"
                                 "12\0",
                                 4)},
        RecoveryText{"", false, "G00"}}) {
    const std::string bytes = EncodeRecovery(document);
    EXPECT_EQ(document, DecodeRecovery(bytes));
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      EXPECT_FALSE(DecodeRecovery(bytes.substr(0, i)));
      std::string damaged = bytes;
      damaged[i] = static_cast<char>(damaged[i] ^ 0x20);
      EXPECT_FALSE(DecodeRecovery(damaged)) << i;
    }
    EXPECT_FALSE(DecodeRecovery(bytes + '\n'));
  }
  // A program of tomorrow reads the files of today.
  EXPECT_EQ("Turnbay recovery 1 windows-1252 5a130ff2a024354f\n" + std::string("\0000\0G00", 6),
            EncodeRecovery({"", false, "G00"}));
}

}  // namespace

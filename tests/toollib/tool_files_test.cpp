#include "toollib/tool_files.h"

#include <gmock/gmock.h>

#include "tests/fakes/machine_test.h"

namespace {

using GlobalVariables::ToolFiles;

class ToolFilesTest : public MachineTest {};

// Entries that aren't empty, as "number:name;".
std::string ReadList(const std::string& text) {
  ToolFiles = {};
  Fakes::PutFile("/app/Tools/ToolList.ini", text);
  frmToolSelect::GetToolList();
  std::string entries;
  for (std::size_t n = 0; n < ToolFiles.size(); ++n) {
    if (!ToolFiles.at(n).empty()) entries += std::to_string(n) + ':' + ToolFiles.at(n) + ';';
  }
  return entries;
}

TEST_F(ToolFilesTest, ListTakesWhatItCan) {
  EXPECT_EQ("1:a;2: b .bmp ;3:x;", ReadList("3=x\n\n1=a=b.bmp\n2= b .bmp \r4="));
  EXPECT_THAT(frmToolSelect::cmbTools.List.Get(),
              testing::ElementsAre("Tool 3", "Tool 1", "Tool 2", "Tool 4"));
  EXPECT_EQ("3:c;", ReadList("3=a\n3=b\n3=c"));
  EXPECT_THAT(frmToolSelect::cmbTools.List.Get(), testing::ElementsAre("Tool 3"));
  EXPECT_THAT(frmToolSelect::cmbTools.ItemData, testing::ElementsAre(3));
  EXPECT_EQ("0:h;2:g;5:last;",
            ReadList("a\r\n=b\r\nx=c\r\n21=d\r\n-1=e\r\n 2=g\r\n0=h\r\n5=i\n5=last"));
  EXPECT_EQ(std::string("2:a\0b;", 6), ReadList(std::string("2=a\0b\r\n\0=x\r\n4\0=y\r\n", 18)));
  EXPECT_EQ("2:b;", ReadList(std::string(2'000'000, '7') + "=a\r\n2=b"));
}

TEST_F(ToolFilesTest, AMissingListOffersEveryTool) {
  frmToolSelect::GetToolList();
  const auto& offered = frmToolSelect::cmbTools;
  ASSERT_EQ(21U, offered.List.Get().size());
  for (int n = 0; n <= 20; ++n) {
    EXPECT_EQ("Tool " + std::to_string(n), offered.List.Get().at(static_cast<std::size_t>(n)));
    EXPECT_EQ(n, offered.ItemData.at(static_cast<std::size_t>(n)));
  }
}

TEST_F(ToolFilesTest, ListIsWrittenAsItWasReadOrStaysAsItWas) {
  std::string list;
  for (int n = 0; n <= 20; ++n) list += std::to_string(n) + (n == 3 ? "=\r\n" : "=fr\xE4ser\r\n");
  ReadList(list);
  EXPECT_EQ("fr\xC3\xA4ser", ToolFiles.at(20));
  Fakes::PutFile("/app/Tools/ToolList.ini", "");
  std::string reason;
  EXPECT_TRUE(frmToolSelect::WriteToolList(reason));
  for (const char* name : {"\xE5\x88\x80.bmp", "a\r\n3=b.bmp"}) {
    ToolFiles.at(7) = name;
    EXPECT_FALSE(frmToolSelect::WriteToolList(reason));
    EXPECT_EQ("The name \"" + ToolFiles.at(7) +
                  "\" of Tool 7 has a character that the tool list can't hold. Give the bitmap "
                  "another name.",
              reason);
  }
  EXPECT_EQ(list, Fakes::FileBytes("/app/Tools/ToolList.ini"));
}

TEST_F(ToolFilesTest, SizeIsReadByKey) {
  const std::pair<std::string, int> cases[] = {
      {"toolheight= 30 \nToolWidth=40.5", 30},
      {"TOOLHEIGHT=1\r\nTOOLHEIGHT=2=3", 2},
      {" TOOLHEIGHT=30\r\nTOOLHEIGHT =3", 7},
      {"TOOLHEIGHT=40000\nTOOLHEIGHT=4O", 7},
      {std::string(1'000'000, 'x'), 7},
      {std::string("TOOLHEIGHT=4\0\nTOOLHEIGHT\0=3", 27), 7}};
  for (const auto& [description, expected] : cases) {
    Fakes::PutFile("/app/tools/a.ini", description);
    std::int16_t height = 7;
    std::int16_t width = 8;
    std::string reason;
    EXPECT_TRUE(GlobalVariables::ReadToolSize("/app/tools/a.bmp", height, width, reason));
    EXPECT_EQ(expected, height) << description.substr(0, 60);
  }
}

}  // namespace

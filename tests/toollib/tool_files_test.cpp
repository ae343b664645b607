#include "toollib/tool_files.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

#include "tests/fakes/machine_test.h"
#include "toollib/tool_folder.h"

namespace {

using GlobalVariables::ToolFiles;
using testing::ElementsAre;

constexpr const char* kListPath = "/app/Tools/ToolList.ini";

class ToolFilesTest : public MachineTest {
 protected:
  // Entries that aren't empty, as "number:name".
  static std::vector<std::string> ReadList(const std::string& text) {
    ToolFiles = {};
    Fakes::PutFile(kListPath, text);
    frmToolSelect::GetToolList();
    std::vector<std::string> entries;
    for (std::size_t n = 0; n < ToolFiles.size(); ++n) {
      if (!ToolFiles.at(n).empty()) entries.push_back(std::to_string(n) + ':' + ToolFiles.at(n));
    }
    return entries;
  }

  static const std::vector<std::string>& Items() { return frmToolSelect::cmbTools.List; }

  // "height x width", from 7 and 8.
  static std::string SizeIn(const std::string& description) {
    Fakes::PutFile("/app/tools/a.ini", description);
    std::int16_t height = 7;
    std::int16_t width = 8;
    std::string reason;
    EXPECT_TRUE(GlobalVariables::ReadToolSize("/app/tools/a.bmp", height, width, reason));
    return std::to_string(height) + " x " + std::to_string(width);
  }
};

TEST_F(ToolFilesTest, ListIsWrittenAsItWasRead) {
  std::string list;
  for (int n = 0; n <= 20; ++n) {
    list += std::to_string(n) + "=" + (n % 3 == 0 ? "" : "fr\xE4ser" + std::to_string(n) + ".bmp");
    list += "\r\n";
  }
  EXPECT_EQ(14u, ReadList(list).size());
  EXPECT_EQ("fr\xC3\xA4ser1.bmp", ToolFiles.at(1));
  EXPECT_EQ(21u, Items().size());
  EXPECT_EQ("Tool 20", Items().back());
  std::string reason;
  ASSERT_TRUE(frmToolSelect::WriteToolList(reason));
  EXPECT_EQ(list, Fakes::FileBytes(kListPath));
}

TEST_F(ToolFilesTest, ListTakesWhatItCan) {
  EXPECT_THAT(ReadList("3=c.bmp\r\n\r\n1=a.bmp"), ElementsAre("1:a.bmp", "3:c.bmp"));
  EXPECT_THAT(Items(), ElementsAre("Tool 3", "Tool 1"));
  EXPECT_THAT(ReadList("1=a=b.bmp\n2= b .bmp \r3=x\n4="), ElementsAre("1:a", "2: b .bmp ", "3:x"));
  EXPECT_THAT(Items(), ElementsAre("Tool 1", "Tool 2", "Tool 3", "Tool 4"));
  EXPECT_THAT(ReadList("a.bmp\r\n=b\r\nx=c\r\n21=d\r\n-1=e\r\n99999=f\r\n 2=g\r\n0=h"),
              ElementsAre("0:h"));
  EXPECT_THAT(Items(), ElementsAre("Tool 0"));
  EXPECT_THAT(ReadList("5=first\r\n5=last"), ElementsAre("5:last"));
  EXPECT_THAT(Items(), ElementsAre("Tool 5"));
}

TEST_F(ToolFilesTest, HostileListIsRead) {
  const std::string nul("2=a\0b.bmp\r\n\0=x\r\n4\0=y\r\n", 22);
  EXPECT_THAT(ReadList(nul), ElementsAre(std::string("2:a\0b.bmp", 9)));
  EXPECT_THAT(ReadList("1=" + std::string(2'000'000, 'a') + "\r\n2=b").at(1), "2:b");
  EXPECT_THAT(ReadList(std::string(2'000'000, '7') + "=a\r\n2=b"), ElementsAre("2:b"));
  std::string allBytes = "6=";
  for (int byte = 255; byte >= 0; --byte) allBytes += static_cast<char>(byte);
  EXPECT_EQ(1u, ReadList(allBytes).size());
}

TEST_F(ToolFilesTest, MissingListKeepsTheTableAndOffersAllNumbers) {
  ToolFiles.at(4) = "kept.bmp";
  frmToolSelect::GetToolList();
  EXPECT_EQ("kept.bmp", ToolFiles.at(4));
  ASSERT_EQ(21u, Items().size());
  EXPECT_EQ("Tool 0", Items().front());
}

TEST_F(ToolFilesTest, NumbersThatTheListLeavesOutKeepTheirEntries) {
  ReadList("1=a.bmp\r\n2=b.bmp");
  Fakes::PutFile(kListPath, "2=");
  frmToolSelect::GetToolList();
  EXPECT_EQ("a.bmp", ToolFiles.at(1));
  EXPECT_EQ("", ToolFiles.at(2));
}

TEST_F(ToolFilesTest, ListThatCannotBeWrittenStaysAsItWas) {
  ReadList("1=a.bmp\r\n");
  std::string reason;
  for (const char* name : {"\xE5\x88\x80.bmp", "a\r\n3=b.bmp"}) {
    ToolFiles.at(7) = name;
    EXPECT_FALSE(frmToolSelect::WriteToolList(reason));
    EXPECT_THAT(reason, testing::HasSubstr("of Tool 7 has a character"));
  }
  ToolFiles.at(7) = "c.bmp";
  Fakes::FailWrites("disk full");
  EXPECT_FALSE(frmToolSelect::WriteToolList(reason));
  EXPECT_EQ("disk full", reason);
  EXPECT_EQ("1=a.bmp\r\n", Fakes::FileBytes(kListPath));
}

TEST_F(ToolFilesTest, AnotherToolFolderHasItsOwnList) {
  GlobalVariables::SetToolFolder("/school");
  Fakes::PutFile("/school/ToolList.ini", "1=a.bmp");
  ReadList("1=other.bmp");
  GlobalVariables::SetToolFolder("");
  EXPECT_EQ("a.bmp", ToolFiles.at(1));
}

TEST_F(ToolFilesTest, SizeIsReadByKey) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"TOOLWIDTH=40\r\nTOOLHEIGHT=30\r\n", "30 x 40"},
      {"toolheight= 30 \nToolWidth=40.5", "30 x 40"},
      {"TOOLNAME=x", "7 x 8"},
      {"TOOLWIDTH =40\r\n TOOLHEIGHT=30", "7 x 8"},
      {"TOOLWIDTH=1\r\nTOOLWIDTH=2=3", "7 x 2"},
      {"TOOLWIDTH=wide\r\nTOOLHEIGHT=40000", "7 x 8"},
      {"TOOLWIDTH=\r\nTOOLHEIGHT=4O\r\n", "7 x 8"},
      {"TOOLWIDTH=-5\r\nTOOLHEIGHT=0", "0 x -5"},
      {std::string("TOOLWIDTH=4\0\r\nTOOLHEIGHT\0=3\r\nTOOLHEIGHT=9", 41), "9 x 8"},
      {std::string(1'000'000, 'x'), "7 x 8"},
      {"", "7 x 8"},
  };
  for (const auto& [description, size] : cases) {
    EXPECT_EQ(size, SizeIn(description)) << description.substr(0, 60);
  }
}

TEST_F(ToolFilesTest, DescriptionHoldsTheKeysOfTheFile) {
  Fakes::PutFile("/app/tools/a.ini", "toolname= Fr\xE4ser \r\nCUTTINGPOINT=\r\nTOOLWIDTH=wide");
  std::string reason;
  const auto description = GlobalVariables::ReadToolDescription("/app/tools/a.bmp", reason);
  ASSERT_TRUE(description);
  EXPECT_EQ("Fr\xC3\xA4ser", description->Name);
  EXPECT_EQ("wide", description->Width);
  EXPECT_EQ(std::nullopt, description->Height);
  EXPECT_EQ("", description->CuttingPoint);
  EXPECT_FALSE(GlobalVariables::ReadToolDescription("/app/tools/b.bmp", reason));
  EXPECT_EQ("no file /app/tools/b.ini", reason);
}

TEST_F(ToolFilesTest, NamesWithAFolderAreNoBitmapNames) {
  for (const char* name : {"a.bmp", "a b.BMP", "..bmp", "fr\xC3\xA4ser.bmp"}) {
    EXPECT_TRUE(GlobalVariables::IsBareBitmapName(name)) << name;
  }
  for (const char* name :
       {"", "a", "bmp", "..", "../a.bmp", "..\\a.bmp", "/a.bmp", "x/..", "a.jpeg", "a\n.bmp"}) {
    EXPECT_FALSE(GlobalVariables::IsBareBitmapName(name)) << name;
  }
}

}  // namespace

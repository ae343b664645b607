#include "editor/documents.h"

#include "editor/recent_files.h"
#include "mainwindow/view_toggles.h"
#include "platform/host/settings_store.h"
#include "tests/fakes/machine_test.h"

namespace {

using namespace frmMain;
using namespace Desktop;

class DocumentsTest : public MachineTest {
 protected:
  static void Type(const std::string& text) {
    TextEditor().SetText(text);
    EnableCommands("Save,Print,Start,Step", !text.empty());
  }
  static void Open(const std::string& path, const std::string& bytes) {
    Fakes::PutFile(path, bytes);
    Fakes::ExpectOpenDialog(path);
    mnuFileOpen_Click();
  }
  static void CloseBox() {
    std::int16_t cancel = kFalse;
    Form_QueryUnload(cancel, kClosedByUser);
    EXPECT_EQ(Fakes::ProgramEnded(), cancel == kFalse);
  }
  // "part.cnc*: G01, /part.cnc /other.cnc": name, star when modified, text, recent files.
  static std::string State() {
    std::string state = StatusBar.Panels("FileName").Text;
    state += (mnuFileSave.Enabled ? "*: " : ": ") + TextEditor().Text() + ',';
    for (std::int16_t i = 0; i < 5; ++i) {
      if (!RecentFilePath(i).empty()) state += ' ' + RecentFilePath(i);
    }
    return state;
  }
};

TEST_F(DocumentsTest, AsksBeforeChangesAreDropped) {
  const std::string other = "other.cnc: G28, /other.cnc /part.cnc";
  const std::pair<void (*)(), std::string> droppings[] = {
      {mnuFileNew_Click, "Untitled: , /part.cnc /other.cnc"},
      {mnuFileOpen_Click, other + " /other.cnc"},
      {[] { mnuFileRecentFiles_Click(1); }, other},
      {mnuFileExit_Click, "ended"},
      {CloseBox, "ended"}};
  for (const auto& [start, done] : droppings) {
    for (const int answer : {kCancel, kNo, kYes}) {
      TearDown();
      SetUp();
      Open("/other.cnc", "G28");
      Open("/part.cnc", "G00");
      Type("G01");
      Fakes::ExpectMessage(
          {"Save changes to part.cnc?", kYesNoCancel + kQuestion, "Save Changes?", answer});
      const bool cancels = answer == kCancel;
      if (!cancels && start == mnuFileOpen_Click) Fakes::ExpectOpenDialog("/other.cnc");
      start();
      EXPECT_EQ(cancels ? "part.cnc*: G01, /part.cnc /other.cnc" : done,
                Fakes::ProgramEnded() ? "ended" : State());
      EXPECT_EQ(answer == kYes ? "G01" : "G00", Fakes::FileBytes("/part.cnc"));
    }
  }
}

TEST_F(DocumentsTest, SaveAsksForANameOnceAndTellsWhyItFails) {
  Type("G01");
  Fakes::ExpectSaveDialog("/b/copy");
  mnuFileSave_Click();
  EXPECT_EQ("copy: G01, /b/copy", State());
  Type("G02");
  mnuFileSave_Click();
  EXPECT_EQ("G02", Fakes::FileBytes("/b/copy"));
  Type("G03");
  Fakes::FailWrites("The disk is full.");
  Fakes::ExpectMessage({"Save changes to copy?", kYesNoCancel + kQuestion, "Save Changes?", kYes});
  Fakes::ExpectMessage({"The disk is full.", kCritical, "Error!"});
  mnuFileNew_Click();
  EXPECT_EQ("copy*: G03, /b/copy", State());
}

TEST_F(DocumentsTest, CancelInAFileDialogChangesNothing) {
  Type("G01");
  const auto asks = [](const char* name) {
    Fakes::ExpectMessage({std::string("Save changes to ") + name + '?', kYesNoCancel + kQuestion,
                          "Save Changes?", kYes});
    Fakes::ExpectSaveDialog("");
  };
  for (const auto leave : {mnuFileNew_Click, mnuFileOpen_Click, CloseBox}) {
    asks("Untitled");
    leave();
    EXPECT_EQ("Untitled*: G01,", State());
  }
  Type("");
  // A file of this very name has none to save to.
  Open("/a/Untitled", "G00");
  Fakes::ExpectOpenDialog("");
  mnuFileOpen_Click();
  Type("G02");
  asks("Untitled");
  mnuFileExit_Click();
  Fakes::ExpectSaveDialog("");
  mnuFileSaveAS_Click();
  EXPECT_EQ("Untitled*: G02, /a/Untitled", State());
  EXPECT_EQ("G00", Fakes::FileBytes("/a/Untitled"));
}

TEST_F(DocumentsTest, AFileThatCannotBeOpenedLeavesTheDocumentAsItIs) {
  SaveSetting("CNC", "RecentFilePaths", "0", "/gone");
  Fakes::ExpectMessage({"no file /gone", kCritical, ""});
  Form_Load();
  EXPECT_EQ("Untitled: , /gone", State());
  Open("/part.cnc", "G00");
  Fakes::ExpectMessage({"no file /gone", kCritical, ""});
  mnuFileRecentFiles_Click(1);
  Fakes::ExpectOpenDialog("/no/more");
  Fakes::ExpectMessage({"no file /no/more", kCritical, "Error!"});
  mnuFileOpen_Click();
  Fakes::ExpectMessage(
      {"The file \"/long\" can't be opened: it has 32767 characters (a line end is "
       "two), and a program can have at most 32766.",
       kCritical, "Error!"});
  Open("/long", std::string(32'767, 'G'));
  EXPECT_EQ("part.cnc: G00, /part.cnc /gone", State());
  EXPECT_EQ("G00", DebugWindow.TextMatrix(0, kTextColumn));
  Open("/long", std::string(32'766, 'G'));
  EXPECT_EQ(32'766U, TextEditor().Text().size());
}

TEST_F(DocumentsTest, AnEmptyFileCanBeStarted) {
  Open("/empty.cnc", "");
  for (const auto open : {+[] {}, +[] { mnuFileRecentFiles_Click(0); }}) {
    open();
    for (const char* key : {"Start", "Print", "Step"}) EXPECT_TRUE(Toolbar.Find(key)->Enabled);
    EXPECT_EQ(0, DebugWindow.Rows());
    mnuFileNew_Click();
  }
}

TEST_F(DocumentsTest, NewKeepsNothingOfTheFormerDocument) {
  Open("/part.cnc", "[\xC3\xA4\nG00");
  mnuViewDebugWindow_Click();
  int cleared = 0;
  picSim.Cls = [&] { ++cleared; };
  mnuFileNew_Click();
  EXPECT_EQ("Untitled: , /part.cnc", State());
  EXPECT_EQ(1, DebugWindow.Rows());
  EXPECT_EQ(1, cleared);
  EXPECT_TRUE(TextEditor().Visible);
  EXPECT_EQ("TextEditor", ActiveControl.Get());
  Type("[\xE4");
  Fakes::ExpectSaveDialog("/new.cnc");
  mnuFileSave_Click();
  EXPECT_EQ("", Fakes::OfferedName());
  EXPECT_EQ("[\xE4", Fakes::FileBytes("/new.cnc"));
}

// The list is shared with a second window, which opens another file of the same name.
TEST_F(DocumentsTest, SaveKnowsItsFileWhateverASecondWindowOpens) {
  Open("/a/part.cnc", "G00");
  for (const char* text : {"G01", "G02"}) {
    Type(text);
    // The second time the file is still listed further down.
    if (!RecentFilePath(1).empty()) SaveSetting("CNC", "RecentFilePaths", "1", "/a/part.cnc");
    SaveSetting("CNC", "RecentFilePaths", "0", "/b/part.cnc");
    mnuFileSave_Click();
    EXPECT_EQ(std::string("part.cnc: ") + text + ", /a/part.cnc /b/part.cnc", State());
    EXPECT_EQ(text, Fakes::FileBytes("/a/part.cnc"));
    EXPECT_EQ("", Fakes::FileBytes("/b/part.cnc"));
  }
  EXPECT_EQ("&2   part.cnc", mnuFileRecentFiles[1].Caption.Get());
  Fakes::ExpectSaveDialog("/c/part.cnc");
  mnuFileSaveAS_Click();
  EXPECT_EQ("/a/part.cnc", Fakes::OfferedName());
}

TEST_F(DocumentsTest, AsksBeforeItOverwritesWhatAnotherProgramHasWritten) {
  constexpr const char* kRemoved = nullptr;
  for (const bool wasSaved : {false, true}) {
    // What the file holds when it is saved; it was read or saved as "[\xC3\xA4".
    for (const char* found : {"[\xC3\xA4", "[\xC3\xB6", "[\xE4", "[x", "", kRemoved}) {
      for (const int answer : {kYes, kNo, kCancel}) {
        for (const auto save : {mnuFileSave_Click, mnuFileNew_Click}) {
          const std::string before = "[\xC3\xA4";
          Open("/part.cnc", wasSaved ? "[\xC3\xBC" : before);
          if (wasSaved) {
            Type("[\xE4");
            mnuFileSave_Click();
          }
          Type("[\xF6");
          Fakes::world.files.clear();
          if (found != kRemoved) Fakes::PutFile("/part.cnc", found);
          if (save == mnuFileNew_Click) {
            Fakes::ExpectMessage(
                {"Save changes to part.cnc?", kYesNoCancel + kQuestion, "Save Changes?", kYes});
          }
          const bool asks =
              found == kRemoved || (found != before && found != std::string("[\xC3\xB6"));
          if (asks) {
            Fakes::ExpectMessage({"\"part.cnc\" has been changed by another program. Overwrite it?",
                                  kYesNo + kQuestion + kDefaultButton2, "Save Changes?", answer});
          }
          save();
          const bool saves = !asks || answer == kYes;
          EXPECT_EQ(saves ? "[\xC3\xB6" : std::string(found ? found : ""),
                    Fakes::FileBytes("/part.cnc"));
          EXPECT_EQ(!saves, mnuFileSave.Enabled.Get());
          EXPECT_EQ(saves && save == mnuFileNew_Click,
                    StatusBar.Panels("FileName").Text.Get() == kUntitled);
          EnableCommands("Save", false);
          Fakes::Verify();
        }
      }
    }
  }
}

TEST_F(DocumentsTest, TheRecentListLastsAndBringsFilesBack) {
  for (const char* name : {"a", "b", "c", "d", "e", "f"}) Open(std::string("/") + name, name);
  mnuFileRecentFiles_Click(2);
  EXPECT_EQ("d: d, /d /f /e /c /b", State());
  EXPECT_EQ("&4   c", mnuFileRecentFiles[3].Caption.Get());
  for (const char* wanted : {"1", "0"}) {
    SaveSetting("CNC", "General", "OpenLastFile", wanted);
    SaveSetting("CNC", "General", "SplashScreen", wanted);
    ResetToProgramStart();
    Form_Load();
    EXPECT_EQ((*wanted == '1' ? "d: d," : "Untitled: ,") + std::string(" /d /f /e /c /b"), State());
    EXPECT_EQ("/app", com.InitDir);
  }
  EXPECT_EQ(2, Fakes::Splashes()) << "at the first start, and where it is wanted";
}

TEST_F(DocumentsTest, SavingKeepsTheBytesOfAFile) {
  const std::string bytes("\0[\xE4\0", 4);
  // File, text, file saved again.
  const std::string cases[][3] = {
      {bytes, bytes, bytes},
      {"G00\nX1\rZ2\r\n\n\r", "G00\r\nX1\r\nZ2\r\n\r\n\r\n", "G00\r\nX1\r\nZ2\r\n\r\n\r\n"},
      {"\xEF\xBB\xBF[\xC3\xA4\xE2\x82\xAC", "[\xE4\x80", "[\xC3\xA4\xE2\x82\xAC"},
      {"\xEF\xBB\xBFG00", "G00", "G00"},
      {"[\xC2\x81\xC2\xA0\xC3\xBF\xC5\x93", "[\x81\xA0\xFF\x9C",
       "[\xC2\x81\xC2\xA0\xC3\xBF\xC5\x93"}};
  for (const auto& [file, text, saved] : cases) {
    Open("/part.cnc", file);
    EXPECT_EQ(text, TextEditor().Text());
    EXPECT_EQ(text.substr(0, text.find('\r')), DebugWindow.TextMatrix(0, kTextColumn));
    mnuFileSave_Click();
    EXPECT_EQ(saved, Fakes::FileBytes("/part.cnc"));
  }
  // No UTF-8: cut off, no lead, longer than need be, of four bytes; characters that the code page
  // lacks.
  for (const std::string text :
       {"[\xE2\x82", "[\xE2\x82G", "[\xE2G\x82", "[\xC3", "[\xC3G", "[\xC3\xE4", "[\x82",
        "[\xBF\xBF", "[\xC1\xA9", "[\xE0\x81\xA9", "[\xF0\xA0\x82\xAC", "[\xC2\x80", "[\xC2\x9F",
        "[\xC4\x80", "[\xE6\x97\xA5"}) {
    Open("/part.cnc", text);
    EXPECT_EQ(text, TextEditor().Text());
    mnuFileSave_Click();
    EXPECT_EQ(text, Fakes::FileBytes("/part.cnc"));
  }
}

}  // namespace

#include "editor/documents.h"

#include <gmock/gmock.h>

#include "editor/colouring.h"
#include "editor/editor_events.h"
#include "editor/recent_files.h"
#include "mainwindow/view_toggles.h"
#include "platform/settings_store.h"
#include "tests/fakes/machine_test.h"

namespace {

using namespace frmMain;
using Desktop::kCancel;
using Desktop::kCritical;
using Desktop::kNo;
using Desktop::kYes;
using testing::ElementsAre;

constexpr int kSaveQuestion = Desktop::kYesNoCancel + Desktop::kQuestion;

class DocumentsTest : public MachineTest {
 protected:
  void Restart() {
    MachineTest::TearDown();
    MachineTest::SetUp();
  }
  static void Type(const std::string& text) {
    TextEditor().SetText(text);
    EnableCommands("Save,Print,Start,Step", !text.empty());
  }
  static void Open(const std::string& path, const std::string& bytes) {
    Fakes::PutFile(path, bytes);
    Fakes::ExpectOpenDialog(path);
    mnuFileOpen_Click();
  }
  static void ExpectSaveQuestion(const std::string& name, int answer) {
    Fakes::ExpectMessage("Save changes to " + name + "?", kSaveQuestion, "Save Changes?", answer);
  }
  // The open commands among those of a document, and the name with a star when it is modified.
  static std::string State() {
    std::string state = StatusBar.Panels("FileName").Text;
    if (Toolbar.Buttons("Save").Enabled) state += '*';
    EXPECT_EQ(Toolbar.Buttons("Save").Enabled.Get(), mnuFileSave.Enabled.Get());
    for (const char* key : {"Print", "Step", "Start", "Pause", "Stop"}) {
      if (Toolbar.Buttons(key).Enabled) state += std::string(" ") + key;
    }
    return state;
  }
  static std::vector<std::string> Keys() {
    std::vector<std::string> keys;
    for (std::int16_t i = 0; i < 5; ++i) keys.push_back(RecentFilePath(i));
    return keys;
  }
  static std::vector<std::string> Menu() {
    std::vector<std::string> captions;
    for (const RecentFileEntry& entry : mnuFileRecentFiles) {
      if (entry.Loaded) captions.push_back(entry.Caption);
    }
    return captions;
  }
};

TEST_F(DocumentsTest, OpenBringsUpTheFileAndItsRows) {
  TextChanged = kTrue;
  Open("/home/a/part.cnc", "[BILLET X20 Z40\r\nG00 X10");
  EXPECT_EQ("CNC Code Files|*.cnc|All Files|*.*", com.Filter);
  EXPECT_EQ(6154, com.Flags);
  EXPECT_EQ("/app", com.InitDir);
  EXPECT_EQ("[BILLET X20 Z40\r\nG00 X10", TextEditor().Text());
  EXPECT_EQ("part.cnc Print Step Start", State());
  ASSERT_EQ(2, DebugWindow.Rows());
  EXPECT_EQ("G00 X10", DebugWindow.TextMatrix(1, kTextColumn));
  EXPECT_EQ(kFalse, TextChanged);
  EXPECT_THAT(Keys(), ElementsAre("/home/a/part.cnc", "", "", "", ""));
  EXPECT_THAT(Menu(), ElementsAre("&1   part.cnc"));
  // An empty list isn't moved.
  EXPECT_THAT(Fakes::SavedSettings(),
              testing::Not(testing::Contains(testing::StartsWith("RecentFilePaths/1"))));
}

TEST_F(DocumentsTest, OpensAnEmptyFile) {
  Open("/empty.cnc", "");
  EXPECT_EQ("empty.cnc Print Step Start", State());
  EXPECT_EQ("", TextEditor().Text());
}

TEST_F(DocumentsTest, CancelledDialogsChangeNothing) {
  Open("/part.cnc", "G00");
  Fakes::ExpectOpenDialog(std::nullopt);
  mnuFileOpen_Click();
  EXPECT_EQ("part.cnc Print Step Start", State());
  Type("G01");
  Fakes::ExpectSaveDialog(std::nullopt);
  mnuFileSaveAS_Click();
  EXPECT_EQ("part.cnc* Print Step Start", State());
  EXPECT_EQ("G01", TextEditor().Text());
  EXPECT_THAT(Menu(), ElementsAre("&1   part.cnc"));
}

TEST_F(DocumentsTest, NewEmptiesTheDocumentAndLeavesTheList) {
  Open("/part.cnc", "G00\r\nG01");
  if (mnuViewTextEditor.Checked) mnuViewTextEditor_Click();
  int cleared = 0;
  picSim.Cls = [&] { ++cleared; };
  mnuFileNew_Click();
  EXPECT_EQ("Untitled", State());
  EXPECT_EQ("", TextEditor().Text());
  EXPECT_EQ(1, DebugWindow.Rows());
  EXPECT_TRUE(mnuViewTextEditor.Checked);
  EXPECT_EQ(1, cleared);
  EXPECT_EQ("TextEditor", ActiveControl.Get());
  EXPECT_EQ("/part.cnc", RecentFilePath(0));
}

// What each of the operations that drop the document does when it goes through.
struct Dropping {
  const char* name;
  void (*start)();
  bool (*isDone)();
};

bool HasOpenedOther() {
  return TextEditor().Text() == "G28" && RecentFilePath(0) == "/other.cnc";
}

const Dropping kDroppings[] = {
    {"New", mnuFileNew_Click, [] { return TextEditor().Text().empty(); }},
    {"Open",
     [] {
       Fakes::ExpectOpenDialog("/other.cnc");
       mnuFileOpen_Click();
     },
     HasOpenedOther},
    {"Recent file", [] { mnuFileRecentFiles_Click(1); }, HasOpenedOther},
    {"Exit", mnuFileExit_Click, Fakes::ProgramEnded},
    {"Close box",
     [] {
       std::int16_t cancel = kFalse;
       Form_QueryUnload(cancel, kClosedByUser);
       EXPECT_EQ(Fakes::ProgramEnded(), cancel == kFalse);
     },
     Fakes::ProgramEnded},
};

TEST_F(DocumentsTest, AsksBeforeChangesAreDropped) {
  enum class Case { kUnchanged, kCancelled, kSaved, kNotSaved, kDropped };
  for (const Dropping& dropping : kDroppings) {
    for (const Case which :
         {Case::kUnchanged, Case::kCancelled, Case::kSaved, Case::kNotSaved, Case::kDropped}) {
      SCOPED_TRACE(testing::Message() << dropping.name << " " << static_cast<int>(which));
      Restart();
      Open("/other.cnc", "G28");
      Open("/part.cnc", "G00");
      if (which != Case::kUnchanged) Type("G01");
      if (which == Case::kCancelled) ExpectSaveQuestion("part.cnc", kCancel);
      if (which == Case::kSaved) ExpectSaveQuestion("part.cnc", kYes);
      if (which == Case::kDropped) ExpectSaveQuestion("part.cnc", kNo);
      if (which == Case::kNotSaved) {
        ExpectSaveQuestion("part.cnc", kYes);
        Fakes::FailWrites("The disk is full.");
        Fakes::ExpectMessage("The disk is full.", kCritical, "Error!");
      }
      const bool stops = which == Case::kCancelled || which == Case::kNotSaved;
      // The dialog isn't reached then.
      if (stops && std::string(dropping.name) == "Open") {
        mnuFileOpen_Click();
      } else {
        dropping.start();
      }
      EXPECT_EQ(!stops, dropping.isDone());
      EXPECT_EQ(which == Case::kSaved ? "G01" : "G00", Fakes::FileBytes("/part.cnc"));
      if (stops) {
        EXPECT_EQ("G01", TextEditor().Text());
        EXPECT_EQ("part.cnc* Print Step Start", State());
        EXPECT_THAT(Menu(), ElementsAre("&1   part.cnc", "&2   other.cnc"));
      }
    }
  }
}

TEST_F(DocumentsTest, YesOnANewDocumentAsksForItsName) {
  // A file of this very name counts as none.
  Open("/Untitled", "G00");
  Type("G01");
  ExpectSaveQuestion("Untitled", kYes);
  Fakes::ExpectSaveDialog(std::nullopt);
  mnuFileNew_Click();
  EXPECT_EQ("Untitled* Print Step Start", State());
  EXPECT_EQ("G01", TextEditor().Text());

  ExpectSaveQuestion("Untitled", kYes);
  Fakes::ExpectSaveDialog("/b/new");
  mnuFileNew_Click();
  EXPECT_EQ("G01", Fakes::FileBytes("/b/new"));
  EXPECT_EQ("Untitled", State());
  EXPECT_THAT(Keys(), ElementsAre("/b/new", "/Untitled", "", "", ""));
}

TEST_F(DocumentsTest, SaveWritesToTheDocumentsFile) {
  Open("/a/part.cnc", "G00");
  Type("G01");
  mnuFileSave_Click();
  EXPECT_EQ("part.cnc Print Step Start", State());
  Type("G02");
  Fakes::ExpectSaveDialog("/b/copy.cnc");
  mnuFileSaveAS_Click();
  EXPECT_EQ("copy.cnc Print Step Start", State());
  Type("G03");
  mnuFileSave_Click();
  EXPECT_EQ("G01", Fakes::FileBytes("/a/part.cnc"));
  EXPECT_EQ("G03", Fakes::FileBytes("/b/copy.cnc"));
  EXPECT_THAT(Keys(), ElementsAre("/b/copy.cnc", "/a/part.cnc", "", "", ""));
}

TEST_F(DocumentsTest, AFailedSaveKeepsTheDocumentModified) {
  Open("/part.cnc", "G00");
  Type("G01");
  Fakes::FailWrites("The disk is full.");
  Fakes::ExpectMessage("The disk is full.", kCritical, "Error!");
  mnuFileSave_Click();
  EXPECT_EQ("part.cnc* Print Step Start", State());
  Fakes::ExpectSaveDialog("/copy.cnc");
  mnuFileSaveAS_Click();
  EXPECT_EQ("part.cnc* Print Step Start", State());
  EXPECT_THAT(Menu(), ElementsAre("&1   part.cnc"));
  EXPECT_EQ("G00", Fakes::FileBytes("/part.cnc"));
}

TEST_F(DocumentsTest, SaveNeverHitsTheFileOfAnotherWindow) {
  Open("/part.cnc", "G00");
  Type("G01");
  Fakes::PutFile("/other.cnc", "G28");
  SaveSetting("CNC", "RecentFilePaths", "0", "/other.cnc");
  Fakes::ExpectMessage(
      "The list of recent files no longer begins with \"part.cnc\"; another Turnbay may have "
      "opened a program. Choose Save As to name the file.",
      kCritical, "Error!");
  mnuFileSave_Click();
  EXPECT_EQ("G28", Fakes::FileBytes("/other.cnc"));
  EXPECT_EQ("part.cnc* Print Step Start", State());
}

TEST_F(DocumentsTest, ShiftsTheRecentList) {
  EXPECT_THAT(Menu(), ElementsAre("Recent Files"));
  EXPECT_FALSE(mnuFileRecentFiles[0].Enabled);
  for (const char* name : {"a", "b", "c", "d", "e", "f"}) Open(std::string("/") + name, name);
  EXPECT_THAT(Keys(), ElementsAre("/f", "/e", "/d", "/c", "/b"));
  EXPECT_THAT(Menu(), ElementsAre("&1   f", "&2   e", "&3   d", "&4   c"));

  mnuFileRecentFiles_Click(2);
  EXPECT_EQ("d Print Step Start", State());
  EXPECT_EQ("d", TextEditor().Text());
  EXPECT_THAT(Keys(), ElementsAre("/d", "/f", "/e", "/c", "/b"));
  mnuFileRecentFiles_Click(0);
  EXPECT_THAT(Keys(), ElementsAre("/d", "/f", "/e", "/c", "/b"));

  Open("/e", "again");
  EXPECT_THAT(Keys(), ElementsAre("/e", "/d", "/f", "/e", "/c"));
  EXPECT_THAT(Menu(), ElementsAre("&1   e", "&2   d", "&3   f", "&4   e"));
}

TEST_F(DocumentsTest, NamesAFileWithoutItsFolder) {
  constexpr struct {
    const char* path;
    const char* name;
  } kPaths[] = {{"part.cnc", "part.cnc"},
                {"/home/a b/part.cnc", "part.cnc"},
                {"C:\\nc\\part.cnc", "part.cnc"},
                {"/mnt\\nc/part", "part"},
                {"/folder/", ""},
                {"", ""}};
  for (const auto& [path, name] : kPaths) EXPECT_EQ(name, GetFileName(path));
}

// A refused file leaves everything as it was, from the dialog as from the list.
TEST_F(DocumentsTest, RefusesFilesThatAreMissingOrTooLong) {
  const std::string start = "The file \"/bad.cnc\" can't be opened: it has ";
  const struct {
    std::string bytes;
    std::string reason;
  } cases[] = {
      {"", "no file /bad.cnc"},
      {std::string(kMaxColouredLength + 1, 'G'),
       start + "32767 characters (a line end is two), and a program can have at most 32766."},
      {std::string(1'000'000, 'X'),
       start + "1000000 characters (a line end is two), and a program can have at most 32766."},
      {std::string(16'384, '\n'),
       start + "32768 characters (a line end is two), and a program can have at most 32766."},
      {std::string(32'766, '\n'),
       start + "65532 characters (a line end is two), and a program can have at most 32766."},
      {std::string(32'767, '\n'), start + "32768 lines, and a program can have at most 32767."},
  };
  for (const auto& [bytes, reason] : cases) {
    Restart();
    Open("/bad.cnc", "G28");
    Open("/part.cnc", "G00\r\nG01");
    Fakes::PutFile("/bad.cnc", bytes);
    if (bytes.empty()) Fakes::RemoveFile("/bad.cnc");

    Fakes::ExpectOpenDialog("/bad.cnc");
    Fakes::ExpectMessage(reason, kCritical, "Error!");
    mnuFileOpen_Click();
    Fakes::ExpectMessage(reason, kCritical);
    mnuFileRecentFiles_Click(1);

    EXPECT_EQ("part.cnc Print Step Start", State());
    EXPECT_EQ("G00\r\nG01", TextEditor().Text());
    EXPECT_EQ(2, DebugWindow.Rows());
    EXPECT_THAT(Keys(), ElementsAre("/part.cnc", "/bad.cnc", "", "", ""));
    EXPECT_THAT(Menu(), ElementsAre("&1   part.cnc", "&2   bad.cnc"));
  }
}

TEST_F(DocumentsTest, OpensTheLongestProgram) {
  const std::string longest(kMaxColouredLength, 'G');
  Open("/long.cnc", longest);
  EXPECT_EQ(longest, TextEditor().Text());
  EXPECT_EQ("long.cnc Print Step Start", State());
}

TEST_F(DocumentsTest, KeepsTheBytesOfAFile) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) {
    if (byte != '\r' && byte != '\n') all += static_cast<char>(byte);
  }
  const std::string mark = "\xEF\xBB\xBF";
  const struct {
    std::string file;
    std::string text;
    std::string saved;
  } cases[] = {
      {all, all, all},
      {std::string("\0\0G00\0", 6), std::string("\0\0G00\0", 6), std::string("\0\0G00\0", 6)},
      {"G00\nX1\rZ2\r\n\n\r", "G00\r\nX1\r\nZ2\r\n\r\n\r\n", "G00\r\nX1\r\nZ2\r\n\r\n\r\n"},
      {"[\xC3\xA4 \xE2\x82\xAC", "[\xE4 \x80", "[\xC3\xA4 \xE2\x82\xAC"},
      {mark + "[\xC3\xA4", "[\xE4", "[\xC3\xA4"},
      {mark + "G00", "G00", "G00"},
      // Valid, but beyond the code page: left as the bytes they are.
      {"[\xE6\x97\xA5", "[\xE6\x97\xA5", "[\xE6\x97\xA5"},
      {"[\xC3\xA4\xFF", "[\xC3\xA4\xFF", "[\xC3\xA4\xFF"},
  };
  for (const auto& [file, text, saved] : cases) {
    Restart();
    Open("/part.cnc", file);
    EXPECT_EQ(text, TextEditor().Text());
    mnuFileSave_Click();
    EXPECT_EQ(saved, Fakes::FileBytes("/part.cnc"));
  }
}

TEST_F(DocumentsTest, RemembersTheFormOfEachDocument) {
  Open("/utf8.cnc", "[\xC3\xA4");
  Fakes::ExpectSaveDialog("/copy.cnc");
  mnuFileSaveAS_Click();
  EXPECT_EQ("[\xC3\xA4", Fakes::FileBytes("/copy.cnc"));
  // One that is refused doesn't count.
  Fakes::PutFile("/bad.cnc", std::string(40'000, '\xE4'));
  Fakes::ExpectOpenDialog("/bad.cnc");
  Fakes::ExpectMessage(
      "The file \"/bad.cnc\" can't be opened: it has 40000 characters (a line end is two), and a "
      "program can have at most 32766.",
      kCritical, "Error!");
  mnuFileOpen_Click();
  Type("[\xE4\xF6");
  mnuFileSave_Click();
  EXPECT_EQ("[\xC3\xA4\xC3\xB6", Fakes::FileBytes("/copy.cnc"));

  mnuFileNew_Click();
  Type("[\xE4");
  Fakes::ExpectSaveDialog("/new.cnc");
  mnuFileSave_Click();
  EXPECT_EQ("[\xE4", Fakes::FileBytes("/new.cnc"));
}

TEST_F(DocumentsTest, StartUpBringsBackTheLastFile) {
  Open("/a.cnc", "G00");
  Open("/b.cnc", "G01");
  const auto start = [] {
    ResetToProgramStart();
    Form_Load();
  };
  start();
  EXPECT_EQ("b.cnc Print Step Start", State());
  EXPECT_EQ("G01", TextEditor().Text());
  EXPECT_THAT(Menu(), ElementsAre("&1   b.cnc", "&2   a.cnc"));

  Fakes::RemoveFile("/b.cnc");
  Fakes::ExpectMessage("no file /b.cnc", kCritical);
  start();
  EXPECT_EQ("Untitled", State());
  EXPECT_THAT(Menu(), ElementsAre("&1   b.cnc", "&2   a.cnc"));

  SaveSetting("CNC", "General", "OpenLastFile", "0");
  start();
  EXPECT_EQ("Untitled", State());
  EXPECT_TRUE(mnuFileRecentFiles[0].Enabled);
}

TEST_F(DocumentsTest, ClosingDuringARunStopsItWithoutAQuestion) {
  const auto close = [] {
    std::int16_t cancel = kFalse;
    Form_QueryUnload(cancel, kClosedByUser);
    EXPECT_EQ(kFalse, cancel);
  };
  const std::vector<std::string> program = {"[BILLET X20 Z40", "G01 X10 Z-5", "G01 X10 Z-20"};
  constexpr int kInPause = 0;
  for (const int yield : {1, 2, 4, 20, kInPause}) {
    Restart();
    Type("G00");
    if (yield == kInPause) {
      Fakes::AtYield(4, mnuRunPause_Click);
      Fakes::AtWait(close);
    } else {
      Fakes::AtYield(yield, close);
    }
    Play(program);
    EXPECT_TRUE(Fakes::ProgramEnded());
    const int yields = Fakes::Yields();
    // A click that was already waiting begins no further run.
    Play(program);
    EXPECT_EQ(yields, Fakes::Yields());
  }
}

}  // namespace

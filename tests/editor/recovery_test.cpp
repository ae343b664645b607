#include "editor/recovery.h"

#include "editor/colouring.h"
#include "editor/documents.h"
#include "editor/recent_files.h"
#include "editor/recovery_offer.h"
#include "editor/recovery_text.h"
#include "tests/fakes/debugger_test.h"

namespace {

using namespace frmMain;
using namespace Desktop;

class RecoveryTest : public DebuggerTest {
 protected:
  static void Open(const std::string& path, const std::string& bytes) {
    Fakes::PutFile(path, bytes);
    OpenProgram(path);
  }
  // As the editor's own events do it.
  static void Type(const std::string& text) { TextEditor().SetText(text); }
  static void FailSave() {
    Fakes::FailWrites("full");
    Fakes::ExpectMessage({"full", kCritical, "Error!"});
    mnuFileSave_Click();
    Fakes::FailWrites("");
  }
  static void Answer(int answer) {
    Fakes::ExpectMessage({"Save changes to " + StatusBar.Panels("FileName").Text.Get() + "?",
                          kYesNoCancel + kQuestion, "Save Changes?", answer});
  }
  // "/part.cnc: G01", of the recovery file or of bytes that might be one.
  static std::string Kept(const std::string& bytes = Fakes::RecoveryFile()) {
    if (bytes.empty()) return "nothing";
    const auto document = DecodeRecovery(bytes);
    return document ? document->path + (document->isUtf8 ? " (UTF-8): " : ": ") + document->text
                    : "damaged";
  }
  static std::string KeptInASecond() {
    RecoveryTimer_Timer();
    return Kept();
  }
  static void Close() {
    std::int16_t cancel = kFalse;
    Form_QueryUnload(cancel, kClosedByUser);
    // The run has still to leave, and time goes on.
    RecoveryTimer_Timer();
  }
  static void ExpectOffer(const std::string& name, int answer) {
    Fakes::ExpectMessage(
        {"Turnbay ended while \"" + name + "\" had changes that were not saved. Open them?",
         kYesNo + kQuestion, "", answer});
  }
};

TEST_F(RecoveryTest, EveryChangeOfAByteDamagesAFile) {
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
}

// The steps of a user, each from where the one before has ended, and what is kept at once and a
// second later.
TEST_F(RecoveryTest, HoldsTheTextWhileItHasChanges) {
  const std::string a = "[\xE4", part = "/part.cnc (UTF-8): ", copy = "/copy.cnc (UTF-8): ";
  const std::string tooLong(kMaxRecoveryText + 1, 'G');
  struct {
    std::function<void()> act;
    std::string atOnce;
    std::string later;
  } const steps[] = {
      {[] {}, "nothing", "nothing"},
      {[] { Type("G00"); }, "nothing", ": G00"},
      {[] { Answer(kCancel), mnuFileNew_Click(); }, ": G00", ": G00"},
      {[] { Answer(kNo), mnuFileNew_Click(); }, "nothing", "nothing"},
      {[] { Open("/part.cnc", "[\xC3\xA4"); }, "nothing", "nothing"},
      {[&] { Type(a); }, "nothing", part + a},
      {[] { Fakes::FailRecovery(true), Type("G02"); }, part + a, part + a},
      {[] { Fakes::FailRecovery(false); }, part + a, part + "G02"},
      // A save brings the text there first: a program that ends in the midst of it loses nothing,
      // and has nothing older to offer.
      {[] { Type("G03"), FailSave(); }, part + "G03", part + "G03"},
      {mnuFileSave_Click, "nothing", "nothing"},
      {[] { Type("G04"); }, "nothing", part + "G04"},
      {[] { Fakes::ExpectSaveDialog("/copy.cnc"), mnuFileSaveAS_Click(); }, "nothing", "nothing"},
      {[] { Type("G05"); }, "nothing", copy + "G05"},
      {[&] { Type(tooLong); }, copy + "G05", copy + "G05"},
      {[] { Type(""); }, copy + "G05", "nothing"},
      {[] { Type("G06"); }, "nothing", copy + "G06"},
      {[] { Answer(kNo), Open("/part.cnc", "G00"); }, "nothing", "nothing"}};
  for (const auto& step : steps) {
    step.act();
    EXPECT_EQ(step.atOnce, Kept()) << &step - steps;
    EXPECT_EQ(step.later, KeptInASecond()) << &step - steps;
    const int writes = Fakes::RecoveryWrites();
    RecoveryTimer_Timer();
    EXPECT_EQ(writes, Fakes::RecoveryWrites()) << "without a change nothing is written";
  }
}

TEST_F(RecoveryTest, HoldsWhatIsTypedOverARow) {
  Show({"G00", "X1", "Z2"});
  OpenEdit(1, "X1");
  EXPECT_EQ("nothing", KeptInASecond());
  txtDebug.Text = "X15";
  EXPECT_EQ(": G00\r\nX15\r\nZ2", KeptInASecond());
  txtDebug_KeyUp(27, 0);
  EXPECT_EQ("nothing", KeptInASecond());
  OpenEdit(2, "Z3");
  PressEnter();
  EXPECT_EQ(": G00\r\nX1\r\nZ3", KeptInASecond());
}

// Nothing is asked then, and what was typed before or in the run would be lost.
TEST_F(RecoveryTest, ClosingInARunLeavesTheTextForTheNextStart) {
  for (const bool typed : {true, false}) {
    for (const bool edits : {true, false}) {
      TearDown();
      SetUp();
      Show({"[BILLET X20 Z40", "G01 X16 Z-20", "G00 Z5"});
      EnableCommands("Save", typed);
      Fakes::AtYield(2, [&] {
        if (edits) OpenEdit(2, "G00 Z6");
        Close();
      });
      mnuRunStart_Click();
      EXPECT_TRUE(Fakes::ProgramEnded());
      const std::string text = ": [BILLET X20 Z40\r\nG01 X16 Z-20\r\n";
      EXPECT_EQ(edits ? text + "G00 Z6" : typed ? text + "G00 Z5" : "nothing", Kept());
    }
  }
}

TEST_F(RecoveryTest, ClosingOtherwiseLeavesNothing) {
  for (const int answer : {kCancel, kNo, kYes}) {
    Open("/part.cnc", "G00");
    Type("G01");
    EXPECT_EQ("/part.cnc: G01", KeptInASecond());
    Answer(answer);
    Close();
    EXPECT_EQ(answer == kCancel ? "/part.cnc: G01" : "nothing", Kept());
    ResetToProgramStart();
    Form_Load();
  }
}

struct Offered {
  std::string path;
  std::string text;
  // 0 where nothing is asked.
  int answer;
};

// "part.cnc*: G01, /part.cnc" as the user finds it, what is kept, and how many files are left.
TEST_F(RecoveryTest, TheNextStartOffersWhatIsLeft) {
  struct {
    std::vector<Offered> files;
    // To the question whether the document that is open is to be saved; 0 for none.
    int saved;
    std::string found;
  } const cases[] = {
      {{}, 0, "part.cnc: G00, /part.cnc; nothing kept, 0 left"},
      {{{"/part.cnc", "G01", kYes}}, 0, "part.cnc*: G01, /part.cnc; /part.cnc: G01 kept, 0 left"},
      {{{"/part.cnc", "G01", kNo}}, 0, "part.cnc: G00, /part.cnc; nothing kept, 0 left"},
      {{{"/part.cnc", "G01", kCancel}}, 0, "part.cnc: G00, /part.cnc; nothing kept, 1 left"},
      {{{"/part.cnc", "G00", 0}}, 0, "part.cnc: G00, /part.cnc; nothing kept, 0 left"},
      {{{"", "G02", kYes}}, 0, "Untitled*: G02, /part.cnc; : G02 kept, 0 left"},
      {{{"/a/gone.cnc", "G03", kYes}},
       0,
       "gone.cnc*: G03, /a/gone.cnc /part.cnc; /a/gone.cnc: G03 kept, 0 left"},
      {{{"/part.cnc", "G01", kYes}, {"", "G02", kYes}},
       kNo,
       "Untitled*: G02, /part.cnc; : G02 kept, 0 left"},
      {{{"/part.cnc", "G01", kYes}, {"", "G02", kYes}},
       kCancel,
       "part.cnc*: G01, /part.cnc; /part.cnc: G01 kept, 1 left"},
      {{{"/part.cnc", "G01", kYes}, {"", "G02", kNo}},
       0,
       "part.cnc*: G01, /part.cnc; /part.cnc: G01 kept, 0 left"}};
  for (const auto& [files, saved, found] : cases) {
    TearDown();
    SetUp();
    Fakes::PutFile("/part.cnc", "G00");
    OpenProgram("/part.cnc");
    Fakes::EndedRecoveryFiles() = {"damaged"};
    for (const auto& [path, text, answer] : files) {
      Fakes::EndedRecoveryFiles().push_back(EncodeRecovery({path, false, text}));
      if (answer != 0) ExpectOffer(NameOfDocument(path), answer);
    }
    if (saved != 0) Answer(saved);
    OfferRecovery();
    std::string state = StatusBar.Panels("FileName").Text.Get() +
                        (Toolbar.Buttons("Save").Enabled ? "*: " : ": ") + TextEditor().Text() +
                        ',';
    for (std::int16_t i = 0; !RecentFilePath(i).empty(); ++i) state += ' ' + RecentFilePath(i);
    state += "; " + KeptInASecond() + " kept, ";
    EXPECT_EQ(found,
              state +
                  DecimalText(static_cast<std::int64_t>(Fakes::EndedRecoveryFiles().size() - 1)) +
                  " left");
    EXPECT_EQ("damaged", Kept(Fakes::EndedRecoveryFiles()[0])) << "and is in nobody's way";
  }
}

TEST_F(RecoveryTest, ATextThatIsOpenedIsTheDocumentItWas) {
  const std::string utf8 = "[\xC3\xA4";
  Fakes::PutFile("/part.cnc", utf8);
  Fakes::EndedRecoveryFiles() = {EncodeRecovery({"/part.cnc", true, "[\xE4\r\nG01 X2", utf8})};
  ExpectOffer("part.cnc", kYes);
  OfferRecovery();
  EXPECT_EQ("G01 X2", RowText(1));
  for (const char* command : {"Start", "Print", "Step"}) EXPECT_TRUE(IsOpen(command));
  mnuFileSave_Click();
  EXPECT_EQ("[\xC3\xA4\r\nG01 X2", Fakes::FileBytes("/part.cnc"));
  // It has been changed since, and only then Save asks.
  for (const bool isAsBefore : {true, false}) {
    Fakes::PutFile("/part.cnc", "G00");
    Fakes::EndedRecoveryFiles() = {
        EncodeRecovery({"/part.cnc", false, "G05", isAsBefore ? "G00" : "G99"})};
    ExpectOffer("part.cnc", kYes);
    OfferRecovery();
    EXPECT_EQ("/part.cnc: G05", KeptInASecond());
    if (!isAsBefore) {
      Fakes::ExpectMessage({"\"part.cnc\" has been changed by another program. Overwrite it?",
                            kYesNo + kQuestion + kDefaultButton2, "Save Changes?", kYes});
    }
    mnuFileSave_Click();
    EXPECT_EQ("G05", Fakes::FileBytes("/part.cnc"));
  }
  const std::string tooLong(kMaxColouredLength + 1, 'G');
  Fakes::EndedRecoveryFiles() = {EncodeRecovery({"/part.cnc", false, tooLong})};
  ExpectOffer("part.cnc", kYes);
  OfferRecovery();
  EXPECT_EQ(tooLong, TextEditor().Text()) << "though no file as long can be opened";
}

}  // namespace

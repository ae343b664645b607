#pragma once

#include <cstdlib>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "editor/editor_events.h"
#include "editor/reformat.h"
#include "editor/syntax_check.h"
#include "settings/settings.h"
#include "tests/fakes/machine_test.h"

class EditorTest : public MachineTest {
 protected:
  // A document as it stands when it has just been opened.
  static RichText& Open(const std::string& text) {
    RichText& editor = frmMain::TextEditor();
    editor.SetText(text);
    frmMain::EnableCommands("Save", false);
    frmMain::TextChanged = kFalse;
    return editor;
  }

  static std::string Reformatted(const std::string& text) {
    RichText& editor = Open(text);
    frmMain::ReformatText(editor);
    return editor.Text();
  }

  static bool IsOpen(std::string_view command) { return frmMain::Toolbar.Buttons(command).Enabled; }
};

// 100,000 programs when the environment asks for long tests, else 2,000.
inline int GeneratedPrograms() {
  const char* wanted = std::getenv("TURNBAY_LONG_TESTS");
  return wanted != nullptr && std::string_view(wanted) == "1" ? 100'000 : 2'000;
}

// Programs as users type them, and worse. One seed gives one row of programs everywhere.
class ProgramGenerator {
 public:
  explicit ProgramGenerator(unsigned seed) : random_(seed) {}

  std::string Next() {
    std::string program;
    for (std::size_t lines = random_() % 8; lines > 0; --lines) {
      for (std::size_t words = random_() % 5; words > 0; --words) {
        program += Pick(kGaps);
        AppendWord(program);
      }
      program += Pick(kTails);
      program += Pick(kLineEnds);
    }
    return program;
  }

 private:
  using Choices = std::vector<std::string>;

  const std::string& Pick(const Choices& choices) { return choices[random_() % choices.size()]; }

  void AppendWord(std::string& program) {
    if (random_() % 12 == 0) {
      program += Pick(kOddities);
    } else if (random_() % 60 == 0) {
      program += static_cast<char>(static_cast<unsigned char>(random_() % 256));
    } else {
      for (const Choices* choices : {&kLetters, &kGaps, &kNumbers}) program += Pick(*choices);
    }
  }

  static inline const Choices kLetters = {"G", "X", "Z", "z", "x", "M", "N", "F", "i", "I", "g"};
  static inline const Choices kNumbers = {"00", "01", "2",  "20", "-5",   "3-", ".5",   "0",
                                          "21", "90", "+4", "1.", "1.25", "73", "00.30"};
  static inline const Choices kGaps = {"", "", "", " ", " ", "  ", "\t", " \t "};
  static inline const Choices kTails = {"",       "",     "", " ", "\t", "[Face the \t end",
                                        " [a[b ", "\r \n"};
  static inline const Choices kLineEnds = {"\r\n", "\r\n", "\r\n", "\r\n\r\n", "\r", "\n"};
  static inline const Choices kOddities = {"G48", "G",  "X--1", "%", "O7",   "F0,3",   "()",    ";",
                                           "1 2", "-7", "G4e4", "Y", "G1.5", "X1.2.3", "G99999"};

  std::mt19937 random_;
};

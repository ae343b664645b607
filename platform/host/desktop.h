#pragma once

#include <string>

// What the logic asks of the event runtime. The linker picks the bodies: the Qt desktop, the
// windowless player, or the scripted desktop of the tests.
namespace Desktop {

inline constexpr const char* kProgramTitle = "Orvane's Turnbay";

// Handles every event that is waiting, each to its end, then returns. Handlers run inside the
// call: whatever was read before it may have changed after it.
void Yield();

// As Yield, but waits until at least one event has been handled: a paused run costs no time.
void WaitForEvent();

// Milliseconds since Yield or WaitForEvent returned last, or the program started.
int MillisecondsSinceYield();

// Blocks the one thread. 0 gives up the rest of the time slice.
void Sleep(int milliseconds);

// Styles of a message box: one set of buttons plus one icon, and which button is the default.
constexpr int kOkOnly = 0;
constexpr int kYesNoCancel = 3;
constexpr int kYesNo = 4;
constexpr int kCritical = 16;
constexpr int kQuestion = 32;
constexpr int kInformation = 64;
// The second button is the one that Enter chooses.
constexpr int kDefaultButton2 = 256;

// Answers of a message box. Who closes one without a choice has answered kCancel, whatever the
// buttons.
constexpr int kOk = 1;
constexpr int kCancel = 2;
constexpr int kYes = 6;
constexpr int kNo = 7;

// Shows a text (UTF-8) modally and returns the button chosen. An empty title stands for the
// program's own.
int MessageBox(const std::string& text, int style = kOkOnly, const std::string& title = "");

inline constexpr const char* kErrorTitle = "Error!";
// Shows why something failed.
inline void ShowError(const std::string& reason) {
  MessageBox(reason, kCritical, kErrorTitle);
}

// Puts key strokes into the queue of the control that has the focus: the characters of `keys`, or
// the right arrow for kRightArrowKeys. They arrive at a later yield.
void SendKeys(const std::string& keys);
inline constexpr const char* kRightArrowKeys = "{RIGHT}";

// Starts another program, found as the shell finds it, with the path of an asset, and goes on
// at once. False when it couldn't start.
bool StartProgram(const std::string& program, const std::string& path);

// Ends the program with status 0, as soon as the handlers that run have returned and without asking
// a window again. May be called more than once.
void EndProgram();

// Flags of sndPlaySoundA.
constexpr int kSoundAsync = 1;
constexpr int kSoundLoop = 8;

// Plays a wave file of the assets, replacing the sound before. A file that can't be played is
// silence.
void sndPlaySoundA(const std::string& path, int flags);

}  // namespace Desktop

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/desktop.h"
#include "platform/raster.h"

// The scripted desktop of the logic tests: acts inside chosen yields, expects each message box, and
// keeps settings, files and pictures in memory. A box that nobody expected, an expectation that
// nothing met and a run that would wait for ever fail the test.
namespace Fakes {

// Empties everything; call before each test.
void Reset();
// Fails the test for whatever was expected and didn't happen; call after each test.
void Verify();

// Runs `action` inside the n-th call of Yield or WaitForEvent from now on (n counts from 1).
void AtYield(int n, std::function<void()> action);
// Runs `action` inside every call of Yield and WaitForEvent.
void AtEachYield(std::function<void()> action);
// Runs `action` inside the next WaitForEvent that has none yet: what the user does in a pause.
void AtWait(std::function<void()> action);
// Calls of Yield and WaitForEvent so far.
int Yields();
int Waits();

// The next message box must be this one, and gets this answer.
void ExpectMessage(const std::string& text, int style, const std::string& title = "",
                   int answer = Desktop::kOk);

struct Notification {
  std::string text;
  int milliseconds = 0;
  bool modal = false;

  bool operator==(const Notification&) const = default;
};
// Every notification so far, in order. A modal one handles events as Yield does.
const std::vector<Notification>& Notifications();
// Runs `action` as each notification appears.
void AtEachNotification(std::function<void()> action);

// From now on no message box needs to be expected; each is kept and gets the answer OK.
void CollectMessages();
struct Message {
  std::string text;
  int style = 0;
  std::string title;

  bool operator==(const Message&) const = default;
};
const std::vector<Message>& Messages();

// Every call of SendKeys, in order. `reaction` gets the keys one call at a time, inside the next
// yield: the control that has the focus.
const std::vector<std::string>& SentKeys();
void AtSentKeys(std::function<void(const std::string&)> reaction);

// The next file dialog must be one to open, or to save, and this path is chosen; without one the
// dialog is cancelled.
void ExpectOpenDialog(const std::optional<std::string>& chosen);
void ExpectSaveDialog(const std::optional<std::string>& chosen);

// True once the program has been told to end.
bool ProgramEnded();

// Milliseconds of every Sleep, and paths of every sound, in order.
const std::vector<int>& Sleeps();
const std::vector<std::string>& Sounds();

// Paths are compared without regard to case and to the kind of separator. The application folder
// is "/app".
void PutPicture(const std::string& path, const Raster& picture);
void PutFile(const std::string& path, const std::string& bytes);
void RemoveFile(const std::string& path);
// Empty when there is no such file.
std::string FileBytes(const std::string& path);
// Every later ReplaceFile fails with this reason, until it is empty.
void FailWrites(const std::string& reason);

// "section/key=value", in the order in which they were saved.
const std::vector<std::string>& SavedSettings();

}  // namespace Fakes

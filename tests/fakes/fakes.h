#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/host/desktop.h"
#include "platform/raster.h"

// The scripted desktop of the logic tests: acts inside chosen yields, and keeps settings, files and
// pictures in memory. Something that nobody scripted or looks at, and a run that would wait for
// ever, fail the test.
namespace Fakes {

using Action = std::function<void()>;

// What is scripted, and what has happened so far.
struct World {
  // Hears what happens on the desktop, in words, as it happens.
  std::function<void(const std::string&)> hear;

  // Calls of Yield and WaitForEvent so far, and what is done inside the one of that number.
  int yields = 0;
  std::map<int, Action> atYield;
  // Inside each of them.
  Action atEachYield;
  // Inside the next WaitForEvent: what the user does in a pause.
  std::deque<Action> atWait;
  Action atEachNotification;
  // Milliseconds by which the clock, which else stands still, goes on whenever it is asked.
  int stepTime = 0;
  int sinceYield = 0;

  // To the next boxes that ask. With collectsMessages each other box gets OK or Yes.
  std::deque<int> answers;
  bool collectsMessages = false;
  std::vector<std::string> messages;
  // Paths for the next file dialogs; an empty one is the user's Cancel.
  std::deque<std::string> chosen;
  int notifications = 0;
  // Of each length in milliseconds, how many.
  std::map<int, int> sleeps;

  std::map<std::string, Raster> pictures;
  std::map<std::string, std::string> files;
  // Unless it is empty, files can't be written, for this reason.
  std::string writeFailure;
  // By "section/key".
  std::map<std::string, std::string> settings;
  // This program's, empty when there is none, and those of programs that have ended.
  std::string recoveryFile;
  bool recoveryFails = false;
  std::vector<std::string> endedRecoveryFiles;
};
inline World world;

// Empties everything; call before each test.
inline void Reset() {
  world = {};
}
// Fails the test for whatever was scripted and didn't happen; call after each test.
void Verify();

// Paths are compared without regard to case and to the kind of separator. The application folder
// is "/app".
void PutPicture(const std::string& path, const Raster& picture);
void PutFile(const std::string& path, const std::string& bytes);
void RemoveFile(const std::string& path);

}  // namespace Fakes

#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/host/desktop.h"
#include "platform/raster.h"

struct FakeMessage {
  std::string text;
  int style = 0;
  std::string title;
  int answer = Desktop::kOk;
};

// What is scripted, and what has happened so far.
struct FakeWorld {
  int yields = 0;
  std::map<int, std::function<void()>> atYield;
  std::function<void()> atEachYield;
  std::deque<std::function<void()>> atWait;
  int stepTime = 0;
  int sinceYield = 0;
  bool collectsMessages = false;
  std::deque<FakeMessage> expectedMessages;
  std::vector<FakeMessage> messages;
  std::function<void()> atEachNotification;
  std::vector<std::string> notifications;
  std::string notificationStyle;
  // To open or to save, and the path that is chosen.
  std::deque<std::pair<bool, std::string>> dialogs;
  std::string offeredName;
  bool ended = false;
  int splashes = 0;
  std::string sentKeys;
  std::vector<int> sleeps;
  std::vector<std::string> sounds;
  std::map<std::string, Raster> pictures;
  std::map<std::string, std::string> files;
  std::string writeFailure;
  std::string recoveryFile;
  int recoveryWrites = 0;
  bool recoveryFails = false;
  std::vector<std::string> endedRecoveryFiles;
  std::map<std::string, std::string> settings;
  std::vector<std::string> savedSettings;
};

// The scripted desktop of the logic tests: acts inside chosen yields, expects each message box, and
// keeps settings, files and pictures in memory. A box that nobody expected, an expectation that
// nothing met and a run that would wait for ever fail the test.
class Fakes {
 public:
  using Action = std::function<void()>;

  // Empties everything; call before each test.
  static void Reset() { world = {}; }
  // Fails the test for whatever was expected and didn't happen; call after each test.
  static void Verify();

  // Runs `action` inside the n-th call of Yield or WaitForEvent from now on (n counts from 1).
  static void AtYield(int n, Action action) { world.atYield[world.yields + n] = std::move(action); }
  // Runs `action` inside every call of Yield and WaitForEvent.
  static void AtEachYield(Action action) { world.atEachYield = std::move(action); }
  // Runs `action` inside the next WaitForEvent that has none yet: what the user does in a pause.
  static void AtWait(Action action) { world.atWait.push_back(std::move(action)); }
  // Calls of Yield and WaitForEvent so far.
  static int Yields() { return world.yields; }

  // The clock, which else stands still, goes on by so many milliseconds whenever it is asked.
  static void EachStepTakes(int milliseconds) { world.stepTime = milliseconds; }

  // The next message box must be this one, and gets its answer.
  static void ExpectMessage(const FakeMessage& message) {
    world.expectedMessages.push_back(message);
  }
  // From now on no message box needs to be expected; each gets the answer OK or
  // Yes.
  static void CollectMessages() { world.collectsMessages = true; }
  // Every message box so far, in order.
  static const std::vector<FakeMessage>& Messages() { return world.messages; }

  // The texts of every notification so far. A modal one handles events as Yield does.
  static const std::vector<std::string>& Notifications() { return world.notifications; }
  // How the last one was shown, as "2000 ms" or "500 ms, modal".
  static const std::string& NotificationStyle() { return world.notificationStyle; }
  // Runs `action` as each notification appears.
  static void AtEachNotification(Action action) { world.atEachNotification = std::move(action); }

  // The next file dialog must be one to open, or to save, and this path is chosen.
  // An empty path is the user's Cancel.
  static void ExpectOpenDialog(const std::string& path) { world.dialogs.emplace_back(true, path); }
  static void ExpectSaveDialog(const std::string& path) { world.dialogs.emplace_back(false, path); }

  // The file name with which the last dialog came up.
  static const std::string& OfferedName() { return world.offeredName; }

  // How often the splash window was shown.
  static int Splashes() { return world.splashes; }

  // True once the program has been told to end.
  static bool ProgramEnded() { return world.ended; }

  // Keys that the program itself pressed, in order.
  static const std::string& SentKeys() { return world.sentKeys; }

  // Milliseconds of every Sleep, and paths of every sound, in order.
  static const std::vector<int>& Sleeps() { return world.sleeps; }
  static const std::vector<std::string>& Sounds() { return world.sounds; }

  // Paths are compared without regard to case and to the kind of separator. The application folder
  // is "/app".
  static void PutPicture(const std::string& path, const Raster& picture);
  static void RemovePicture(const std::string& path);
  static void PutFile(const std::string& path, const std::string& bytes);
  static std::string FileBytes(const std::string& path);
  // This program's, empty when there is none, and those of programs that have ended.
  static const std::string& RecoveryFile() { return world.recoveryFile; }
  static std::vector<std::string>& EndedRecoveryFiles() { return world.endedRecoveryFiles; }
  // How often it has been written, and whether that is to fail from now on.
  static int RecoveryWrites() { return world.recoveryWrites; }
  static void FailRecovery(bool fails) { world.recoveryFails = fails; }
  // Every later ReplaceFile fails with this reason, until it is empty.
  static void FailWrites(const std::string& reason) { world.writeFailure = reason; }

  // "section/key=value", in the order in which they were saved.
  static const std::vector<std::string>& SavedSettings() { return world.savedSettings; }

  // For the bodies of the desktop.
  static inline FakeWorld world;
};

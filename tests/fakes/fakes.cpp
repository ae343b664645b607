#include "tests/fakes/fakes.h"

#include <algorithm>
#include <deque>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <stdexcept>

#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/notifications.h"
#include "platform/pictures.h"
#include "platform/settings_store.h"
#include "platform/text.h"

namespace {

// More yields than any test needs: a loop that never ends fails instead of hanging.
constexpr int kYieldBudget = 5'000'000;

struct ExpectedMessage {
  std::string text;
  int style = 0;
  std::string title;
  int answer = Desktop::kOk;
};

struct ExpectedDialog {
  bool isOpen = false;
  std::optional<std::string> chosen;
};

struct World {
  int yields = 0;
  int waits = 0;
  std::multimap<int, std::function<void()>> atYield;
  std::function<void()> atEachYield;
  std::deque<std::function<void()>> atWait;
  std::deque<ExpectedMessage> messages;
  std::vector<Fakes::Notification> notifications;
  std::function<void()> atEachNotification;
  bool collectsMessages = false;
  std::vector<Fakes::Message> shownMessages;
  std::vector<std::string> sentKeys;
  std::deque<std::string> keyQueue;
  std::function<void(const std::string&)> atSentKeys;
  std::deque<ExpectedDialog> dialogs;
  bool ended = false;
  std::vector<int> sleeps;
  std::vector<std::string> sounds;
  std::map<std::string, Raster> pictures;
  std::map<std::string, std::string> files;
  std::string writeFailure;
  std::map<std::string, std::string> settings;
  std::vector<std::string> savedSettings;
};

World world;

std::string Normalized(const std::string& path) {
  std::string result;
  for (const char c : path) result += c == '\\' ? '/' : ToUpper(c);
  return result;
}

void DeliverKeys() {
  while (!world.keyQueue.empty()) {
    const std::string keys = world.keyQueue.front();
    world.keyQueue.pop_front();
    if (world.atSentKeys) world.atSentKeys(keys);
  }
}

void HandleEvents() {
  if (++world.yields > kYieldBudget) throw std::runtime_error("the yields never end");
  DeliverKeys();
  const auto [first, last] = world.atYield.equal_range(world.yields);
  std::vector<std::function<void()>> actions;
  for (auto action = first; action != last; ++action) actions.push_back(action->second);
  world.atYield.erase(first, last);
  for (const auto& action : actions) action();
  if (world.atEachYield) world.atEachYield();
}

bool AnswerDialog(bool isOpen, CommonDialog& dialog) {
  if (world.dialogs.empty()) {
    ADD_FAILURE() << "unexpected file dialog to " << (isOpen ? "open" : "save");
    return false;
  }
  const ExpectedDialog expected = world.dialogs.front();
  world.dialogs.pop_front();
  EXPECT_EQ(expected.isOpen, isOpen);
  if (!expected.chosen) return !dialog.CancelError;
  dialog.FileName = *expected.chosen;
  return true;
}

std::string SettingName(std::string_view section, std::string_view key) {
  return std::string(section) + '/' + std::string(key);
}

}  // namespace

namespace Fakes {

void Reset() {
  world = {};
}

void Verify() {
  EXPECT_TRUE(world.messages.empty()) << "never shown: " << world.messages.front().text;
  EXPECT_TRUE(world.dialogs.empty()) << world.dialogs.size() << " file dialog(s) never shown";
  EXPECT_TRUE(world.atYield.empty()) << "only " << world.yields << " yields happened";
  EXPECT_TRUE(world.atWait.empty())
      << "the run never waited for " << world.atWait.size() << " action(s)";
}

void AtYield(int n, std::function<void()> action) {
  world.atYield.emplace(world.yields + n, std::move(action));
}
void AtEachYield(std::function<void()> action) {
  world.atEachYield = std::move(action);
}
void AtWait(std::function<void()> action) {
  world.atWait.push_back(std::move(action));
}
int Yields() {
  return world.yields;
}
int Waits() {
  return world.waits;
}

void ExpectMessage(const std::string& text, int style, const std::string& title, int answer) {
  world.messages.push_back({text, style, title, answer});
}

const std::vector<Notification>& Notifications() {
  return world.notifications;
}
void AtEachNotification(std::function<void()> action) {
  world.atEachNotification = std::move(action);
}

void CollectMessages() {
  world.collectsMessages = true;
}
const std::vector<Message>& Messages() {
  return world.shownMessages;
}

const std::vector<std::string>& SentKeys() {
  return world.sentKeys;
}
void AtSentKeys(std::function<void(const std::string&)> reaction) {
  world.atSentKeys = std::move(reaction);
}

void ExpectOpenDialog(const std::optional<std::string>& chosen) {
  world.dialogs.push_back({true, chosen});
}
void ExpectSaveDialog(const std::optional<std::string>& chosen) {
  world.dialogs.push_back({false, chosen});
}
bool ProgramEnded() {
  return world.ended;
}

const std::vector<int>& Sleeps() {
  return world.sleeps;
}
const std::vector<std::string>& Sounds() {
  return world.sounds;
}

void PutPicture(const std::string& path, const Raster& picture) {
  world.pictures[Normalized(path)] = picture;
}
void PutFile(const std::string& path, const std::string& bytes) {
  world.files[Normalized(path)] = bytes;
}
void RemoveFile(const std::string& path) {
  world.files.erase(Normalized(path));
}
std::string FileBytes(const std::string& path) {
  const auto file = world.files.find(Normalized(path));
  return file == world.files.end() ? std::string() : file->second;
}
void FailWrites(const std::string& reason) {
  world.writeFailure = reason;
}

const std::vector<std::string>& SavedSettings() {
  return world.savedSettings;
}

}  // namespace Fakes

namespace Desktop {

void Yield() {
  HandleEvents();
}

void WaitForEvent() {
  ++world.waits;
  const int scripted = static_cast<int>(world.atWait.size());
  if (scripted == 0 && world.atYield.empty() && !world.atEachYield) {
    throw std::runtime_error("the run waits, and nothing is scripted to end it");
  }
  HandleEvents();
  if (scripted == 0) return;
  const auto action = world.atWait.front();
  world.atWait.pop_front();
  action();
}

void Sleep(int milliseconds) {
  world.sleeps.push_back(milliseconds);
}

int MessageBox(const std::string& text, int style, const std::string& title) {
  world.shownMessages.push_back({text, style, title});
  if (world.collectsMessages) return kOk;
  if (world.messages.empty()) {
    ADD_FAILURE() << "unexpected message box: " << title << ": " << text;
    return kOk;
  }
  const ExpectedMessage expected = world.messages.front();
  world.messages.pop_front();
  EXPECT_EQ(expected.text, text);
  EXPECT_EQ(expected.style, style) << text;
  EXPECT_EQ(expected.title, title) << text;
  return expected.answer;
}

void ShowNotification(const std::string& text, int milliseconds, bool modal) {
  world.notifications.push_back({text, milliseconds, modal});
  if (world.atEachNotification) world.atEachNotification();
  if (modal) HandleEvents();
}

void ShowSplash() {}

void SendKeys(const std::string& keys) {
  world.sentKeys.push_back(keys);
  world.keyQueue.push_back(keys);
}

bool StartProgram(const std::string& /*program*/, const std::string& /*path*/) {
  return false;
}

void EndProgram() {
  world.ended = true;
}

void sndPlaySoundA(const std::string& path, int flags) {
  EXPECT_EQ(kSoundAsync | kSoundLoop, flags);
  world.sounds.push_back(path);
}

}  // namespace Desktop

bool CommonDialog::ShowOpen() {
  return AnswerDialog(true, *this);
}

bool CommonDialog::ShowSave() {
  return AnswerDialog(false, *this);
}

bool CommonDialog::ShowColor() {
  return false;
}

std::string GetSetting(std::string_view application, std::string_view section, std::string_view key,
                       std::string_view defaultText) {
  EXPECT_EQ("CNC", application);
  const auto entry = world.settings.find(SettingName(section, key));
  return entry == world.settings.end() ? std::string(defaultText) : entry->second;
}

void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                 std::string_view value) {
  EXPECT_EQ("CNC", application);
  const std::string name = SettingName(section, key);
  world.settings[name] = value;
  world.savedSettings.push_back(name + '=' + std::string(value));
}

std::string ApplicationFolder() {
  return "/app";
}

std::optional<std::string> ReadFile(const std::string& path, std::string& reason) {
  const auto file = world.files.find(Normalized(path));
  if (file != world.files.end()) return file->second;
  reason = "no file " + path;
  return std::nullopt;
}

bool ReplaceFile(const std::string& path, std::string_view bytes, std::string& reason) {
  if (!world.writeFailure.empty()) {
    reason = world.writeFailure;
    return false;
  }
  world.files[Normalized(path)] = bytes;
  return true;
}

std::optional<Raster> LoadPicture(const std::string& path, std::string& reason) {
  const auto picture = world.pictures.find(Normalized(path));
  if (picture != world.pictures.end()) return picture->second;
  reason = "no picture " + path;
  return std::nullopt;
}

#include "tests/fakes/fakes.h"

#include <gtest/gtest.h>
#include <optional>
#include <stdexcept>

#include "platform/host/dialogs.h"
#include "platform/host/files.h"
#include "platform/host/notifications.h"
#include "platform/host/pictures.h"
#include "platform/host/recovery_files.h"
#include "platform/host/settings_store.h"
#include "platform/text.h"

namespace {

// More yields than any test needs: a loop that never ends fails instead of hanging.
constexpr int kYieldBudget = 5'000'000;

FakeWorld& world = Fakes::world;

std::string Normalized(const std::string& path) {
  std::string result;
  for (const char c : path) result += c == '\\' ? '/' : ToUpper(c);
  return result;
}

// The entry that was put there, or nothing and a reason.
template <class T>
std::optional<T> Find(const std::map<std::string, T>& entries, const std::string& path,
                      std::string& reason) {
  const auto entry = entries.find(Normalized(path));
  if (entry != entries.end()) return entry->second;
  reason = "no file " + path;
  return std::nullopt;
}

template <class T>
T TakeFirst(std::deque<T>& queue) {
  T first = std::move(queue.front());
  queue.pop_front();
  return first;
}

bool AnswerDialog(bool isOpen, CommonDialog& dialog) {
  if (world.dialogs.empty() || world.dialogs.front().first != isOpen) {
    ADD_FAILURE() << "unexpected file dialog to " << (isOpen ? "open" : "save");
    return false;
  }
  EXPECT_EQ("CNC Code Files|*.cnc|All Files|*.*", dialog.Filter);
  EXPECT_EQ(6154, dialog.Flags);
  EXPECT_TRUE(dialog.CancelError);
  world.offeredName = dialog.FileName;
  const std::string chosen = TakeFirst(world.dialogs).second;
  if (!chosen.empty()) dialog.FileName = chosen;
  return !chosen.empty();
}

std::string SettingName(std::string_view section, std::string_view key) {
  return std::string(section) + '/' + std::string(key);
}

}  // namespace

void Fakes::Verify() {
  for (const FakeMessage& message : world.expectedMessages) {
    ADD_FAILURE() << "never shown: " << message.text;
  }
  EXPECT_EQ(0U, world.dialogs.size()) << "file dialogs were never shown";
  EXPECT_TRUE(world.atYield.empty()) << "only " << world.yields << " yields happened";
  EXPECT_EQ(0U, world.atWait.size()) << "actions that the run never waited for";
}

void Fakes::PutPicture(const std::string& path, const Raster& picture) {
  world.pictures[Normalized(path)] = picture;
}
void Fakes::RemovePicture(const std::string& path) {
  world.pictures.erase(Normalized(path));
}
void Fakes::PutFile(const std::string& path, const std::string& bytes) {
  world.files[Normalized(path)] = bytes;
}
std::string Fakes::FileBytes(const std::string& path) {
  std::string reason;
  return Find(world.files, path, reason).value_or("");
}

namespace Desktop {

void Yield() {
  if (++world.yields > kYieldBudget) throw std::runtime_error("the yields never end");
  if (const auto scripted = world.atYield.extract(world.yields)) scripted.mapped()();
  if (world.atEachYield) world.atEachYield();
  world.sinceYield = 0;
}

void WaitForEvent() {
  const bool isScripted = !world.atWait.empty();
  if (!isScripted && world.atYield.empty() && !world.atEachYield) {
    throw std::runtime_error("the run waits, and nothing is scripted to end it");
  }
  Yield();
  if (isScripted) TakeFirst(world.atWait)();
}

int MillisecondsSinceYield() {
  return world.sinceYield += world.stepTime;
}

void Sleep(int milliseconds) {
  world.sleeps.push_back(milliseconds);
}

int MessageBox(const std::string& text, int style, const std::string& title) {
  world.messages.push_back({text, style, title});
  if (world.collectsMessages) return (style & (kYesNoCancel | kYesNo)) != kOkOnly ? kYes : kOk;
  if (world.expectedMessages.empty()) {
    ADD_FAILURE() << "unexpected message box: " << title << ": " << text;
    return kOk;
  }
  const FakeMessage expected = TakeFirst(world.expectedMessages);
  EXPECT_EQ(expected.text, text);
  EXPECT_EQ(expected.style, style) << text;
  EXPECT_EQ(expected.title, title) << text;
  return expected.answer;
}

void ShowNotification(const std::string& text, int milliseconds, bool modal) {
  world.notifications.push_back(text);
  world.notificationStyle = std::to_string(milliseconds) + (modal ? " ms, modal" : " ms");
  if (world.atEachNotification) world.atEachNotification();
  if (modal) Yield();
}

void ShowSplash() {
  ++world.splashes;
}

void SendKeys(const std::string& keys) {
  world.sentKeys += keys;
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

bool WriteRecoveryFile(std::string_view bytes) {
  if (world.recoveryFails) return false;
  world.recoveryFile = bytes;
  ++world.recoveryWrites;
  return true;
}

void RemoveRecoveryFile() {
  world.recoveryFile.clear();
}

void VisitEndedRecoveryFiles(const std::function<RecoveryFate(const std::string& bytes)>& visit) {
  std::vector<std::string> stays;
  for (const std::string& bytes : std::exchange(world.endedRecoveryFiles, {})) {
    const RecoveryFate fate = visit(bytes);
    if (fate == RecoveryFate::Stays) stays.push_back(bytes);
    if (fate == RecoveryFate::BecomesOwn) world.recoveryFile = bytes;
  }
  world.endedRecoveryFiles = stays;
}

std::string ApplicationFolder() {
  return "/app";
}

std::string AssetPath(const std::string& path) {
  return path;
}

std::optional<std::string> ReadFile(const std::string& path, std::string& reason) {
  return Find(world.files, path, reason);
}

bool ReplaceFile(const std::string& path, std::string_view bytes, std::string& reason) {
  reason = world.writeFailure;
  if (reason.empty()) world.files[Normalized(path)] = bytes;
  return reason.empty();
}

std::optional<Raster> LoadPicture(const std::string& path, std::string& reason) {
  return Find(world.pictures, path, reason);
}

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

using Fakes::world;

void Hear(const std::string& what) {
  if (world.hear) world.hear(what);
}

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

bool AnswerDialog(const std::string& kind, CommonDialog& dialog) {
  EXPECT_EQ("CNC Code Files|*.cnc|All Files|*.*", dialog.Filter);
  EXPECT_EQ(6154, dialog.Flags);
  EXPECT_TRUE(dialog.CancelError);
  EXPECT_FALSE(world.chosen.empty()) << "nobody expects a file dialog";
  if (world.chosen.empty()) return false;
  const std::string chosen = TakeFirst(world.chosen);
  Hear("dialog to " + kind + ", in " + dialog.InitDir + ", with \"" + dialog.FileName +
       "\": " + (chosen.empty() ? "Cancel" : chosen));
  if (!chosen.empty()) dialog.FileName = chosen;
  return !chosen.empty();
}

// Icon, buttons and the one that Enter presses, as "question, Yes No, No first".
std::string StyleName(int style) {
  using namespace Desktop;
  std::string name = style & kCritical      ? "fault"
                     : style & kQuestion    ? "question"
                     : style & kInformation ? "note"
                                            : "plain";
  const int buttons = style & 7;
  name += buttons == kYesNoCancel ? ", Yes No Cancel" : buttons == kYesNo ? ", Yes No" : "";
  return style & kDefaultButton2 ? name + ", No first" : name;
}

std::string NameOfAnswer(int answer) {
  return answer == Desktop::kYes ? "Yes" : answer == Desktop::kNo ? "No" : "Cancel";
}

std::string SettingName(std::string_view section, std::string_view key) {
  return std::string(section) + '/' + std::string(key);
}

}  // namespace

void Fakes::Verify() {
  EXPECT_TRUE(world.answers.empty()) << "a box that asks was never shown";
  EXPECT_TRUE(world.chosen.empty()) << "a file dialog was never shown";
  EXPECT_TRUE(world.atYield.empty()) << "only " << world.yields << " yields happened";
  EXPECT_TRUE(world.atWait.empty()) << "a run never waited";
}

void Fakes::PutPicture(const std::string& path, const Raster& picture) {
  world.pictures[Normalized(path)] = picture;
}
void Fakes::PutFile(const std::string& path, const std::string& bytes) {
  world.files[Normalized(path)] = bytes;
}
void Fakes::RemoveFile(const std::string& path) {
  world.pictures.erase(Normalized(path));
  world.files.erase(Normalized(path));
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
  ++world.sleeps[milliseconds];
}

int MessageBox(const std::string& text, int style, const std::string& title) {
  world.messages.push_back(text);
  const bool asks = (style & (kYesNoCancel | kYesNo)) != kOkOnly;
  int answer = asks ? kYes : kOk;
  if (asks && !world.answers.empty()) {
    answer = TakeFirst(world.answers);
  } else if (!world.collectsMessages && (asks || !world.hear)) {
    ADD_FAILURE() << "nobody expects the box " << text;
  }
  Hear("box \"" + title + "\" (" + StyleName(style) + "): " + text +
       (asks ? " " + NameOfAnswer(answer) : ""));
  return answer;
}

void ShowNotification(const std::string& text, int milliseconds, bool modal) {
  ++world.notifications;
  Hear("notification \"" + text + "\", " + std::to_string(milliseconds) +
       (modal ? " ms, modal" : " ms"));
  if (world.atEachNotification) world.atEachNotification();
  if (modal) Yield();
}

void ShowSplash() {
  Hear("splash");
}

void SendKeys(const std::string& keys) {
  Hear("keys pressed by the program: \"" + keys + '"');
}

bool StartProgram(const std::string& /*program*/, const std::string& /*path*/) {
  return false;
}

void EndProgram() {
  Hear("the program ends");
}

void sndPlaySoundA(const std::string& path, int flags) {
  EXPECT_EQ(kSoundAsync | kSoundLoop, flags);
  Hear("sound " + path);
}

}  // namespace Desktop

bool CommonDialog::ShowOpen() {
  return AnswerDialog("open", *this);
}

bool CommonDialog::ShowSave() {
  return AnswerDialog("save", *this);
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
  Hear("stores " + name + '=' + std::string(value));
  world.settings[name] = value;
}

bool WriteRecoveryFile(std::string_view bytes) {
  if (world.recoveryFails) return false;
  Hear("recovery file written");
  world.recoveryFile = bytes;
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
  if (!reason.empty()) return false;
  Hear("file " + path + " written");
  Fakes::PutFile(path, std::string(bytes));
  return true;
}

std::optional<Raster> LoadPicture(const std::string& path, std::string& reason) {
  return Find(world.pictures, path, reason);
}

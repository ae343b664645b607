#include "fuzz/quiet_desktop.h"

#include <cstdio>
#include <cstdlib>
#include <map>
#include <optional>

#include "debugger/run_commands.h"
#include "fuzz/bodies.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/notifications.h"
#include "platform/pictures.h"
#include "platform/settings_store.h"
#include "platform/text.h"

namespace {

// Yields after which a run is stopped: some thousand points of a path.
constexpr int kYieldBound = 400;
// A run that has been stopped leaves within its row; far more yields than that are an endless loop.
constexpr int kHangBound = 20 * kYieldBound;

constexpr int kPictureSide = 4;

int yields = 0;
std::map<std::string, std::string> files;
std::map<std::string, std::string> settings;

std::string Normalized(const std::string& path) {
  std::string result;
  for (const char c : path) result += c == '\\' ? '/' : ToUpper(c);
  return result;
}

std::string SettingName(std::string_view section, std::string_view key) {
  return std::string(section) + '/' + std::string(key);
}

bool IsAtBound() {
  ++yields;
  Fuzz::Require(yields < kHangBound, "a stopped run ends");
  return yields == kYieldBound;
}

}  // namespace

namespace Fuzz {

void Require(bool holds, const char* promise) {
  if (holds) return;
  std::fprintf(stderr, "broken promise: %s\n", promise);
  std::abort();
}

}  // namespace Fuzz

namespace QuietDesktop {

void Reset() {
  yields = 0;
  files.clear();
  settings.clear();
}

void PutFile(const std::string& path, std::string_view bytes) {
  files[Normalized(path)] = bytes;
}

void PutSetting(std::string_view section, std::string_view key, std::string_view value) {
  settings[SettingName(section, key)] = value;
}

}  // namespace QuietDesktop

namespace Desktop {

void Yield() {
  if (IsAtBound()) frmMain::mnuRunStop_Click();
}

void WaitForEvent() {
  if (IsAtBound()) {
    frmMain::mnuRunStop_Click();
  } else {
    frmMain::mnuRunStart_Click();
  }
}

void Sleep(int /*milliseconds*/) {}

int MessageBox(const std::string& /*text*/, int style, const std::string& /*title*/) {
  return (style & kYesNoCancel) == kYesNoCancel ? kNo : kOk;
}

void ShowNotification(const std::string& /*text*/, int /*milliseconds*/, bool modal) {
  if (modal) Yield();
}

void EndProgram() {}

void SendKeys(const std::string& /*keys*/) {}

void sndPlaySoundA(const std::string& /*path*/, int /*flags*/) {}

}  // namespace Desktop

// Nobody chooses a file.
bool CommonDialog::ShowOpen() {
  return false;
}
bool CommonDialog::ShowSave() {
  return false;
}

std::string GetSetting(std::string_view /*application*/, std::string_view section,
                       std::string_view key, std::string_view defaultText) {
  const auto entry = settings.find(SettingName(section, key));
  return entry == settings.end() ? std::string(defaultText) : entry->second;
}

void SaveSetting(std::string_view /*application*/, std::string_view section, std::string_view key,
                 std::string_view value) {
  QuietDesktop::PutSetting(section, key, value);
}

std::string ApplicationFolder() {
  return "/app";
}

std::optional<std::string> ReadFile(const std::string& path, std::string& reason) {
  const auto file = files.find(Normalized(path));
  if (file != files.end()) return file->second;
  reason = "There is no such file.";
  return std::nullopt;
}

bool ReplaceFile(const std::string& path, std::string_view bytes, std::string& /*reason*/) {
  QuietDesktop::PutFile(path, bytes);
  return true;
}

std::optional<Raster> LoadPicture(const std::string& /*path*/, std::string& /*reason*/) {
  return Raster(kPictureSide, kPictureSide);
}

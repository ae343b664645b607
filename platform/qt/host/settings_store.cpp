#include "platform/host/settings_store.h"

#include <QStandardPaths>
#include <cerrno>
#include <filesystem>
#include <map>
#include <optional>
#include <sys/stat.h>
#include <system_error>
#include <tuple>
#include <utility>

#include "platform/host/files.h"
#include "platform/posix/error_words.h"
#include "platform/posix/folder_lock.h"
#include "platform/qt/host/settings_trouble.h"
#include "platform/settings_text.h"

namespace {

// The application, the section and the key.
using Place = std::tuple<std::string, std::string, std::string>;

// What couldn't be written holds until the program ends, or goes along when a later write succeeds.
std::map<Place, std::string> unwritten;
// A store that couldn't be read once isn't written any more: what it holds is not known.
bool isUnreadable = false;

std::function<void(const std::string&)> tellTrouble;

void Tell(const std::string& reason) {
  if (const auto tell = std::exchange(tellTrouble, {})) tell(reason);
}

// One file an application, in the folder of the user's settings.
std::string StoreFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation).toStdString() +
         "/turnbay";
}
std::string StorePath(std::string_view application) {
  return StoreFolder() + '/' + std::string(application) + ".ini";
}

// Its text; one that isn't there yet is empty. Without a result it couldn't be read.
std::optional<std::string> ReadStore(std::string_view application) {
  const std::string path = StorePath(application);
  struct stat status {};
  // Any other error is no proof that there is none.
  const bool isFound = lstat(path.c_str(), &status) == 0;
  if (!isFound && (errno == ENOENT || errno == ENOTDIR)) return "";
  std::string reason;
  auto text = ReadFile(path, reason);
  if (!text) {
    isUnreadable = true;
    Tell(reason);
  }
  return text;
}

// Brings all that is unwritten to the store. False, with a reason, when that fails.
bool WriteStore(const std::string& application, std::string& reason) {
  std::error_code error;
  std::filesystem::create_directories(StoreFolder(), error);
  if (error) {
    reason =
        "The folder \"" + StoreFolder() + "\" can't be made: " + ErrorWords(error.value()) + '.';
    return false;
  }
  const FolderLock lock(StoreFolder());
  if (!lock.IsHeld()) {
    reason = "Another program keeps the folder \"" + StoreFolder() + "\" locked.";
    return false;
  }
  const auto old = ReadStore(application);
  if (!old || isUnreadable) return false;
  std::string text = *old;
  for (const auto& [place, value] : unwritten) {
    const auto& [itsApplication, section, key] = place;
    if (itsApplication == application && FindSetting(text, section, key) != value) {
      text = WithSetting(text, section, key, value);
    }
  }
  return text == *old || ReplaceFile(StorePath(application), text, reason);
}

}  // namespace

void WatchSettingsTrouble(std::function<void(const std::string& reason)> tell) {
  tellTrouble = std::move(tell);
}

std::string GetSetting(std::string_view application, std::string_view section, std::string_view key,
                       std::string_view defaultText) {
  const auto kept = unwritten.find(Place(application, section, key));
  if (kept != unwritten.end()) return kept->second;
  const auto text = ReadStore(application);
  const auto value = text ? FindSetting(*text, section, key) : std::nullopt;
  return value.value_or(std::string(defaultText));
}

void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                 std::string_view value) {
  unwritten[Place(application, section, key)] = value;
  std::string reason;
  if (WriteStore(std::string(application), reason)) {
    std::erase_if(unwritten,
                  [&](const auto& entry) { return std::get<0>(entry.first) == application; });
  } else if (!reason.empty()) {
    Tell(reason);
  }
}

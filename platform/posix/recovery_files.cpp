#include "platform/host/recovery_files.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <optional>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include "platform/host/files.h"
#include "platform/posix/descriptor.h"

// A file can't carry its lock itself: replacing it makes another one of it. So a lock file stands
// beside it, which is there before it and goes after it. A recovery file without one belongs to
// nobody any more.

namespace {

namespace fs = std::filesystem;

constexpr const char* kFileSuffix = ".recovery";
constexpr const char* kLockSuffix = ".lock";

// XDG has no other way to say where it is; a relative path there doesn't count.
fs::path StateFolder() {
  const char* state = std::getenv("XDG_STATE_HOME");
  if (state != nullptr && *state == '/') return fs::path(state) / "turnbay";
  const char* home = std::getenv("HOME");
  return fs::path(home != nullptr ? home : "/") / ".local/state/turnbay";
}

// Program texts are nobody else's business.
void MakeStateFolder(const fs::path& folder) {
  std::error_code ignored;
  fs::create_directories(folder.parent_path(), ignored);
  mkdir(folder.c_str(), 0700);
}

// The lock of one recovery file; goes with the process at the latest.
class Hold {
 public:
  // `name` is a path without suffix.
  explicit Hold(const fs::path& name)
      : file_(name.string() + kFileSuffix), lockFile_(name.string() + kLockSuffix) {
    isLocked_ = lock_.Open(lockFile_, O_RDWR | O_CREAT, 0600) &&
                flock(lock_.Number(), LOCK_EX | LOCK_NB) == 0;
  }

  // False as well when somebody has removed the lock file since, or did just before it was locked:
  // what others find there is not held then.
  bool Stands() const {
    struct stat own {};
    struct stat found {};
    return isLocked_ && fstat(lock_.Number(), &own) == 0 && stat(lockFile_.c_str(), &found) == 0 &&
           own.st_dev == found.st_dev && own.st_ino == found.st_ino;
  }
  const std::string& File() const { return file_; }
  void Drop() const {
    unlink(file_.c_str());
    unlink(lockFile_.c_str());
  }

 private:
  std::string file_;
  std::string lockFile_;
  Descriptor lock_;
  bool isLocked_ = false;
};

// That of this program while there is one, and its path without suffix.
std::unique_ptr<Hold> own;
fs::path ownName;

std::unique_ptr<Hold> TakeHold(const fs::path& name) {
  auto hold = std::make_unique<Hold>(name);
  if (!hold->Stands()) hold.reset();
  return hold;
}

bool IsGone(const std::string& file) {
  return access(file.c_str(), F_OK) != 0 && errno == ENOENT;
}

// Never the same twice, and in the order of time.
std::string NewName() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::to_string(std::chrono::nanoseconds(now).count()) + '-' + std::to_string(getpid());
}

// Paths without suffix, in the order of their names; those of lonely locks as well, so that a visit
// clears them away.
std::vector<fs::path> Names(const fs::path& folder) {
  std::vector<fs::path> names;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    const std::string extension = entry->path().extension();
    if (extension == kFileSuffix || extension == kLockSuffix) {
      names.push_back(folder / entry->path().stem());
    }
  }
  std::sort(names.begin(), names.end());
  names.erase(std::unique(names.begin(), names.end()), names.end());
  return names;
}

}  // namespace

bool WriteRecoveryFile(std::string_view bytes) {
  if (!own || !own->Stands()) {
    const fs::path folder = StateFolder();
    MakeStateFolder(folder);
    if (ownName.empty()) ownName = folder / NewName();
    own = TakeHold(ownName);
  }
  std::string reason;
  return own && ReplaceFile(own->File(), bytes, reason);
}

void RemoveRecoveryFile() {
  if (const auto former = std::exchange(own, nullptr)) former->Drop();
  ownName.clear();
}

void VisitEndedRecoveryFiles(const std::function<RecoveryFate(const std::string& bytes)>& visit) {
  for (const fs::path& name : Names(StateFolder())) {
    auto hold = TakeHold(name);
    if (!hold) continue;
    std::string reason;
    const auto bytes = ReadFile(hold->File(), reason);
    const RecoveryFate fate = bytes                  ? visit(*bytes)
                              : IsGone(hold->File()) ? RecoveryFate::Goes
                                                     : RecoveryFate::Stays;
    if (fate == RecoveryFate::Goes) hold->Drop();
    if (fate == RecoveryFate::BecomesOwn) {
      RemoveRecoveryFile();
      own = std::move(hold);
      ownName = name;
    }
  }
}

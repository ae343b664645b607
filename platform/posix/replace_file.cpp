#include <cerrno>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include "platform/host/files.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/error_words.h"
#include "platform/posix/file_traits.h"
#include "platform/posix/save_names.h"

// The new bytes go to a file without a name, which vanishes with the process. Once they are on the
// disk, that file gets a name beside the old one and is renamed over it. QSaveFile does the same,
// but takes a full disk for success and leaves names behind that can't be told from the user's.

namespace {

namespace fs = std::filesystem;

struct Replacement {
  fs::path path;
  fs::path temporary = TemporaryName(path);
  Descriptor file{};
  bool hasName = false;

  std::string Name() const {
    return hasName ? temporary.string() : "/proc/self/fd/" + std::to_string(file.Number());
  }
};

bool OpenTemporary(Replacement& replacement, mode_t mode) {
  if (access("/proc/self/fd", X_OK) == 0 &&
      replacement.file.Open(FolderOf(replacement.path), O_WRONLY | O_TMPFILE, mode)) {
    return true;
  }
  // Some network and memory stick file systems know no files without a name.
  unlink(replacement.temporary.c_str());
  replacement.hasName =
      replacement.file.Open(replacement.temporary, O_WRONLY | O_CREAT | O_EXCL, mode);
  return replacement.hasName;
}

// Lets `act` go on to its end even if the program is killed meanwhile, in a process of its own: so
// it makes only calls that are safe after a fork. Returns the error number that it returns.
template <class Action>
int RunApart(Action act) {
  const pid_t child = fork();
  if (child == 0) {
    setsid();
    _exit(act());
  }
  if (child < 0) return act();
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : EIO;
}

// From the start of the file on, which then has no other bytes and lies on the disk.
int WriteToDisk(int file, std::string_view bytes) {
  const auto size = static_cast<off_t>(bytes.size());
  off_t end = 0;
  while (!bytes.empty()) {
    const ssize_t written = pwrite(file, bytes.data(), bytes.size(), end);
    if (written >= 0) {
      end += written;
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      return errno;
    }
  }
  if (ftruncate(file, size) != 0) return errno;
  // Some file systems can't do it, and then have no need of it.
  return fsync(file) == 0 || errno == EINVAL ? 0 : errno;
}

int LinkAndRename(const Replacement& replacement, const char* unnamed) {
  const char* temporary = replacement.temporary.c_str();
  if (!replacement.hasName) {
    unlink(temporary);
    if (linkat(AT_FDCWD, unnamed, AT_FDCWD, temporary, AT_SYMLINK_FOLLOW) != 0) return errno;
  }
  if (rename(temporary, replacement.path.c_str()) == 0) return 0;
  const int error = errno;
  unlink(temporary);
  return error;
}

bool IsInPlace(const Replacement& replacement) {
  struct stat own {};
  struct stat found {};
  return fstat(replacement.file.Number(), &own) == 0 &&
         stat(replacement.path.c_str(), &found) == 0 && own.st_dev == found.st_dev &&
         own.st_ino == found.st_ino;
}

// Brings the bytes to the disk, still without the name of the file.
int Fill(const Replacement& replacement, std::string_view bytes) {
  const int error = WriteToDisk(replacement.file.Number(), bytes);
  if (error != 0 && replacement.hasName) unlink(replacement.temporary.c_str());
  return error;
}

// Gives the finished file its name: both calls are made or none.
int Publish(const Replacement& replacement) {
  const std::string unnamed = replacement.Name();
  const int error = RunApart([&] { return LinkAndRename(replacement, unnamed.c_str()); });
  if (IsInPlace(replacement)) return 0;
  return error != 0 ? error : EIO;
}

// A file that is to be written over, and what makes it whole again.
struct Overwriting {
  Descriptor file{};
  std::string old{};
  // Beside the file while it is neither the old nor the new one.
  Replacement copy;
  Descriptor folder{};
};

int WriteOver(const Overwriting& task, std::string_view bytes) {
  if (const int error = WriteToDisk(task.file.Number(), bytes); error != 0) return error;
  return unlink(task.copy.path.c_str()) == 0 ? 0 : errno;
}

// Leaves the copy there when the file can't even be put back.
int WriteOverOrRestore(const Overwriting& task, std::string_view bytes, const char* unnamedCopy) {
  if (task.copy.file.Number() >= 0) {
    if (const int error = LinkAndRename(task.copy, unnamedCopy); error != 0) return error;
    // It has to be found after a power cut.
    fsync(task.folder.Number());
  }
  const int error = WriteOver(task, bytes);
  if (error != 0) WriteOver(task, task.old);
  return error;
}

// Reads what the file holds and makes a copy of it, which has no name yet. After an overwriting
// that was cut off there is a copy already. Empty on success, else why not.
std::string SecureOld(const fs::path& path, Overwriting& task) {
  const bool isSecured = access(task.copy.path.c_str(), F_OK) == 0;
  std::string reason;
  auto bytes = ReadFile(isSecured ? task.copy.path : path, reason);
  if (!bytes) return "it has to be written over, and what it holds can't be read";
  task.old = std::move(*bytes);
  if (isSecured) return {};
  constexpr mode_t kUserAlone = 0600;
  const bool isOpen = task.folder.Open(FolderOf(path), O_RDONLY | O_DIRECTORY) &&
                      OpenTemporary(task.copy, kUserAlone);
  const int error = isOpen ? Fill(task.copy, task.old) : errno;
  return error == 0 ? "" : ErrorWords(error);
}

// For a file with an owner or other names that no new file can have. Empty on success, else why
// not.
std::string Overwrite(const fs::path& path, std::string_view bytes) {
  Overwriting task{.copy{.path = SafetyCopyName(path)}};
  if (!task.file.Open(path, O_WRONLY)) return ErrorWords(errno);
  if (flock(task.file.Number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
    return "another program is writing it";
  }
  if (std::string why = SecureOld(path, task); !why.empty()) return why;
  const std::string unnamed = task.copy.Name();
  const int error = RunApart([&] { return WriteOverOrRestore(task, bytes, unnamed.c_str()); });
  if (error == 0) return {};
  const auto isLeft = [&] { return access(task.copy.path.c_str(), F_OK) == 0; };
  // The process that was to do it may have been killed.
  if (isLeft()) WriteOver(task, task.old);
  return ErrorWords(error) +
         (isLeft() ? ", and what it held is in \"" + task.copy.path.string() + '"' : "");
}

// Empty on success, else why not.
std::string Replace(const fs::path& path, std::string_view bytes) {
  if (path.empty()) return ErrorWords(ELOOP);
  struct stat old {};
  const bool exists = stat(path.c_str(), &old) == 0;
  if (exists && S_ISDIR(old.st_mode)) return "it is a folder";
  if (exists && !S_ISREG(old.st_mode)) return "it is no ordinary file";
  // A rename asks the folder alone, but a file that is write protected has to stay.
  if (exists && faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) return ErrorWords(errno);
  if (exists && old.st_nlink > 1) return Overwrite(path, bytes);

  Replacement replacement{.path = path};
  if (!OpenTemporary(replacement, exists ? old.st_mode & 0777 : 0666)) return ErrorWords(errno);
  if (exists && !MakeAlike(replacement.file.Number(), replacement.Name(), path, old)) {
    if (replacement.hasName) unlink(replacement.temporary.c_str());
    return Overwrite(path, bytes);
  }
  int error = Fill(replacement, bytes);
  if (error == 0) error = Publish(replacement);
  if (error != 0) return ErrorWords(error);
  unlink(SafetyCopyName(path).c_str());
  return {};
}

}  // namespace

bool ReplaceFile(const std::string& path, std::string_view bytes, std::string& reason) {
  const std::string why = Replace(FollowLinks(path), bytes);
  if (why.empty()) return true;
  reason = "The file \"" + path + "\" can't be written: " + why + '.';
  return false;
}

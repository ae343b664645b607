#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <sys/wait.h>

#include "platform/host/files.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/error_words.h"

// The new bytes go to a file without a name, which vanishes with the process. Once they are on the
// disk, that file gets a name beside the old one and is renamed over it. QSaveFile does the same,
// but takes a full disk for success and leaves names behind that can't be told from the user's.

namespace {

namespace fs = std::filesystem;

constexpr int kMaxLinks = 40;
// Leaves room for what makes the name of the temporary file out of it.
constexpr std::size_t kMaxNameInTemporary = 200;

// Where a chain of links ends, whether there is a file or not; empty when it goes round.
fs::path FollowLinks(fs::path path) {
  for (int links = 0; links < kMaxLinks; ++links) {
    std::error_code isNoLink;
    const fs::path target = fs::read_symlink(path, isNoLink);
    if (isNoLink) return path;
    path = path.parent_path() / target;
  }
  return {};
}

// Always the same for one file, so that the next save clears away what a crash has left.
fs::path TemporaryName(const fs::path& path) {
  const std::string name = path.filename().string().substr(0, kMaxNameInTemporary);
  return path.parent_path() / ('.' + name + ".turnbay-save");
}

struct Replacement {
  fs::path path;
  fs::path temporary = TemporaryName(path);
  Descriptor file{};
  bool hasName = false;
};

bool OpenTemporary(Replacement& replacement, mode_t mode) {
  const fs::path folder = replacement.path.parent_path();
  if (access("/proc/self/fd", X_OK) == 0 &&
      replacement.file.Open(folder.empty() ? "." : folder.string(), O_WRONLY | O_TMPFILE, mode)) {
    return true;
  }
  // Some network and memory stick file systems know no files without a name.
  unlink(replacement.temporary.c_str());
  replacement.hasName =
      replacement.file.Open(replacement.temporary, O_WRONLY | O_CREAT | O_EXCL, mode);
  return replacement.hasName;
}

int WriteToDisk(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      return errno;
    }
  }
  // Some file systems can't do it, and then have no need of it.
  return fsync(file) == 0 || errno == EINVAL ? 0 : errno;
}

// Only calls that are safe after a fork.
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

// Gives the finished file its name, in a process of its own: if the program is killed between the
// two calls, they are still both made.
int Publish(const Replacement& replacement) {
  const std::string unnamed = "/proc/self/fd/" + std::to_string(replacement.file.Number());
  const pid_t child = fork();
  if (child == 0) _exit(LinkAndRename(replacement, unnamed.c_str()));
  if (child < 0) return LinkAndRename(replacement, unnamed.c_str());
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  if (IsInPlace(replacement)) return 0;
  return WIFEXITED(status) && WEXITSTATUS(status) != 0 ? WEXITSTATUS(status) : EIO;
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

  Replacement replacement{.path = path};
  if (!OpenTemporary(replacement, exists ? old.st_mode & 0777 : 0666)) return ErrorWords(errno);
  const int file = replacement.file.Number();
  if (exists) {
    // Best effort: the owner is somebody else only when root saves.
    if (fchown(file, old.st_uid, old.st_gid) != 0) errno = 0;
    fchmod(file, old.st_mode & 07777);
  }
  int error = WriteToDisk(file, bytes);
  if (error != 0 && replacement.hasName) unlink(replacement.temporary.c_str());
  if (error == 0) error = Publish(replacement);
  return error == 0 ? "" : ErrorWords(error);
}

}  // namespace

bool ReplaceFile(const std::string& path, std::string_view bytes, std::string& reason) {
  const std::string why = Replace(FollowLinks(path), bytes);
  if (why.empty()) return true;
  reason = "The file \"" + path + "\" can't be written: " + why + '.';
  return false;
}

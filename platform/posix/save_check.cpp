#include "platform/posix/save_check.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include "platform/posix/error_words.h"
#include "platform/posix/save_names.h"

namespace {

constexpr unsigned long kRoom = 65'536;  // bytes

bool MayWrite(const std::string& path) {
  return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

std::string FolderTrouble(const std::string& folder) {
  const std::string name = "The folder \"" + folder + "\" ";
  struct stat status {};
  if (stat(folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode))
    return name + "doesn't exist.";
  if (!MayWrite(folder)) return name + "can't be written: " + ErrorWords(errno) + '.';
  struct statvfs disk {};
  // Some file systems don't know how large they are.
  if (statvfs(folder.c_str(), &disk) == 0 && disk.f_blocks > 0 &&
      disk.f_bavail < kRoom / disk.f_frsize) {
    return name + "has less than 64 kB of room left on its disk.";
  }
  return {};
}

}  // namespace

std::string SaveTrouble(const std::string& path) {
  const std::filesystem::path file = FollowLinks(path);
  if (std::string trouble = FolderTrouble(FolderOf(file)); !trouble.empty()) return trouble;
  struct stat status {};
  const bool exists = stat(file.c_str(), &status) == 0;
  if (!exists && errno == ENOENT) return {};
  if (exists && S_ISDIR(status.st_mode)) return '"' + path + "\" is a folder. Type another name.";
  if (exists && S_ISREG(status.st_mode) && MayWrite(file)) return {};
  const bool isOrdinary = !exists || S_ISREG(status.st_mode);
  return "The file \"" + path +
         "\" can't be written: " + (isOrdinary ? ErrorWords(errno) : "it is no ordinary file") +
         '.';
}

#include "platform/posix/folder_lock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

FolderLock::FolderLock(const std::string& folder) {
  constexpr int kTries = 400;
  constexpr useconds_t kPause = 5'000;  // microseconds
  folder_ = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder_ < 0) return;
  for (int i = 0; i < kTries && !isHeld_; ++i) {
    if (i > 0) usleep(kPause);
    // Some network file systems know no locks; a program alone has no need of them.
    isHeld_ = flock(folder_, LOCK_EX | LOCK_NB) == 0 || (errno != EWOULDBLOCK && errno != EINTR);
  }
}

FolderLock::~FolderLock() {
  if (folder_ >= 0) close(folder_);
}

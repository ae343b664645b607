#include "platform/posix/folder_lock.h"

#include <cerrno>
#include <sys/file.h>
#include <unistd.h>

FolderLock::FolderLock(const std::string& folder) {
  constexpr int kTries = 400;
  constexpr useconds_t kPause = 5'000;  // microseconds
  if (!folder_.Open(folder, O_RDONLY | O_DIRECTORY)) return;
  for (int i = 0; i < kTries && !isHeld_; ++i) {
    if (i > 0) usleep(kPause);
    // Some network file systems know no locks; a program alone has no need of them.
    isHeld_ =
        flock(folder_.Number(), LOCK_EX | LOCK_NB) == 0 || (errno != EWOULDBLOCK && errno != EINTR);
  }
}

#include "tests/platform/qt/system_calls.h"

#include <cerrno>
#include <cstdarg>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

namespace {

std::function<int()> watch;

// What the kernel says, or the failure that the test wants.
template <class... Arguments>
long Call(long number, Arguments... arguments) {
  const int error = watch ? watch() : 0;
  if (error == 0) return syscall(number, arguments...);
  errno = error;
  return -1;
}

}  // namespace

namespace SystemCalls {

void Watch(std::function<int()> beforeCall) {
  watch = std::move(beforeCall);
}

}  // namespace SystemCalls

// Definitions in the program itself go before those of the C library, whose names for the
// parameters are no example.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" {

int open(const char* path, int flags, ...) {
  va_list list;
  va_start(list, flags);
  // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): it has been started.
  const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(list, mode_t) : 0;
  va_end(list);
  return static_cast<int>(Call(SYS_openat, AT_FDCWD, path, flags, mode));
}

ssize_t write(int file, const void* bytes, size_t size) {
  return Call(SYS_write, file, bytes, size);
}

int fsync(int file) {
  return static_cast<int>(Call(SYS_fsync, file));
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
  return static_cast<int>(Call(SYS_linkat, fromFolder, from, toFolder, to, flags));
}

int rename(const char* from, const char* to) noexcept {
  return static_cast<int>(Call(SYS_rename, from, to));
}

}  // extern "C"
// NOLINTEND(readability-inconsistent-declaration-parameter-name)

#pragma once

#include <fcntl.h>
#include <string>
#include <sys/types.h>
#include <unistd.h>

// An open file or folder, closed at the end of its scope.
class Descriptor {
 public:
  Descriptor() = default;
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }

  // False, with errno, when it can't be opened. Opens once.
  bool Open(const std::string& path, int flags, mode_t mode = 0) {
    number_ = open(path.c_str(), flags | O_CLOEXEC, mode);
    return number_ >= 0;
  }
  int Number() const { return number_; }

 private:
  int number_ = -1;
};

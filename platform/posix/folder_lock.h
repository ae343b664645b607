#pragma once

#include <string>

#include "platform/posix/descriptor.h"

// An advisory lock on a folder, that programs of one user take before they read and rewrite a file
// in it. It leaves nothing behind, and goes with the process that holds it, however that ends.
class FolderLock {
 public:
  // Waits for another holder, for two seconds at most.
  explicit FolderLock(const std::string& folder);

  bool IsHeld() const { return isHeld_; }

 private:
  Descriptor folder_;
  bool isHeld_ = false;
};

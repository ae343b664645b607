#pragma once

#include <string>

// An advisory lock on a folder, that programs of one user take before they read and rewrite a file
// in it. It leaves nothing behind, and goes with the process that holds it, however that ends.
class FolderLock {
 public:
  // Waits for another holder, for two seconds at most.
  explicit FolderLock(const std::string& folder);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  bool IsHeld() const { return isHeld_; }

 private:
  int folder_ = -1;
  bool isHeld_ = false;
};

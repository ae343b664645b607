#include <cerrno>
#include <csignal>
#include <cstring>
#include <functional>
#include <gmock/gmock.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <tuple>
#include <unistd.h>

#include "platform/host/files.h"
#include "tests/platform/qt/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

// Asked before each system call of a save: 0 lets it happen, an errno makes it fail.
std::function<int()> watch;

template <class... Arguments>
long Call(long number, Arguments... arguments) {
  const int error = watch ? watch() : 0;
  if (error == 0) return syscall(number, arguments...);
  errno = error;
  return -1;
}

}  // namespace

// Definitions in the program itself go before those of the C library, whose names for the
// parameters are no example.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" {

int access(const char* path, int mode) noexcept {
  return static_cast<int>(Call(SYS_access, path, mode));
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

namespace {

const std::string kOld(8000, 'o');
const std::string kReplacement = std::string(59'998, 'n') + std::string("\0\xFF", 2);

// With and without an old file, by its name and through a link.
class ReplaceFileTest : public TemporaryFolderTest,
                        public testing::WithParamInterface<std::tuple<bool, bool>> {
 protected:
  // Empties the folder, puts the old file there and returns the path to save to.
  std::string Prepare() {
    reason.clear();
    for (const char* name : {"part.cnc", "link.cnc", "filler"}) fs::remove(Path(name));
    if (exists) Put("part.cnc", kOld);
    if (linked) fs::create_symlink("part.cnc", Path("link.cnc"));
    return Path(linked ? "link.cnc" : "part.cnc");
  }

  // The file is the new one or the old one, the link is still a link, and nothing else is there.
  void ExpectWhole(bool replaced, std::size_t size = kReplacement.size()) const {
    for (const auto& entry : fs::directory_iterator(folder)) {
      EXPECT_THAT(entry.path().filename(), testing::AnyOf("part.cnc", "link.cnc", "filler"));
    }
    EXPECT_EQ(linked, fs::is_symlink(Path("link.cnc")));
    EXPECT_EQ(exists || replaced, fs::exists(Path("part.cnc")));
    const std::string old = exists ? kOld : "";
    EXPECT_TRUE(Bytes("part.cnc") == (replaced ? kReplacement.substr(0, size) : old));
  }

  // A disk of 16 pages over the folder, seen by this process alone.
  bool MountSmallDisk(unsigned long flags) const {
    return mount("none", folder.c_str(), "tmpfs", flags, "size=64k") == 0;
  }

  const bool exists = std::get<0>(GetParam());
  const bool linked = std::get<1>(GetParam());
  std::string reason;
};

INSTANTIATE_TEST_SUITE_P(Targets, ReplaceFileTest,
                         testing::Combine(testing::Bool(), testing::Bool()));

TEST_P(ReplaceFileTest, KeepsPermissionsAndClearsAwayWhatACrashHasLeft) {
  const std::string path = Prepare();
  Put(".part.cnc.turnbay-save", "half");
  if (exists) fs::permissions(path, fs::perms(0640));
  EXPECT_TRUE(ReplaceFile(path, kReplacement, reason)) << reason;
  ExpectWhole(true);
  EXPECT_EQ(fs::perms(exists ? 0640 : 0644), fs::status(path).permissions());
}

TEST_P(ReplaceFileTest, RefusesWhatIsNoOrdinaryFile) {
  fs::create_symlink("/dev/null", Path("device"));
  fs::create_symlink("round", Path("round"));
  for (const char* name : {".", "device", "round", "gone/part.cnc"}) {
    EXPECT_FALSE(ReplaceFile(Path(name), kReplacement, reason)) << name;
    EXPECT_THAT(reason, HasSubstr(name));
  }
}

// One of the calls of a save fails, the first, the second and so on, until none is left to fail;
// with files without a name, whose first call finds out whether there are any, and with others.
TEST_P(ReplaceFileTest, FailsAsAWholeWhenAnyCallFails) {
  for (const bool knowsUnnamedFiles : {true, false}) {
    int failures = 0;
    for (const int n : {2, 3, 4, 5, 6}) {
      SCOPED_TRACE(testing::Message() << "call " << n << " unnamed " << knowsUnnamedFiles);
      const std::string path = Prepare();
      watch = [=, calls = 0]() mutable {
        if (++calls == 1 && !knowsUnnamedFiles) return EOPNOTSUPP;
        return calls == n ? EIO : 0;
      };
      const bool saved = ReplaceFile(path, kReplacement, reason);
      watch = {};
      ExpectWhole(saved);
      EXPECT_THAT(reason, HasSubstr(saved ? "" : std::strerror(EIO)));
      if (!saved) ++failures;
    }
    // Write, flush, give a name, rename.
    EXPECT_EQ(knowsUnnamedFiles ? 4 : 3, failures);
  }
}

TEST_P(ReplaceFileTest, KeepsTheOldFileOnAFullOrReadOnlyDisk) {
  if (unshare(CLONE_NEWNS) != 0 || mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
      !MountSmallDisk(0)) {
    GTEST_SKIP() << "a small disk can be mounted by root alone";
  }
  constexpr std::size_t kPage = 4096;
  for (const std::size_t size : {1U, 4096U, 20'000U, 60'000U}) {
    for (const std::size_t freePages : {0U, 1U, 5U, 14U}) {
      const std::string path = Prepare();
      Put("filler", std::string((16 - (exists ? 2 : 0) - freePages) * kPage, 'f'));
      const bool saved = ReplaceFile(path, kReplacement.substr(0, size), reason);
      EXPECT_EQ(size <= freePages * kPage, saved) << size << " on " << freePages;
      EXPECT_THAT(reason, HasSubstr(saved ? "" : std::strerror(ENOSPC)));
      ExpectWhole(saved, size);
    }
  }
  const std::string path = Prepare();
  EXPECT_TRUE(MountSmallDisk(MS_REMOUNT | MS_RDONLY));
  EXPECT_FALSE(ReplaceFile(path, kReplacement, reason));
  EXPECT_THAT(reason, HasSubstr(std::strerror(EROFS)));
  ExpectWhole(false);
  umount2(folder.c_str(), MNT_DETACH);
}

TEST_P(ReplaceFileTest, LeavesOldOrNewWhenKilledAtAnyCall) {
  prctl(PR_SET_CHILD_SUBREAPER, 1);
  for (const int n : {1, 2, 3, 4, 5, 6}) {
    const std::string path = Prepare();
    if (fork() == 0) {
      watch = [n, calls = 0, self = getpid()]() mutable {
        return ++calls == n ? kill(self, SIGKILL) : 0;
      };
      _exit(ReplaceFile(path, kReplacement, reason) ? 0 : 1);
    }
    // What it has started goes on.
    while (wait(nullptr) > 0) continue;
    ExpectWhole(Bytes("part.cnc") == kReplacement);
  }
}

}  // namespace

#include <cerrno>
#include <csignal>
#include <functional>
#include <gmock/gmock.h>
#include <sched.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <tuple>
#include <unistd.h>

#include "platform/host/files.h"
#include "platform/posix/error_words.h"
#include "platform/posix/save_check.h"
#include "tests/platform/qt/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

// Asked before each system call of a save: 0 lets it happen, an errno makes it fail.
std::function<int(long number)> watch;
bool knowsUnnamedFiles = true;

template <class... Arguments>
long Call(long number, Arguments... arguments) {
  const int error = watch ? watch(number) : 0;
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
  if (!knowsUnnamedFiles && std::string_view(path) == "/proc/self/fd") return -1;
  return static_cast<int>(Call(SYS_access, path, mode));
}

int faccessat(int folder, const char* path, int mode, int /*flags*/) noexcept {
  return static_cast<int>(Call(SYS_faccessat, folder, path, mode));
}

ssize_t pwrite(int file, const void* bytes, size_t size, off_t offset) {
  return Call(SYS_pwrite64, file, bytes, size, offset);
}

int ftruncate(int file, off_t size) noexcept {
  return static_cast<int>(Call(SYS_ftruncate, file, size));
}

int fsync(int file) {
  return static_cast<int>(Call(SYS_fsync, file));
}

int flock(int file, int operation) noexcept {
  return static_cast<int>(Call(SYS_flock, file, operation));
}

int fchown(int file, uid_t owner, gid_t group) noexcept {
  return static_cast<int>(Call(SYS_fchown, file, owner, group));
}

int fchmod(int file, mode_t mode) noexcept {
  return static_cast<int>(Call(SYS_fchmod, file, mode));
}

ssize_t listxattr(const char* path, char* names, size_t size) noexcept {
  return Call(SYS_listxattr, path, names, size);
}

ssize_t getxattr(const char* path, const char* name, void* value, size_t size) noexcept {
  return Call(SYS_getxattr, path, name, value, size);
}

int setxattr(const char* path, const char* name, const void* value, size_t size,
             int flags) noexcept {
  return static_cast<int>(Call(SYS_setxattr, path, name, value, size, flags));
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
  return static_cast<int>(Call(SYS_linkat, fromFolder, from, toFolder, to, flags));
}

int rename(const char* from, const char* to) noexcept {
  return static_cast<int>(Call(SYS_rename, from, to));
}

int unlink(const char* path) noexcept {
  return static_cast<int>(Call(SYS_unlink, path));
}

pid_t fork() noexcept {
  if (watch && (errno = watch(SYS_fork)) != 0) return -1;
  return _Fork();
}

}  // extern "C"
// NOLINTEND(readability-inconsistent-declaration-parameter-name)

namespace {

const std::string kOld(8000, 'o');
const std::string kReplacement = std::string(59'998, 'n') + std::string("\0\xFF", 2);

// Without an old file, and with one of one name or two; by its name and through a link.
class ReplaceFileTest : public TemporaryFolderTest,
                        public testing::WithParamInterface<std::tuple<int, bool>> {
 protected:
  ~ReplaceFileTest() override {
    watch = {};
    knowsUnnamedFiles = true;
  }

  // Empties the folder, puts the old file there and returns the path to save to.
  std::string Prepare() {
    reason.clear();
    for (const auto& entry : fs::directory_iterator(folder)) fs::remove(entry);
    if (exists) {
      const std::string old = Put("part.cnc", kOld);
      fs::permissions(old, fs::perms(0640));
      EXPECT_EQ(0, chown(old.c_str(), kOwner, kGroup));
      hasAttributes = setxattr(old.c_str(), kNote, "1 \xFF", 3, 0) == 0 &&
                      setxattr(old.c_str(), kAccessList, kAccess.data(), kAccess.size(), 0) == 0;
    }
    if (names == 2) fs::create_hard_link(Path("part.cnc"), Path("other.cnc"));
    if (linked) fs::create_symlink("part.cnc", Path("link.cnc"));
    return Path(linked ? "link.cnc" : "part.cnc");
  }

  // The file is the new one or the old one and has what it had besides its bytes, the link is still
  // a link, and nothing else is there.
  void ExpectWhole(bool replaced, std::size_t size = kReplacement.size()) const {
    for (const auto& entry : fs::directory_iterator(folder)) {
      EXPECT_THAT(entry.path().filename(),
                  testing::AnyOf("part.cnc", "link.cnc", "other.cnc", "filler"));
    }
    EXPECT_EQ(linked, fs::is_symlink(Path("link.cnc")));
    EXPECT_EQ(exists || replaced, fs::exists(Path("part.cnc")));
    const std::string old = exists ? kOld : "";
    EXPECT_TRUE(Bytes("part.cnc") == (replaced ? kReplacement.substr(0, size) : old));
    if (!exists) return;
    struct stat status {};
    EXPECT_EQ(0, stat(Path("part.cnc").c_str(), &status));
    EXPECT_EQ(std::tuple(kOwner, kGroup, 0640U, names),
              std::tuple(status.st_uid, status.st_gid, status.st_mode & 07777U,
                         static_cast<int>(status.st_nlink)));
    if (!hasAttributes) return;
    EXPECT_EQ("1 \xFF", Attribute(kNote));
    EXPECT_EQ(kAccess, Attribute(kAccessList));
  }
  std::string Attribute(const char* name) const {
    std::string value(256, '\0');
    const ssize_t size = getxattr(Path("part.cnc").c_str(), name, value.data(), value.size());
    return value.substr(0, size > 0 ? static_cast<std::size_t>(size) : 0);
  }

  // A disk of 16 pages over the folder, seen by this process alone.
  bool MountSmallDisk(unsigned long flags) const {
    return mount("none", folder.c_str(), "tmpfs", flags, "size=64k") == 0;
  }

  static constexpr const char* kNote = "user.note";
  static constexpr const char* kAccessList = "system.posix_acl_access";
  // Version 2, and entries of tag, rights and user: owner rw-, user 7 r--, group ---, mask r--,
  // others ---.
  const std::string kAccess{
      "\2\0\0\0\1\0\6\0\xFF\xFF\xFF\xFF\2\0\4\0\7\0\0\0\4\0\0\0\xFF\xFF\xFF\xFF"
      "\x10\0\4\0\xFF\xFF\xFF\xFF\x20\0\0\0\xFF\xFF\xFF\xFF",
      44};

  const int names = std::get<0>(GetParam());
  const bool exists = names > 0;
  const bool linked = std::get<1>(GetParam());
  // For root somebody else, or another group alone.
  const unsigned kOwner = geteuid() == 0 && linked ? 12 : geteuid();
  const unsigned kGroup = geteuid() == 0 ? 12 : getegid();
  bool hasAttributes = false;
  std::string reason;
};

INSTANTIATE_TEST_SUITE_P(Targets, ReplaceFileTest,
                         testing::Combine(testing::Values(0, 1, 2), testing::Bool()));

TEST_P(ReplaceFileTest, ClearsAwayWhatACrashHasLeft) {
  if (names == 2) return;
  for (const bool unnamed : {true, false}) {
    const std::string path = Prepare();
    knowsUnnamedFiles = unnamed;
    Put(".part.cnc.turnbay-save", "half");
    EXPECT_TRUE(ReplaceFile(path, kReplacement, reason)) << reason;
    ExpectWhole(true);
    EXPECT_EQ(fs::perms(exists ? 0640 : 0644), fs::status(path).permissions());
  }
}

TEST_P(ReplaceFileTest, WhatCannotEvenBePutBackLiesBesideAndIsNotReadUntilItIsSaved) {
  if (names != 2) return;
  const std::string path = Prepare();
  const std::string place = "what it held is in \"" + Path(".part.cnc.turnbay-old\".");
  // The first time the copy is made, the second time it is there.
  for (const int good : {1, 0}) {
    watch = [good, writes = 0](long number) mutable {
      return number == SYS_pwrite64 && ++writes > good ? EIO : 0;
    };
    EXPECT_FALSE(ReplaceFile(path, kReplacement, reason));
    watch = {};
    EXPECT_THAT(reason, HasSubstr("Input/output error, and " + place));
    EXPECT_TRUE(kOld == Bytes(".part.cnc.turnbay-old"));
    EXPECT_FALSE(ReadFile(path, reason));
    EXPECT_THAT(reason, HasSubstr("it was cut off as it was saved, and " + place));
  }
  fs::remove(Path("other.cnc"));
  EXPECT_TRUE(ReplaceFile(path, kReplacement, reason)) << reason;
  EXPECT_TRUE(ReadFile(path, reason)) << reason;
}

TEST_P(ReplaceFileTest, TakesNoRightsFromTheFolder) {
  Prepare();
  const std::string path = Put("own.cnc", kOld);
  fs::permissions(path, fs::perms(0600));
  if (setxattr(folder.c_str(), "system.posix_acl_default", kAccess.data(), kAccess.size(), 0) != 0)
    GTEST_SKIP() << "no access lists here";
  EXPECT_TRUE(ReplaceFile(path, kReplacement, reason)) << reason;
  EXPECT_EQ(fs::perms(0600), fs::status(path).permissions());
  EXPECT_EQ(-1, getxattr(path.c_str(), kAccessList, nullptr, 0));
  // Nor for a list of its own, in which user 7 may write.
  std::string own = kAccess;
  own[14] = 6;
  Put("part.cnc", kOld);
  EXPECT_EQ(0, setxattr(Path("part.cnc").c_str(), kAccessList, own.data(), own.size(), 0));
  EXPECT_TRUE(ReplaceFile(Path("part.cnc"), kReplacement, reason)) << reason;
  EXPECT_EQ(own, Attribute(kAccessList));
}

TEST_P(ReplaceFileTest, RefusesWhatIsNoOrdinaryFile) {
  fs::create_symlink("/dev/null", Path("device"));
  fs::create_symlink("round", Path("round"));
  for (const auto& [name, why] : {std::pair{".", "it is a folder"},
                                  {"device", "it is no ordinary file"},
                                  {"round", "Too many levels of symbolic links"},
                                  {"gone/part.cnc", "No such file or directory"}}) {
    EXPECT_FALSE(ReplaceFile(Path(name), kReplacement, reason)) << name;
    EXPECT_EQ("The file \"" + Path(name) + "\" can't be written: " + why + '.', reason);
  }
}

TEST_P(ReplaceFileTest, ForetellsWhatWouldFail) {
  const std::string path = Prepare();
  EXPECT_EQ("", SaveTrouble(path));
  fs::create_symlink("/dev/null", Path("device"));
  const std::string longName(300, 'x');
  const std::pair<std::string, std::string> kCases[] = {
      {".", "/.\" is a folder. Type another name."},
      {"device", "can't be written: it is no ordinary file."},
      {"gone/part.cnc", "gone\" doesn't exist."},
      {"part.cnc/part.cnc", "part.cnc\" doesn't exist."},
      {longName, "can't be written: File name too long."}};
  for (const auto& [name, trouble] : kCases) {
    EXPECT_THAT(SaveTrouble(Path(name)), testing::EndsWith(trouble));
  }
  for (const int n : {1, 2}) {
    watch = [n, asked = 0](long) mutable { return ++asked == n ? EACCES : 0; };
    const std::string trouble = SaveTrouble(path);
    EXPECT_EQ(n == 1 || exists, !trouble.empty());
    const std::string name = n == 1 ? "The folder \"" + folder.string() : "The file \"" + path;
    if (!trouble.empty()) {
      EXPECT_EQ(name + "\" can't be written: Permission denied.", trouble);
    }
  }
}

// Calls of a save in all its processes.
class SharedCount {
 public:
  int& operator*() { return *count_; }

 private:
  int* count_ = static_cast<int*>(
      mmap(nullptr, sizeof(int), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
};
SharedCount calls;

// One of the calls of a save fails, the first, the second and so on, until none is left to fail;
// with files without a name and with others.
TEST_P(ReplaceFileTest, FailsAsAWholeWhenAnyCallFails) {
  std::vector<int> errors = {EIO, EINTR};
  if (std::getenv("TURNBAY_LONG_TESTS") != nullptr)
    errors = {EIO, EINTR, ENOSPC, EDQUOT, EPERM, ENOMEM};
  for (const int error : errors) {
    for (const bool unnamed : {true, false}) {
      int failures = 0;
      for (int n = 1; *calls >= n - 1; ++n) {
        SCOPED_TRACE(testing::Message() << "call " << n << " error " << error);
        const std::string path = Prepare();
        *calls = 0;
        knowsUnnamedFiles = unnamed;
        watch = [=](long) { return ++*calls == n ? error : 0; };
        const bool saved = ReplaceFile(path, kReplacement, reason);
        watch = {};
        ExpectWhole(saved);
        EXPECT_THAT(reason, HasSubstr(saved ? "" : ErrorWords(error)));
        if (!saved) ++failures;
        if (*calls < n) break;
      }
      // Write, cut to length, flush, give a name, rename; ask for leave to change an old file; and
      // over one that stays write, cut to length, flush, drop the copy.
      const int expected = 5 + (exists ? 1 : 0) + (names == 2 ? 4 : 0) - (unnamed ? 0 : 1);
      EXPECT_TRUE(error == EINTR || failures == expected) << failures;
    }
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
      EXPECT_THAT(SaveTrouble(path), HasSubstr("has less than 64 kB of room left on its disk."));
      const bool saved = ReplaceFile(path, kReplacement.substr(0, size), reason);
      const std::size_t needed = std::max(size, names == 2 ? kOld.size() : 0);
      EXPECT_EQ(needed <= freePages * kPage, saved) << size << " on " << freePages;
      EXPECT_THAT(reason, HasSubstr(saved ? "" : ErrorWords(ENOSPC)));
      ExpectWhole(saved, size);
    }
  }
  const std::string path = Prepare();
  EXPECT_TRUE(MountSmallDisk(MS_REMOUNT | MS_RDONLY));
  EXPECT_FALSE(ReplaceFile(path, kReplacement, reason));
  for (const std::string& why : {reason, SaveTrouble(path)}) {
    EXPECT_THAT(why, HasSubstr("can't be written: Read-only file system."));
  }
  ExpectWhole(false);
  umount2(folder.c_str(), MNT_DETACH);
}

// And when what it has started, which goes on, then fails to write over the file.
TEST_P(ReplaceFileTest, LeavesOldOrNewWhenKilledAtAnyCall) {
  prctl(PR_SET_CHILD_SUBREAPER, 1);
  for (const bool fails : {false, true}) {
    for (int n = 1;; ++n) {
      const std::string path = Prepare();
      *calls = 0;
      if (fork() == 0) {
        watch = [=, self = getpid(), left = fails ? 1 : 0](long number) mutable {
          if (++*calls == n) kill(self, SIGKILL);
          return number == SYS_pwrite64 && getpid() != self && left-- > 0 ? EIO : 0;
        };
        _exit(ReplaceFile(path, kReplacement, reason) ? 0 : 1);
      }
      while (wait(nullptr) > 0) continue;
      ExpectWhole(Bytes("part.cnc") == kReplacement);
      if (*calls < n) break;
    }
  }
}

// The helping process alone is killed, in the midst of writing over the file.
TEST_P(ReplaceFileTest, PutsBackWhatAKilledHelperHasLeft) {
  const std::string path = Prepare();
  watch = [self = getpid(), done = 0](long number) mutable {
    const bool isMiddle = getpid() != self && number == SYS_ftruncate && ++done == 1;
    return isMiddle ? kill(getpid(), SIGKILL) : 0;
  };
  const bool saved = ReplaceFile(path, kReplacement, reason);
  watch = {};
  EXPECT_EQ(names != 2, saved) << "only such a file is written over";
  ExpectWhole(saved);
}

}  // namespace

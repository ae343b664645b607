#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <gmock/gmock.h>
#include <random>
#include <sched.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "platform/files.h"
#include "tests/platform/qt/system_calls.h"
#include "tests/platform/qt/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

const std::string kOld(8000, 'o');
const std::string kReplacement = std::string(59'998, 'n') + std::string("\0\xFF", 2);

enum class Target { kMissing, kExisting, kBehindLink };
constexpr Target kTargets[] = {Target::kMissing, Target::kExisting, Target::kBehindLink};

class ReplaceFileTest : public TemporaryFolderTest {
 protected:
  // Empties the folder, puts the old file there and returns the path to save to.
  std::string Prepare(Target target) const {
    for (const std::string& name : Names()) fs::remove(Path(name));
    if (target == Target::kMissing) return Path("part.cnc");
    Put("part.cnc", kOld);
    if (target == Target::kExisting) return Path("part.cnc");
    fs::create_symlink("part.cnc", Path("link.cnc"));
    return Path("link.cnc");
  }

  // The file is the new one or the old one, the link is still a link, and nothing else is there.
  void ExpectWhole(Target target, bool replaced, const std::string& bytes = kReplacement) const {
    std::set<std::string> names;
    if (replaced || target != Target::kMissing) names.insert("part.cnc");
    if (target == Target::kBehindLink) {
      names.insert("link.cnc");
      EXPECT_EQ("part.cnc", fs::read_symlink(Path("link.cnc")));
    }
    std::set<std::string> found = Names();
    found.erase("filler");
    EXPECT_EQ(names, found);
    if (!names.empty()) {
      EXPECT_TRUE(Bytes("part.cnc") == (replaced ? bytes : kOld)) << Bytes("part.cnc").size();
    }
  }

  // Saves in a process of its own, runs `meanwhile` with its id, and waits until it and all that
  // it has started are gone. True when it was killed.
  template <class BeforeSave, class Meanwhile>
  static bool SaveInProcess(const std::string& path, BeforeSave beforeSave, Meanwhile meanwhile) {
    prctl(PR_SET_CHILD_SUBREAPER, 1);
    const pid_t saver = fork();
    if (saver == 0) {
      beforeSave();
      std::string reason;
      _exit(ReplaceFile(path, kReplacement, reason) ? 0 : 1);
    }
    meanwhile(saver);
    bool killed = false;
    int status = 0;
    for (pid_t ended = waitpid(-1, &status, 0); ended > 0; ended = waitpid(-1, &status, 0)) {
      if (ended == saver) killed = WIFSIGNALED(status);
    }
    return killed;
  }
};

// A disk of 16 pages over a folder, seen by this process alone.
class SmallDisk {
 public:
  explicit SmallDisk(fs::path folder) : folder_(std::move(folder)) {
    mounted_ = unshare(CLONE_NEWNS) == 0 &&
               mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
               mount("none", folder_.c_str(), "tmpfs", 0, "size=64k") == 0;
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;
  ~SmallDisk() {
    if (mounted_) umount2(folder_.c_str(), MNT_DETACH);
  }

  bool IsMounted() const { return mounted_; }
  bool Remount(unsigned long flags) const {
    return mount("none", folder_.c_str(), "tmpfs", MS_REMOUNT | flags, "size=64k") == 0;
  }

 private:
  fs::path folder_;
  bool mounted_ = false;
};

TEST_F(ReplaceFileTest, KeepsPermissionsAndLinks) {
  for (const mode_t mode : {0600U, 0640U, 0666U, 0755U}) {
    for (const Target target : {Target::kExisting, Target::kBehindLink}) {
      const std::string path = Prepare(target);
      chmod(Path("part.cnc").c_str(), mode);
      std::string reason;
      EXPECT_TRUE(ReplaceFile(path, kReplacement, reason)) << reason;
      ExpectWhole(target, true);
      struct stat now {};
      stat(Path("part.cnc").c_str(), &now);
      EXPECT_EQ(mode, now.st_mode & 07777);
    }
  }
}

TEST_F(ReplaceFileTest, MakesNewFilesAlsoBehindADanglingChainOfLinks) {
  const mode_t umaskBefore = umask(027);
  fs::create_directory(Path("programs"));
  fs::create_symlink("programs/second", Path("first"));
  fs::create_symlink("part.cnc", Path("programs/second"));
  std::string reason;
  EXPECT_TRUE(ReplaceFile(Path("first"), "", reason)) << reason;
  umask(umaskBefore);
  struct stat now {};
  ASSERT_EQ(0, lstat(Path("programs/part.cnc").c_str(), &now));
  EXPECT_EQ(S_IFREG | 0640U, now.st_mode);
  EXPECT_EQ(0, now.st_size);
}

TEST_F(ReplaceFileTest, RefusesWhatIsNoOrdinaryFile) {
  fs::create_directory(Path("folder"));
  fs::create_symlink("/dev/null", Path("device"));
  fs::create_symlink("round", Path("round"));
  for (const char* name : {"folder", "device", "round", "missing/part.cnc", ""}) {
    std::string reason;
    EXPECT_FALSE(ReplaceFile(*name == '\0' ? "" : Path(name), kReplacement, reason)) << name;
    EXPECT_THAT(reason, HasSubstr(name));
  }
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
  EXPECT_THAT(Names(), testing::ElementsAre("device", "folder", "round"));
}

TEST_F(ReplaceFileTest, ObeysWriteProtection) {
  constexpr uid_t kNobody = 65'534;
  for (const auto& [folderMode, fileMode] : {std::pair(0777U, 0444U), std::pair(0555U, 0666U)}) {
    const std::string path = Prepare(Target::kExisting);
    chmod(path.c_str(), fileMode);
    chmod(folder.c_str(), folderMode);
    const bool isRoot = geteuid() == 0;
    if (isRoot) {
      ASSERT_EQ(0, seteuid(kNobody));
    }
    std::string reason;
    EXPECT_FALSE(ReplaceFile(path, kReplacement, reason));
    if (isRoot) {
      ASSERT_EQ(0, seteuid(0));
    }
    chmod(folder.c_str(), 0700);
    EXPECT_THAT(reason, HasSubstr(std::strerror(EACCES)));
    ExpectWhole(Target::kExisting, false);
  }
}

// One of the calls of a save fails, the first, the second and so on, until none is left to fail;
// on file systems that know files without a name, and on others.
TEST_F(ReplaceFileTest, FailsAsAWholeWhenAnyCallFails) {
  constexpr int kMoreThanAllCalls = 20;
  for (const bool knowsUnnamedFiles : {true, false}) {
    for (const Target target : kTargets) {
      for (const int error : {ENOSPC, EIO}) {
        int failures = 0;
        for (int n = 1; n < kMoreThanAllCalls; ++n) {
          SCOPED_TRACE(testing::Message() << "call " << n << " unnamed " << knowsUnnamedFiles);
          const std::string path = Prepare(target);
          int calls = 0;
          SystemCalls::Watch([&] {
            ++calls;
            if (calls == 1 && !knowsUnnamedFiles) return EOPNOTSUPP;
            return calls == n ? error : 0;
          });
          std::string reason;
          const bool saved = ReplaceFile(path, kReplacement, reason);
          SystemCalls::Watch({});
          ExpectWhole(target, saved);
          EXPECT_EQ(saved, reason.empty());
          if (saved) continue;
          ++failures;
          EXPECT_THAT(reason, HasSubstr(std::strerror(error)));
        }
        // Write, flush, rename, and what makes the name.
        EXPECT_EQ(4, failures);
      }
    }
  }
}

TEST_F(ReplaceFileTest, KeepsTheOldFileOnAFullDisk) {
  const SmallDisk disk(folder);
  if (!disk.IsMounted()) GTEST_SKIP() << "a small disk can be mounted by root alone";
  constexpr std::size_t kPage = 4096;
  for (const Target target : kTargets) {
    for (const std::size_t size : {1U, 4096U, 20'000U, 60'000U}) {
      for (const std::size_t freePages : {0U, 1U, 5U, 14U}) {
        const std::string path = Prepare(target);
        const std::size_t usedPages = target == Target::kMissing ? 0 : 2;
        Put("filler", std::string((16 - usedPages - freePages) * kPage, 'f'));
        const std::string bytes = kReplacement.substr(0, size);
        std::string reason;
        const bool saved = ReplaceFile(path, bytes, reason);
        EXPECT_EQ(size <= freePages * kPage, saved) << size << " on " << freePages;
        if (!saved) {
          EXPECT_THAT(reason, HasSubstr(std::strerror(ENOSPC)));
        }
        ExpectWhole(target, saved, bytes);
      }
    }
  }
}

TEST_F(ReplaceFileTest, KeepsTheOldFileOnAReadOnlyDisk) {
  const SmallDisk disk(folder);
  if (!disk.IsMounted()) GTEST_SKIP() << "a disk can be mounted by root alone";
  for (const Target target : kTargets) {
    const std::string path = Prepare(target);
    ASSERT_TRUE(disk.Remount(MS_RDONLY));
    std::string reason;
    EXPECT_FALSE(ReplaceFile(path, kReplacement, reason));
    EXPECT_THAT(reason, HasSubstr(std::strerror(EROFS)));
    ExpectWhole(target, false);
    ASSERT_TRUE(disk.Remount(0));
  }
}

TEST_F(ReplaceFileTest, LeavesOldOrNewWhenKilledAtAnyCall) {
  for (const Target target : kTargets) {
    bool killed = true;
    int replaced = 0;
    for (int n = 1; killed; ++n) {
      const std::string path = Prepare(target);
      killed = SaveInProcess(
          path,
          [n] {
            SystemCalls::Watch([n, calls = 0, saver = getpid()]() mutable {
              if (++calls == n) kill(saver, SIGKILL);
              return 0;
            });
          },
          [](pid_t) {});
      const bool isNew = Bytes("part.cnc") == kReplacement;
      ExpectWhole(target, isNew);
      if (killed && isNew) ++replaced;
    }
    // Killed while the name changed: that still goes through.
    EXPECT_EQ(2, replaced);
  }
}

TEST_F(ReplaceFileTest, LeavesOldOrNewWhenKilledAtAnyMoment) {
  const int kills = std::getenv("TURNBAY_LONG_TESTS") != nullptr ? 300 : 20;
  const auto nothing = [] {};
  const auto start = std::chrono::steady_clock::now();
  SaveInProcess(Prepare(Target::kExisting), nothing, [](pid_t) {});
  const auto whole = std::chrono::duration_cast<std::chrono::microseconds>(
      std::chrono::steady_clock::now() - start);
  std::mt19937 random(4711);
  std::uniform_int_distribution<std::chrono::microseconds::rep> moment(0, whole.count());
  for (int i = 0; i < kills; ++i) {
    const Target target = kTargets[i % 3];
    const std::string path = Prepare(target);
    SaveInProcess(path, nothing, [&](pid_t saver) {
      std::this_thread::sleep_for(std::chrono::microseconds(moment(random)));
      kill(saver, SIGKILL);
    });
    ExpectWhole(target, Bytes("part.cnc") == kReplacement);
  }
}

TEST_F(ReplaceFileTest, ClearsAwayWhatACrashHasLeft) {
  const std::string path = Prepare(Target::kExisting);
  Put(".part.cnc.turnbay-save", "half");
  Put(".other.cnc.turnbay-save", "the user's");
  std::string reason;
  EXPECT_TRUE(ReplaceFile(path, kReplacement, reason)) << reason;
  EXPECT_THAT(Names(), testing::ElementsAre(".other.cnc.turnbay-save", "part.cnc"));
}

TEST_F(ReplaceFileTest, TakesTheLongestName) {
  const std::string name(255, 'x');
  std::string reason;
  EXPECT_TRUE(ReplaceFile(Path(name), kReplacement, reason)) << reason;
  EXPECT_THAT(Names(), testing::ElementsAre(name));
}

}  // namespace

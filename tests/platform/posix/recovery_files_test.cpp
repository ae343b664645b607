#include "platform/host/recovery_files.h"

#include <csignal>
#include <cstdlib>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/platform/qt/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using Texts = std::vector<std::string>;

class RecoveryFilesTest : public TemporaryFolderTest {
 protected:
  void SetUp() override {
    TemporaryFolderTest::SetUp();
    // A home that nobody has used yet.
    setenv("HOME", folder.c_str(), 1);
    unsetenv("XDG_STATE_HOME");
    folder /= ".local/state";
  }
  void TearDown() override {
    RemoveRecoveryFile();
    folder = folder.parent_path().parent_path();
    setenv("HOME", home_.c_str(), 1);
    TemporaryFolderTest::TearDown();
  }

  // In a program of its own, which is then kept running, or killed.
  static pid_t Write(const std::string& bytes, bool killed) {
    int ready[2];
    EXPECT_EQ(0, pipe(ready));
    const pid_t program = fork();
    if (program == 0) {
      const bool written = WriteRecoveryFile("older") && WriteRecoveryFile(bytes);
      EXPECT_EQ(1, write(ready[1], written ? "y" : "n", 1));
      for (;;) pause();
    }
    char written = 'n';
    EXPECT_EQ(1, read(ready[0], &written, 1));
    EXPECT_EQ('y', written);
    close(ready[0]);
    close(ready[1]);
    if (killed) Kill(program);
    return program;
  }
  static void Kill(pid_t program) {
    kill(program, SIGKILL);
    waitpid(program, nullptr, 0);
  }
  static Texts Visit(RecoveryFate fate) {
    Texts found;
    VisitEndedRecoveryFiles([&](const std::string& bytes) {
      found.push_back(bytes);
      return fate;
    });
    return found;
  }
  std::size_t Files() const {
    const fs::directory_iterator files(folder / "turnbay");
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
  }

 private:
  const std::string home_ = std::getenv("HOME");
};

TEST_F(RecoveryFilesTest, AreVisitedWhenTheirProgramHasEnded) {
  EXPECT_THAT(Visit(RecoveryFate::Goes), ElementsAre());
  Write("first", true);
  const pid_t running = Write("second", false);
  Write("third", true);
  EXPECT_EQ(fs::perms::owner_all, fs::status(folder / "turnbay").permissions());
  EXPECT_THAT(Visit(RecoveryFate::Stays), ElementsAre("first", "third"));
  EXPECT_THAT(Visit(RecoveryFate::Goes), ElementsAre("first", "third"));
  EXPECT_THAT(Visit(RecoveryFate::Goes), ElementsAre());
  Kill(running);
  EXPECT_THAT(Visit(RecoveryFate::Goes), ElementsAre("second"));
  EXPECT_EQ(0U, Files()) << "neither they nor their locks";
}

TEST_F(RecoveryFilesTest, AreVisitedByOneProgramAtATime) {
  Write("first", true);
  VisitEndedRecoveryFiles([](const std::string&) {
    EXPECT_THAT(Visit(RecoveryFate::Goes), ElementsAre()) << "while the user is being asked";
    return RecoveryFate::Stays;
  });
  Write("second", true);
  EXPECT_TRUE(WriteRecoveryFile("own"));
  EXPECT_THAT(Visit(RecoveryFate::BecomesOwn), ElementsAre("first", "second"));
  EXPECT_EQ(2U, Files()) << "the last one, and its lock";
  EXPECT_TRUE(WriteRecoveryFile("newer"));
  EXPECT_EQ(2U, Files());
  EXPECT_THAT(Visit(RecoveryFate::Goes), ElementsAre());
  RemoveRecoveryFile();
  RemoveRecoveryFile();
  EXPECT_EQ(0U, Files());
}

TEST_F(RecoveryFilesTest, WhatIsInTheWayIsNoObstacle) {
  fs::create_directories(folder);
  Put("turnbay", "a file");
  EXPECT_FALSE(WriteRecoveryFile("x"));
  EXPECT_THAT(Visit(RecoveryFate::Goes), ElementsAre());
  fs::remove(folder / "turnbay");
  EXPECT_TRUE(WriteRecoveryFile("x"));
  // The user empties the folder.
  fs::remove_all(folder / "turnbay");
  EXPECT_TRUE(WriteRecoveryFile("y"));
  RemoveRecoveryFile();
  // A program was killed before its first write; a file can't be read; somebody else's files.
  Put("turnbay/1-2.lock", "");
  mkfifo(Path("turnbay/3-4.recovery").c_str(), 0600);
  Put("turnbay/notes.txt", "mine");
  EXPECT_THAT(Visit(RecoveryFate::Goes), ElementsAre());
  EXPECT_FALSE(fs::exists(folder / "turnbay/1-2.lock"));
  EXPECT_TRUE(fs::exists(folder / "turnbay/3-4.recovery"));
  EXPECT_EQ("mine", Bytes("turnbay/notes.txt"));
}

}  // namespace

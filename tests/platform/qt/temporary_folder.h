#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

// A test with an empty folder of its own, which goes with all that is in it.
class TemporaryFolderTest : public testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = testing::TempDir() + "turnbay.XXXXXX";
    ASSERT_NE(nullptr, mkdtemp(pattern.data()));
    folder = pattern;
  }
  void TearDown() override { std::filesystem::remove_all(folder); }

  std::string Path(const std::string& name) const { return folder / name; }
  std::string Put(const std::string& name, const std::string& bytes) const {
    std::ofstream(folder / name, std::ios::binary) << bytes;
    return Path(name);
  }
  std::string Bytes(const std::string& name) const {
    std::ifstream file(folder / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  std::filesystem::path folder;
};

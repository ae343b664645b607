#pragma once

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>

// Holds a table as users meet it against tests/data/golden/<name>.txt, whole; GoogleTest shows a
// difference line by line. With TURNBAY_WRITE_GOLDEN=1 in the environment the file is written anew
// instead, deliberately: what git then shows as changed is what changes for users.
inline void ExpectGolden(const std::string& name, const std::string& text) {
  const std::string path = std::string(TURNBAY_GOLDEN "/") + name + ".txt";
  if (std::getenv("TURNBAY_WRITE_GOLDEN") != nullptr) {
    std::ofstream(path, std::ios::binary) << text;
  }
  std::ifstream file(path, std::ios::binary);
  std::ostringstream kept;
  kept << file.rdbuf();
  EXPECT_EQ(kept.str(), text) << path;
}

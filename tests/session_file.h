#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "platform/numbers.h"
#include "platform/text.h"

inline int Number(std::string_view word) {
  return static_cast<int>(ParseNumber(word).value_or(0));
}

// " / " is a line end, and there are "\r", "\n", "\t" and "\xE4"; "\{9 G}" is "GGGGGGGGG".
inline std::string Unquoted(std::string_view text) {
  std::string bytes;
  while (!text.empty()) {
    std::size_t taken = 1;
    if (text.starts_with(" / ")) {
      bytes += kLineEnd;
      taken = 3;
    } else if (text.starts_with("\\x")) {
      taken = 4;
      constexpr std::string_view kDigits = "0123456789ABCDEF";
      bytes += static_cast<char>(kDigits.find(text[2]) * 16 + kDigits.find(text[3]));
    } else if (text.starts_with("\\{")) {
      taken = text.find('}') + 1;
      const std::size_t blank = text.find(' ');
      const std::string item = Unquoted(text.substr(blank + 1, taken - blank - 2));
      for (int i = Number(text.substr(2, blank - 2)); i > 0; --i) bytes += item;
    } else if (text.front() == '\\') {
      taken = 2;
      bytes += text[1] == 'r' ? '\r' : text[1] == 'n' ? '\n' : '\t';
    } else {
      bytes += text.front();
    }
    text.remove_prefix(taken);
  }
  return bytes;
}

// A transcript: a row for each thing that a user does, and below it, set in, what is then seen.
// Rows that begin with # are remarks. With TURNBAY_WRITE_GOLDEN=1 in the environment what is seen
// is written anew, deliberately: what git then shows as changed is what changes for users.
class SessionFile {
 public:
  explicit SessionFile(std::string path) : path_(std::move(path)) {
    std::ifstream file(path_, std::ios::binary);
    int number = 0;
    for (std::string line; std::getline(file, line);) {
      ++number;
      if (line.starts_with("  ") && !rows_.empty()) {
        rows_.back().kept += line + '\n';
      } else {
        rows_.push_back({number, line, {}});
      }
    }
  }

  // The next thing to do, empty behind the last one.
  std::string Next() {
    while (++now_ < rows_.size()) {
      const std::string& text = rows_[now_].text;
      if (!text.empty() && text.front() != '#') return text;
    }
    if (Writes()) Write();
    return {};
  }
  // Whether what comes next begins with this word.
  bool ComesNext(const std::string& word) const {
    return now_ + 1 < rows_.size() && rows_[now_ + 1].text.starts_with(word + ' ');
  }
  void Hold(const std::vector<std::string>& seen) {
    std::string now;
    for (const std::string& line : seen) {
      now += "  " + line.substr(0, line.find_last_not_of(' ') + 1) + '\n';
    }
    Row& row = rows_[now_];
    if (Writes()) {
      row.kept = now;
    } else if (row.kept != now) {
      ADD_FAILURE_AT(path_.c_str(), row.number) << row.text << "\nis kept with\n"
                                                << row.kept << "and is now seen with\n"
                                                << now;
    }
  }
  // Where it stands, for a failure.
  std::string Place() const {
    return now_ < rows_.size()
               ? path_ + ':' + std::to_string(rows_[now_].number) + ": " + rows_[now_].text
               : path_;
  }

  // Those of a folder, without their ending.
  static std::vector<std::string> NamesIn(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
      names.push_back(file.path().stem());
    }
    return names;
  }

 private:
  struct Row {
    int number;
    std::string text;
    std::string kept;
  };

  static bool Writes() { return std::getenv("TURNBAY_WRITE_GOLDEN") != nullptr; }
  void Write() const {
    std::ofstream file(path_, std::ios::binary);
    for (const Row& row : rows_) file << row.text << '\n' << row.kept;
  }

  std::string path_;
  std::vector<Row> rows_;
  std::size_t now_ = static_cast<std::size_t>(-1);
};

#pragma once

#include <string>
#include <string_view>
#include <vector>

// Helpers for program text: single bytes, the blank (code 32) as the one separator.

// Raises a to z; every other byte stays.
constexpr char ToUpper(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// Without the blanks at both ends. A tab is no blank.
constexpr std::string_view Trim(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

// The parts between separators, empty ones included; one empty part for an empty text.
std::vector<std::string_view> Split(std::string_view text, std::string_view separator);

constexpr std::string_view kLineEnd = "\r\n";

// The same text with every lone LF or CR made CR LF.
std::string WithCrLf(std::string_view text);

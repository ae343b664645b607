#pragma once

#include <optional>
#include <string>
#include <string_view>

// Files by path. A path is UTF-8, may use "\" as well as "/", and is then found without regard to
// case. On failure `reason` says why in words that a user knows, with the file's name.

// The folder of the program file, which holds tools, sounds, samples and the help. No separator at
// its end.
std::string ApplicationFolder();

// All bytes of a file.
std::optional<std::string> ReadFile(const std::string& path, std::string& reason);

// Replaces a file as a whole or not at all: after a failure the old file is as it was.
bool ReplaceFile(const std::string& path, std::string_view bytes, std::string& reason);

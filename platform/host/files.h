#pragma once

#include <optional>
#include <string>
#include <string_view>

// Files by path. A path is UTF-8 and taken as it is: "\" is a letter of a name, and "Part.cnc" and
// "part.cnc" are two files. On failure `reason` says why in words that a user knows, with the
// file's name.

// The folder that holds tools, sounds, samples and the help: in a build tree that of the program
// file, else the installed one or the user's own copy of it. No separator at its end.
std::string ApplicationFolder();

// The path of an asset as this system spells it, for paths that the program itself puts together. A
// "\" in it divides folders unless a file or folder is so named, and what isn't there is found
// without regard to case.
std::string AssetPath(const std::string& path);

// The largest file that is read, in bytes; far beyond any program.
constexpr int kMaxFileSize = 64 * 1024 * 1024;

// All bytes of a file.
std::optional<std::string> ReadFile(const std::string& path, std::string& reason);

// All bytes of standard input, to its end, within the same limit.
std::optional<std::string> ReadStandardInput(std::string& reason);

// Replaces a file as a whole or not at all, even if the program is killed in the middle: after a
// failure the old file is as it was. Owner, group, mode, access list, extended attributes and other
// names of the file stay; where a new file can't have them the old one is written over, from a copy
// that lies beside it meanwhile. Through a link the file that it leads to is replaced, and the link
// stays.
bool ReplaceFile(const std::string& path, std::string_view bytes, std::string& reason);

#pragma once

#include <filesystem>
#include <string>

// The files that take part in a save.

// Where a chain of links ends, whether there is a file or not; empty when it goes round.
std::filesystem::path FollowLinks(std::filesystem::path path);

std::string FolderOf(const std::filesystem::path& path);

// Beside the file, hidden, and always the same for one file, so that the next save clears away what
// a crash has left: the new file until it is whole, and what the old one held while it is written
// over. The latter is there at no other time.
std::filesystem::path TemporaryName(const std::filesystem::path& path);
std::filesystem::path SafetyCopyName(const std::filesystem::path& path);

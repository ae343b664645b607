#pragma once

#include <string>
#include <sys/stat.h>

// Gives a fresh file all that an old one has besides its bytes: owner, group, mode, access list and
// extended attributes. False when something of it can't be given. `name` is a path to `file`.
bool MakeAlike(int file, const std::string& name, const std::string& oldPath,
               const struct stat& old);

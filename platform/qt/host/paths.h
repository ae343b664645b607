#pragma once

#include <string>

// The path as this system spells it. A path without "\" is taken as it is; in one with it, "\"
// counts as "/", and where no such file exists, a name that differs in case alone stands for it.
std::string ResolvePath(const std::string& path);

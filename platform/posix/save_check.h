#pragma once

#include <string>

// Why ReplaceFile would fail with this file, as far as that can be told before: in words that a
// user knows, with the name of what is in the way. Empty when nothing is. Asks for more room than a
// program ever takes.
std::string SaveTrouble(const std::string& path);

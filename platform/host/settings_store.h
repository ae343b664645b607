#pragma once

#include <string>
#include <string_view>

// The per-user store: application, section, key, text value. Texts are UTF-8.

// The stored text, or `defaultText` when the key is absent.
std::string GetSetting(std::string_view application, std::string_view section, std::string_view key,
                       std::string_view defaultText = "");

// Creates or replaces the key; it is in the store when the call returns. Where the store can't be
// written, it is remembered until the program ends.
void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                 std::string_view value);

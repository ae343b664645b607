#pragma once

#include <optional>
#include <string>
#include <string_view>

// The text of a settings store: lines "key=value" below lines "[section]", as Qt writes INI files,
// so that stores of QSettings go on working. Texts are UTF-8; names of sections and keys are
// letters and digits. Whatever the text holds besides stays as it is.

// The value of a key; empty when the key is absent. Where it stands twice the last one counts.
std::optional<std::string> FindSetting(std::string_view store, std::string_view section,
                                       std::string_view key);

// The text of the store with this value of the key instead of, or besides, what it holds.
std::string WithSetting(std::string_view store, std::string_view section, std::string_view key,
                        std::string_view value);

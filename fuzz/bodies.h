#pragma once

#include <string_view>

// What the fuzz targets do with one input. A broken promise ends the process, as a sanitizer does.
namespace Fuzz {

// Bytes of a program file: reformats, checks and plays it.
void Program(std::string_view bytes);

// One line a value, in the order of the settings' rows: loads them.
void Settings(std::string_view values);

// A settings store, the byte 1, and a value: reads the store and writes the value into it.
void SettingsText(std::string_view bytes);

// Bytes of a recovery file: reads it, opens what is found behind its first line, and keeps that.
void Recovery(std::string_view bytes);

// A tool list, the byte 1, and a description file: reads both, changes the tool, writes the list.
void ToolFiles(std::string_view files);

}  // namespace Fuzz

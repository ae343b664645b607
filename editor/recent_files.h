#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The list of recent files: five paths in the settings store, keys "0" (the newest) to "4", of
// which the menu shows the first four. Key "0" is the only place that holds the path of the current
// document.
namespace frmMain {

// The path of a key, empty when it was never written.
std::string RecentFilePath(std::int16_t index);

// Index -1: puts `filePath` on top. Another index: moves that key to the top; `filePath` isn't
// used. Then rebuilds the menu. A path that is already listed gets a second entry.
void UpdateRecentFiles(const std::string& filePath, std::int16_t index);

// Puts a file on top that may have been pushed down by a second window, which shares the list.
void BringToTop(const std::string& filePath);

// Brings the paths into the entries of mnuFileRecentFiles.
void BuildRecentFilesMenu();

// The part behind the last "/", or the whole path.
std::string GetFileName(std::string_view filePath);

}  // namespace frmMain

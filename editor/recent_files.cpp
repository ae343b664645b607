#include "editor/recent_files.h"

#include <cstddef>

#include "mainwindow/control_surface.h"
#include "platform/host/settings_store.h"
#include "platform/numbers.h"
#include "settings/settings.h"

namespace frmMain {

namespace {

using GlobalVariables::kApplication;

constexpr std::string_view kSection = "RecentFilePaths";

void SaveRecentFilePath(int index, const std::string& path) {
  SaveSetting(kApplication, kSection, DecimalText(index), path);
}

// Makes room at key "0": keys "0" to `count` - 1 move down by one.
void ShiftDown(int count) {
  for (int i = count - 1; i >= 0; --i) {
    SaveRecentFilePath(i + 1, RecentFilePath(static_cast<std::int16_t>(i)));
  }
}

int LoadedEntries() {
  int count = 0;
  for (const RecentFileEntry& entry : mnuFileRecentFiles) count += entry.Loaded ? 1 : 0;
  return count;
}

std::string Caption(int index, const std::string& path) {
  return '&' + DecimalText(index + 1) + "   " + GetFileName(path);
}

}  // namespace

std::string RecentFilePath(std::int16_t index) {
  return GetSetting(kApplication, kSection, DecimalText(index));
}

void UpdateRecentFiles(const std::string& filePath, std::int16_t index) {
  const std::string top = index == -1 ? filePath : RecentFilePath(index);
  const int entries = LoadedEntries();
  const bool isEmpty = entries == 1 && mnuFileRecentFiles[0].Caption.Get() == kNoRecentFiles;
  if (index != -1) {
    ShiftDown(index);
  } else if (!isEmpty) {
    ShiftDown(entries);
  }
  SaveRecentFilePath(0, top);
  BuildRecentFilesMenu();
}

void BringToTop(const std::string& filePath) {
  constexpr std::int16_t kKeys = 5;
  std::int16_t index = 0;
  while (index < kKeys && RecentFilePath(index) != filePath) ++index;
  if (index > 0) UpdateRecentFiles(filePath, index < kKeys ? index : std::int16_t{-1});
}

void BuildRecentFilesMenu() {
  RecentFileEntry& first = mnuFileRecentFiles[0];
  const std::string newest = RecentFilePath(0);
  if (newest.empty()) {
    first.Caption = std::string(kNoRecentFiles);
    first.Enabled = false;
    return;
  }
  first.Caption = Caption(0, newest);
  first.Enabled = true;
  for (std::size_t i = 1; i < mnuFileRecentFiles.size(); ++i) mnuFileRecentFiles[i].Loaded = false;
  for (std::size_t i = 1; i < mnuFileRecentFiles.size(); ++i) {
    const std::string path = RecentFilePath(static_cast<std::int16_t>(i));
    if (path.empty()) return;
    mnuFileRecentFiles[i].Caption = Caption(static_cast<int>(i), path);
    mnuFileRecentFiles[i].Loaded = true;
  }
}

std::string GetFileName(std::string_view filePath) {
  const std::size_t separator = filePath.rfind('/');
  if (separator != std::string_view::npos) filePath.remove_prefix(separator + 1);
  return std::string(filePath);
}

}  // namespace frmMain

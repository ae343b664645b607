#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/controls.h"

// The tool library is a folder of files: a bitmap and a description file for each tool, and one
// list that says which bitmap stands behind each tool number. The files are single bytes of the
// Windows-1252 code page; in memory names and texts are UTF-8.
namespace GlobalVariables {

// Tool numbers go from 0 to 20.
inline constexpr std::int16_t kToolCount = 21;

// Index is the tool number. An entry is a bitmap's bare file name, or empty. Written by GetToolList
// and by the tool library.
extern std::array<std::string, kToolCount> ToolFiles;

// True for a file name without a folder that ends in "." and three characters. Names come out of a
// file: any other one could lead out of the tool folder.
bool IsBareBitmapName(std::string_view name);

// A bitmap's description file, by name or path: the last three characters become "ini".
std::string DescriptionPath(const std::string& bitmapPath);

// Reads width and height in pixels from the description file of a bitmap. Note the order. A value
// that is absent or no number leaves its argument as it was. False, with a reason, when the file
// can't be read.
bool ReadToolSize(const std::string& bitmapPath, std::int16_t& height, std::int16_t& width,
                  std::string& reason);

// What a description file says, as text; a key that it doesn't hold is empty.
struct ToolDescription {
  std::optional<std::string> Name;
  std::optional<std::string> Width;
  std::optional<std::string> Height;
  std::optional<std::string> CuttingPoint;
};

// Empty, with a reason, when the file can't be read.
std::optional<ToolDescription> ReadToolDescription(const std::string& bitmapPath,
                                                   std::string& reason);

}  // namespace GlobalVariables

namespace frmToolSelect {

// The tool numbers that the list file names, as "Tool 0" and so on, in the order of the file. A
// list that was edited by hand may leave numbers out: ItemData tells an item's tool number, its
// position doesn't.
extern ComboBox cmbTools;

// Why GetToolList couldn't read the list; empty when it could.
extern std::string ListTrouble;

// Reads the list file into ToolFiles and fills cmbTools. A line that is no record is passed over;
// numbers that the file doesn't name keep their entries. Without a list file ToolFiles stays as it
// is and all numbers are offered. Writes ListTrouble.
void GetToolList();

// Writes all of ToolFiles to the list file. On failure `reason` says why and the file is as it was.
bool WriteToolList(std::string& reason);

void ResetToolFiles();

}  // namespace frmToolSelect

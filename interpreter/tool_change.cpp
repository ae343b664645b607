#include "interpreter/tool_change.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>

#include "interpreter/machine.h"
#include "motion/tool.h"
#include "platform/host/desktop.h"
#include "platform/host/pictures.h"
#include "platform/numbers.h"
#include "toollib/tool_files.h"
#include "toollib/tool_folder.h"

namespace ModCNC {

using GlobalVariables::kToolCount;

std::string ToolTrouble;

namespace {

bool tellsOnce = false;
// What has been told since then.
std::set<std::string> told;

constexpr const char* kAssignAnother = " Assign another bitmap to it in the tool library.";

// The file name of the tool's bitmap; empty, with a reason, when the library has none.
std::optional<std::string> BitmapName(std::string& reason) {
  if (ToolNumber < 0 || ToolNumber >= kToolCount) {
    reason = "The tool library has the numbers 0 to " + DecimalText(kToolCount - 1) +
             " only. Change the T word.";
    return std::nullopt;
  }
  const std::string& name = GlobalVariables::ToolFiles[static_cast<std::size_t>(ToolNumber)];
  if (name.empty()) {
    const std::string& trouble = frmToolSelect::ListTrouble;
    reason = (trouble.empty() ? "It has no bitmap. Assign one" : trouble + " Assign a bitmap") +
             " to it in the tool library, or change the T word.";
    return std::nullopt;
  }
  if (!GlobalVariables::IsBareBitmapName(name)) {
    reason = "Its entry in the tool list, \"" + name +
             "\", isn't the name of a bitmap in the tool folder." + kAssignAnother;
    return std::nullopt;
  }
  return name;
}

bool LoadBitmap(const std::string& name, std::string& reason) {
  const std::string path = GlobalVariables::ToolFolder() + name;
  std::int16_t height = 0;
  std::int16_t width = 0;
  if (!GlobalVariables::ReadToolSize(path, height, width, reason)) {
    reason += kAssignAnother;
    return false;
  }
  if (width <= 0 || height <= 0) {
    reason = "Its description file \"" + GlobalVariables::DescriptionPath(name) + "\" needs a " +
             (width <= 0 ? "width" : "height") + " above 0, in a line such as " +
             (width <= 0 ? "TOOLWIDTH=67." : "TOOLHEIGHT=101.");
    return false;
  }
  const auto picture = LoadPicture(path, reason);
  if (!picture) {
    reason += kAssignAnother;
    return false;
  }
  Graphics::LoadTool(*picture, width, height);
  return true;
}

}  // namespace

void ChangeTool() {
  frmToolSelect::GetToolList();
  std::string reason;
  const auto name = BitmapName(reason);
  ToolTrouble.clear();
  if (name && LoadBitmap(*name, reason)) return;
  ToolTrouble = "Tool " + DecimalText(ToolNumber) +
                " can't be loaded, so the tool stays as it was. " + reason;
  if (!tellsOnce || told.insert(ToolTrouble).second) Desktop::ShowError(ToolTrouble);
}

void TellToolTroubleOnce(bool once) {
  tellsOnce = once;
  told.clear();
}

}  // namespace ModCNC

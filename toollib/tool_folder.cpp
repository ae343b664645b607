#include "toollib/tool_folder.h"

#include "platform/host/files.h"

namespace GlobalVariables {

namespace {

std::string otherFolder;

}  // namespace

std::string ToolFolder() {
  return otherFolder.empty() ? ApplicationFolder() + "\\tools\\" : otherFolder + "\\";
}

void SetToolFolder(const std::string& folder) {
  otherFolder = folder;
}

}  // namespace GlobalVariables

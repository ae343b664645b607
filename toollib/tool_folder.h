#pragma once

#include <string>

namespace GlobalVariables {

// The folder of the tool files, with a separator at its end: "tools" of the application folder
// unless another one has been set.
std::string ToolFolder();

// An empty text brings back the application's own.
void SetToolFolder(const std::string& folder);

}  // namespace GlobalVariables

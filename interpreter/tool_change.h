#pragma once

namespace ModCNC {

// Loads the tool that stands behind ToolNumber in the tool library. When that isn't possible a
// message box tells the reason, and the tool stays as it was.
// Reads ToolNumber and the tool files; writes ToolFiles and the loaded tool.
void ChangeTool();

}  // namespace ModCNC

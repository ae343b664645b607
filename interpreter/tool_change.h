#pragma once

#include <string>

namespace ModCNC {

// Why the last ChangeTool left the tool as it was, in words for the user; empty when it loaded one.
extern std::string ToolTrouble;

// Loads the tool that stands behind ToolNumber in the tool library. When that isn't possible a
// message box tells the reason, and the tool stays as it was.
// Reads ToolNumber and the tool files; writes ToolFiles, ToolTrouble and the loaded tool.
void ChangeTool();

// True: from now on ChangeTool tells each reason once only, as a cycle may meet it in every pass.
// False: every time.
void TellToolTroubleOnce(bool once);

}  // namespace ModCNC

#pragma once

#include <cstdint>
#include <string>

// The edit of a row in place: txtDebug lies over the row, and what is typed there goes to the row
// and to the editor's text. It may be open during a run and a pause.
namespace frmMain {

// The row under edit.
extern std::int16_t EditRow;

// Opens the edit of the row under the pointer; one that is open is taken over first.
// Reads MouseRow.
void DebugWindow_DblClick();

// Enter takes the edit over, Esc drops it. The text is taken as typed.
void txtDebug_KeyUp(std::int16_t keyCode, std::int16_t shift);

// Closes an open edit, and takes over what has been typed, as Enter does, so that it isn't lost.
// Commands come through Command, which calls this.
void txtDebug_LostFocus();

// The editor's text as it would be if an open edit were taken over now.
std::string TextWithOpenEdit();

// Keeps an open edit over its row when the grid has been scrolled or resized.
void txtDebug_Follow();

void ResetRowEdit();

}  // namespace frmMain

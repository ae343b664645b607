#pragma once

#include <cstdint>

// DebugWindow lists the program row by row: it is the program store of a run, shows the row under
// execution, and holds the break points. A row is in one of four states, told by its break flag
// and by whether the run stands on it; picture and colours only display that.
namespace frmMain {

// Makes one row of each line of the editor's text. All break points go, and an open edit of a row
// is dropped. Leaves TextChanged as it is.
void FillDebugWindow();

// Brings the settings of the grid to its columns, font and lines.
void ApplyDebugWindowLayout();

// Brings them to the font, the height and the colours of every row. No run may be active.
void ApplyDebugWindowFormats();

// Marks a row as under execution. At a break point the run enters the paused state, and a run to a
// break point shows its picture. A row that isn't there is passed over, here and below.
// Writes RunToBreakpoint, TopRow and the commands.
void HighLightExecutingLine(std::int16_t lineNum);

// Returns a row to its resting state; -1 means no row.
void RemoveHighLighting(std::int16_t lineNum);

// Shows the clicked row as tool tip; in the mark column also sets or takes its break point.
// Reads MouseRow and MouseCol.
void DebugWindow_Click();

// Whether the grid has such a row.
bool HasRow(int row);

}  // namespace frmMain

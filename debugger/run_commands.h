#pragma once

#include <cstdint>

// The commands of a run. No variable holds a run's state; it is read off the buttons:
// idle: "Pause" and "Stop" closed; running: both open; paused: "Pause" closed, "Stop" open.
namespace frmMain {

// The default tool, loaded at every start of a run; its size in pixels is fixed.
inline constexpr int kDefaultToolWidth = 67;
inline constexpr int kDefaultToolHeight = 101;

// Resumes a paused run, or plays the program from its first row to its end. A run is one long call.
// A new run reformats and checks the text, and shows itself:
// RunToBreakpoint is cleared. While a run is still leaving after a Stop nothing happens.
// Yields, through the view toggle and RunProgram.
void mnuRunStart_Click();

// Enters the paused state; the move player waits at its next point.
void mnuRunPause_Click();

// Ends the run: the commands are idle at once, and the driver and the executors below leave at
// their next check. Zeroes the positions. May run twice in one run; the second time it leaves the
// commands as they are by then.
void mnuRunStop_Click();

// Inverts the Step toggle.
void mnuRunStepInto_Click();

// Starts or resumes a run that shows nothing until a break point. While running it only sets the
// flag.
void mnuRunRunToBreakpoint_Click();

void ResetRunCommands();

}  // namespace frmMain

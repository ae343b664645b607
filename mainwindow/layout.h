#pragma once

#include <cstdint>

// Where the controls of the main window stand, in pixels.
namespace frmMain {

// Places editor, grid and simulation area for the current window size and views, then makes a new,
// empty simulation surface.
// Reads ScaleWidth, ScaleHeight and what is visible; writes SimWidth and SimHeight.
void ResizeControls();

// The window has got another size or state. The main window is always maximized.
void Form_Resize();

// Lays Slider and ProgressBar over their panels, and shows them with the status bar.
void Form_Paint();

// F2 shows the simulation surface again. Sees keys before the controls do.
void Form_KeyUp(std::int16_t keyCode, std::int16_t shift);

// Flag: Slider and ProgressBar have been placed since the last resize.
extern std::int16_t OverlaysPlaced;

void ResetLayout();

}  // namespace frmMain

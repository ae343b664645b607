#pragma once

#include <cstdint>
#include <string>

#include "motion/stock_surface.h"

// The loaded tool.
namespace Graphics {

// Size of its sprite in pixels, 0 to 32,767.
extern std::int16_t ToolWidth;
extern std::int16_t ToolHeight;

// Its sprite, and the colour with which the shape of its opaque pixels cuts.
extern ToolImage ToolDC;

// Pixel of the top left corner of the sprite drawn last. Wider than a position, so that the sum of
// two positions is off the surface and not wrapped.
extern int LastToolX;
extern int LastToolY;
// Where Start puts the tool, so that the first step erases nothing.
inline constexpr int kOffSurface = -500;

// Loads a tool bitmap, of which width by height pixels count; what it doesn't cover is transparent.
// Its shape cuts in the SimBackColor of this moment. A file that can't be read is told in a message
// box; then no tool is drawn.
// Writes ToolWidth, ToolHeight and ToolDC.
void LoadTool(const std::string& path, std::int16_t width, std::int16_t height);

// The same with a picture that has been read already.
void LoadTool(const Raster& picture, std::int16_t width, std::int16_t height);

// Unloads the tool: until the next one is loaded, none is drawn.
void FreeToolDCs();

void ResetTool();

}  // namespace Graphics

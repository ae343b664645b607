#pragma once

#include <string>

#include "platform/raster.h"

// Draws the first view of the turned part, as the 3D window shows it in that size, from the shared
// state as it stands. Pixels, at least 1. False, with the reason, where there is no OpenGL.
bool DrawTurnedPart(int width, int height, Raster& picture, std::string& reason);

#pragma once

#include <optional>
#include <string>

#include "platform/raster.h"

// The largest width and height of a picture that is read, in pixels.
constexpr int kMaxPictureSide = 4096;

// Reads a bitmap file of any depth among the assets. When that fails, the result is empty and
// `reason` says why in words that a user knows, with the file's name.
std::optional<Raster> LoadPicture(const std::string& path, std::string& reason);

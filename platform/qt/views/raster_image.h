#pragma once

#include <QImage>

#include "platform/raster.h"

// Between a raster and Qt's picture; each pixel keeps its colour. In a QImage they are
// Format_RGB32. Both throw std::bad_alloc.
Raster ToRaster(const QImage& image);
QImage ToQImage(const Raster& raster);

// Copies a part of the raster to the same place of a picture of the same size.
void CopyPixels(const Raster& raster, const PixelRect& part, QImage& image);

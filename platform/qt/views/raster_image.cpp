#include "platform/qt/views/raster_image.h"

#include <new>

namespace {

// From 0x00BBGGRR, and back.
QRgb ToQRgb(Colour colour) {
  return qRgb(RedOf(colour), GreenOf(colour), BlueOf(colour));
}
Colour ToColour(QRgb pixel) {
  return Rgb(static_cast<std::uint32_t>(qRed(pixel)), static_cast<std::uint32_t>(qGreen(pixel)),
             static_cast<std::uint32_t>(qBlue(pixel)));
}

}  // namespace

Raster ToRaster(const QImage& image) {
  Raster raster(image.width(), image.height());
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) raster.SetPixel(x, y, ToColour(image.pixel(x, y)));
  }
  return raster;
}

QImage ToQImage(const Raster& raster) {
  QImage image(raster.Width(), raster.Height(), QImage::Format_RGB32);
  if (image.width() != raster.Width()) throw std::bad_alloc();
  CopyPixels(raster, raster.Area(), image);
  return image;
}

void CopyPixels(const Raster& raster, const PixelRect& part, QImage& image) {
  for (int y = part.top; y < part.bottom; ++y) {
    const Colour* from = raster.Row(y);
    auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = part.left; x < part.right; ++x) to[x] = ToQRgb(from[x]);
  }
}

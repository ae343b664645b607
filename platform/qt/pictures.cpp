#include "platform/pictures.h"

#include <QFileInfo>
#include <QImage>
#include <QImageReader>

#include "platform/qt/paths.h"

namespace {

std::string Reason(const QString& path, const QString& why) {
  return QString("The picture \"%1\" can't be read: %2.").arg(path, why).toStdString();
}

Raster ToRaster(const QImage& image) {
  Raster raster(image.width(), image.height());
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      raster.SetPixel(
          x, y,
          Rgb(static_cast<std::uint32_t>(qRed(pixel)), static_cast<std::uint32_t>(qGreen(pixel)),
              static_cast<std::uint32_t>(qBlue(pixel))));
    }
  }
  return raster;
}

}  // namespace

std::optional<Raster> LoadPicture(const std::string& path, std::string& reason) {
  const QString resolved = ResolvePath(path);
  if (!QFileInfo(resolved).isFile()) {
    reason = Reason(resolved, "there is no such file");
    return std::nullopt;
  }
  QImageReader reader(resolved);
  // Asked before decoding, so that a header can't claim a giant picture into memory.
  const QSize size = reader.size();
  if (size.isValid() && (size.width() > kMaxPictureSide || size.height() > kMaxPictureSide)) {
    reason = Reason(resolved, QString("it is larger than %1 pixels").arg(kMaxPictureSide));
    return std::nullopt;
  }
  const QImage image = reader.read();
  if (image.isNull()) {
    reason = Reason(resolved, reader.errorString());
    return std::nullopt;
  }
  return ToRaster(image);
}

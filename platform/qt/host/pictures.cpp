#include "platform/host/pictures.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

#include "platform/host/files.h"
#include "platform/qt/views/raster_image.h"

namespace {

std::string Reason(const QString& path, const QString& why) {
  return QString("The picture \"%1\" can't be read: %2.").arg(path, why).toStdString();
}

// A height below 0 stands for rows from the top down.
bool IsTooLarge(const QSize& size) {
  const auto isTooLong = [](qint64 side) {
    return side > kMaxPictureSide || -side > kMaxPictureSide;
  };
  return isTooLong(size.width()) || isTooLong(size.height());
}

}  // namespace

std::optional<Raster> LoadPicture(const std::string& path, std::string& reason) {
  const std::string asset = AssetPath(path);
  const auto bytes = ReadFile(asset, reason);
  if (!bytes) return std::nullopt;
  const QString resolved = QString::fromStdString(asset);
  // One byte more than there is: whoever reads that far misses some.
  QByteArray padded = QByteArray::fromStdString(*bytes) + '\0';
  QBuffer buffer(&padded);
  QImageReader reader(&buffer, "bmp");
  reader.setAutoDetectImageFormat(false);
  if (!reader.canRead()) {
    reason = Reason(resolved, "it is no bitmap");
    return std::nullopt;
  }
  // Asked before decoding as well, so that a header can't claim a giant picture into memory.
  const bool isTooLarge = IsTooLarge(reader.size());
  const QImage image = isTooLarge ? QImage() : reader.read();
  if (isTooLarge || IsTooLarge(image.size())) {
    reason = Reason(resolved, QString("it is larger than %1 pixels").arg(kMaxPictureSide));
    return std::nullopt;
  }
  if (image.isNull()) {
    reason = Reason(resolved, reader.errorString());
    return std::nullopt;
  }
  if (buffer.pos() == padded.size()) {
    reason = Reason(resolved, "its end is missing");
    return std::nullopt;
  }
  return ToRaster(image);
}

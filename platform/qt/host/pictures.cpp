#include "platform/host/pictures.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <bit>

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

// A number of the file's header; little-endian.
quint32 HeaderNumber(const QByteArray& bytes, qsizetype offset) {
  return offset + 4 <= bytes.size() ? qFromLittleEndian<quint32>(bytes.constData() + offset) : 0;
}

// How many bits of red, green and blue a pixel of two bytes has; 8 of any other.
std::array<int, 3> ColourBits(const QByteArray& bytes) {
  constexpr quint32 kMasks = 3;
  constexpr quint32 kOldHeader = 12;
  const quint32 depth = HeaderNumber(bytes, 28) & 0xFFFF;
  if (HeaderNumber(bytes, 14) == kOldHeader || depth != 16) return {8, 8, 8};
  if (HeaderNumber(bytes, 30) != kMasks) return {5, 5, 5};
  std::array<int, 3> bits{};
  for (qsizetype i = 0; i < 3; ++i) {
    bits.at(static_cast<std::size_t>(i)) = std::popcount(HeaderNumber(bytes, 54 + 4 * i));
  }
  return bits;
}

// The highest value of a colour is 255: Qt leaves the bits that a narrow one lacks at 0, so that
// white isn't white, and the key colour no key.
std::uint32_t Widened(std::uint32_t value, int bits) {
  for (int known = std::max(bits, 1); known < 8; known *= 2) value |= value >> known;
  return value;
}

void WidenColours(Raster& picture, std::array<int, 3> bits) {
  for (int y = 0; y < picture.Height(); ++y) {
    for (Colour* pixel = picture.Row(y); pixel != picture.Row(y) + picture.Width(); ++pixel) {
      *pixel = Rgb(Widened(RedOf(*pixel), bits[0]), Widened(GreenOf(*pixel), bits[1]),
                   Widened(BlueOf(*pixel), bits[2]));
    }
  }
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
  Raster picture = ToRaster(image);
  WidenColours(picture, ColourBits(padded));
  return picture;
}

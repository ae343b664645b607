#include "platform/host/files.h"

#include <QFile>
#include <QFileInfo>

#include "platform/qt/host/paths.h"

namespace {

// Bytes read at a time.
constexpr qint64 kPartSize = 65'536;

std::string Reason(const QString& path, const QString& why) {
  return QString("The file \"%1\" can't be read: %2.").arg(path, why).toStdString();
}

}  // namespace

std::optional<std::string> ReadFile(const std::string& path, std::string& reason) {
  const QString resolved = QString::fromStdString(ResolvePath(path));
  QFile file(resolved);
  if (QFileInfo(resolved).isDir()) {
    reason = Reason(resolved, "it is a folder");
    return std::nullopt;
  }
  if (!file.open(QIODevice::ReadOnly)) {
    reason = Reason(resolved, file.errorString());
    return std::nullopt;
  }
  // Not as large as the file claims to be: a device has no size and no end.
  QByteArray bytes;
  for (QByteArray part = file.read(kPartSize); !part.isEmpty() && bytes.size() <= kMaxFileSize;
       part = file.read(kPartSize)) {
    bytes += part;
  }
  if (file.error() != QFileDevice::NoError) {
    reason = Reason(resolved, file.errorString());
    return std::nullopt;
  }
  if (bytes.size() > kMaxFileSize) {
    reason = Reason(resolved, QString("it has more than %1 bytes").arg(kMaxFileSize));
    return std::nullopt;
  }
  return bytes.toStdString();
}

#include "platform/files.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "platform/qt/paths.h"

namespace {

std::string Reason(const char* what, const QString& path, const QString& why) {
  return QString("The file \"%1\" can't be %2: %3.").arg(path, what, why).toStdString();
}

}  // namespace

std::string ApplicationFolder() {
  return QCoreApplication::applicationDirPath().toStdString();
}

std::optional<std::string> ReadFile(const std::string& path, std::string& reason) {
  const QString resolved = ResolvePath(path);
  QFile file(resolved);
  if (QFileInfo(resolved).isDir()) {
    reason = Reason("read", resolved, "it is a folder");
    return std::nullopt;
  }
  if (!file.open(QIODevice::ReadOnly)) {
    reason = Reason("read", resolved, file.errorString());
    return std::nullopt;
  }
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) {
    reason = Reason("read", resolved, file.errorString());
    return std::nullopt;
  }
  return bytes.toStdString();
}

bool ReplaceFile(const std::string& path, std::string_view bytes, std::string& reason) {
  const QString resolved = ResolvePath(path);
  QSaveFile file(resolved);
  if (!file.open(QIODevice::WriteOnly)) {
    reason = Reason("written", resolved, file.errorString());
    return false;
  }
  // commit() alone reports success on a full disk and destroys the file: everything must have been
  // written and flushed before it.
  const auto size = static_cast<qint64>(bytes.size());
  const bool written = file.write(bytes.data(), size) == size && file.flush() &&
                       file.error() == QFileDevice::NoError;
  const QString writeError = file.errorString();
  if (!written) file.cancelWriting();
  if (file.commit()) return true;
  reason = Reason("written", resolved, written ? file.errorString() : writeError);
  return false;
}

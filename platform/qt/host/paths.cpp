#include "platform/qt/host/paths.h"

#include <QDir>
#include <QFileInfo>

namespace {

// The entry of a folder whose name differs in case alone; the name itself if there is none.
QString MatchingEntry(const QString& folder, const QString& name) {
  const QStringList entries = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden);
  for (const QString& entry : entries) {
    if (entry.compare(name, Qt::CaseInsensitive) == 0) return entry;
  }
  return name;
}

}  // namespace

std::string ResolvePath(const std::string& path) {
  QString given = QString::fromStdString(path);
  // A path of this system's own is exact: "Part.cnc" and "part.cnc" are two files of the user.
  if (!given.contains('\\') || QFileInfo::exists(given)) return path;
  QString resolved;
  const QStringList parts = given.replace('\\', '/').split('/');
  for (qsizetype i = 0; i < parts.size(); ++i) {
    const QString folder = resolved.isEmpty() && i == 0 ? "." : resolved;
    if (i > 0) resolved += '/';
    const QString& name = parts[i];
    const bool exists = name.isEmpty() || QFileInfo::exists(resolved + name);
    resolved += exists ? name : MatchingEntry(folder.isEmpty() ? "/" : folder, name);
  }
  return resolved.toStdString();
}

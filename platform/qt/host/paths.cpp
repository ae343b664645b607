#include <QDir>
#include <QFileInfo>

#include "platform/host/files.h"

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

std::string AssetPath(const std::string& path) {
  const QStringList parts = QString::fromStdString(path).split('\\');
  QString resolved = parts[0];
  for (const QString& part : parts.mid(1)) {
    // The folders above the assets have names that the user chose.
    if (QFileInfo::exists(resolved + '\\' + part)) {
      resolved += '\\' + part;
    } else {
      const bool isThere = part.isEmpty() || QFileInfo::exists(resolved + '/' + part);
      resolved += '/' + (isThere ? part : MatchingEntry(resolved, part));
    }
  }
  return resolved.toStdString();
}

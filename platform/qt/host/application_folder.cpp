#include "platform/qt/host/application_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "platform/host/files.h"

namespace {

constexpr const char* kCopied[] = {"tools", "samples"};
constexpr const char* kLinked[] = {"sound", "help"};

// Empty until somebody asks: every sound and every tool is looked for here.
QString applicationFolder;

bool InBuildTree() {
  return QDir(QCoreApplication::applicationDirPath()).exists("tools");
}

// The folder of the program's own assets: beside it, or where the installation puts them.
QString ProgramsFolder() {
  const QString programs = QCoreApplication::applicationDirPath();
  return InBuildTree() ? programs : QDir::cleanPath(programs + "/" TURNBAY_DATA_FROM_PROGRAMS);
}

// Qt's copy is whole or not there at all.
bool CopyMissingFiles(const QDir& from, const QString& to) {
  if (!QDir().mkpath(to)) return false;
  for (const QString& name : from.entryList(QDir::Files)) {
    const QString copy = to + '/' + name;
    if (QFileInfo::exists(copy)) continue;
    if (!QFile::copy(from.filePath(name), copy)) return false;
    // The installed file may be read-only for everybody.
    QFile::setPermissions(copy, QFile::permissions(copy) | QFile::WriteOwner);
  }
  return true;
}

// A link of an older installation is made anew; a folder that the user has put there stays.
bool Link(const QString& target, const QString& link) {
  const QFileInfo old(link);
  if (old.isSymLink()) {
    if (old.symLinkTarget() == target) return true;
    QFile::remove(link);
  }
  return QFileInfo::exists(link) || QFile::link(target, link);
}

}  // namespace

bool FillApplicationFolder(const QString& installed, const QString& users) {
  for (const QString folder : kCopied) {
    if (!CopyMissingFiles(QDir(installed + '/' + folder), users + '/' + folder)) return false;
  }
  for (const QString folder : kLinked) {
    if (!Link(installed + '/' + folder, users + '/' + folder)) return false;
  }
  return true;
}

bool UseUsersApplicationFolder() {
  if (InBuildTree()) return true;
  const QString users =
      QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/turnbay";
  if (!FillApplicationFolder(ProgramsFolder(), users)) return false;
  applicationFolder = users;
  return true;
}

std::string ApplicationFolder() {
  if (applicationFolder.isEmpty()) applicationFolder = ProgramsFolder();
  return applicationFolder.toStdString();
}

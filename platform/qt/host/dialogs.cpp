#include "platform/host/dialogs.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>

#include "platform/qt/host/dialog_owner.h"
#include "platform/qt/views/colours.h"

namespace {

constexpr int kOverwritePrompt = 2;
constexpr int kFileMustExist = 4096;

// Empty before the first file is chosen.
QString lastFolder;

// "CNC Code Files|*.cnc|All Files|*.*" is {"CNC Code Files (*.cnc)", "All Files (*)"}.
QStringList NameFilters(const std::string& filter) {
  const QStringList parts = QString::fromStdString(filter).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    // Elsewhere every name has a dot.
    QString patterns = parts[i + 1];
    patterns.replace("*.*", "*").replace(';', ' ');
    filters += QString("%1 (%2)").arg(parts[i], patterns);
  }
  return filters;
}

bool Show(CommonDialog& com, QFileDialog::AcceptMode mode) {
  QFileDialog dialog(DialogOwner());
  const bool isOpen = mode == QFileDialog::AcceptOpen;
  dialog.setAcceptMode(mode);
  // Not every desktop's own dialog has a title of its own.
  dialog.setWindowTitle(isOpen ? "Open" : "Save As");
  dialog.setFileMode(isOpen && (com.Flags & kFileMustExist) != 0 ? QFileDialog::ExistingFile
                                                                 : QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite, (com.Flags & kOverwritePrompt) == 0);
  dialog.setNameFilters(NameFilters(com.Filter));
  dialog.setDirectory(lastFolder.isEmpty() ? QString::fromStdString(com.InitDir) : lastFolder);
  if (!isOpen) dialog.selectFile(QFileInfo(QString::fromStdString(com.FileName)).fileName());
  if (dialog.exec() != QDialog::Accepted) return !com.CancelError;
  const QString chosen = dialog.selectedFiles().constFirst();
  lastFolder = QFileInfo(chosen).absolutePath();
  com.FileName = chosen.toStdString();
  return true;
}

}  // namespace

bool CommonDialog::ShowOpen() {
  return Show(*this, QFileDialog::AcceptOpen);
}

bool CommonDialog::ShowSave() {
  return Show(*this, QFileDialog::AcceptSave);
}

bool CommonDialog::ShowColor() {
  QColorDialog dialog(ToQColor(Color), DialogOwner());
  if (dialog.exec() != QDialog::Accepted) return false;
  Color = FromQColor(dialog.selectedColor());
  return true;
}

#include "platform/host/dialogs.h"

#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QStandardPaths>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <QUrl>
#include <utility>
#include <vector>

#include "platform/host/desktop.h"
#include "platform/host/files.h"
#include "platform/posix/save_check.h"
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

// Pixels.
constexpr QSize kDialogSize(800, 500);

struct Place {
  QString name;
  QUrl url;
};

// Folders in which programs lie.
std::vector<Place> Places() {
  const auto documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  const auto samples = QString::fromStdString(ApplicationFolder()) + "/samples";
  std::vector<Place> places;
  for (const auto& [name, folder] :
       {std::pair("Samples", samples), {"Documents", documents}, {"Home", QDir::homePath()}}) {
    if (QFileInfo(folder).isDir()) places.push_back({name, QUrl::fromLocalFile(folder)});
  }
  return places;
}

// Shows the names of the places, which their folders needn't have.
class PlaceNames : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    // Where the model of Qt's side bar keeps the folder.
    constexpr int kUrlRole = Qt::UserRole + 1;
    QStyledItemDelegate::initStyleOption(option, index);
    for (const Place& place : Places()) {
      if (place.url == index.data(kUrlRole).toUrl()) option->text = place.name;
    }
  }
};

// Qt's own dialog, since a desktop's has closed by the time that a choice can be refused.
class FileDialog : public QFileDialog {
 public:
  explicit FileDialog(AcceptMode mode) : QFileDialog(DialogOwner()) {
    setOption(DontUseNativeDialog);
    setAcceptMode(mode);
    setWindowTitle(mode == AcceptOpen ? "Open" : "Save As");
    ShowPlaces();
    ShowWholeColumns();
    edit_ = findChild<QLineEdit*>("fileNameEdit");
    // Who has chosen a place by mouse goes on by typing a name.
    connect(findChild<QListView*>("sidebar"), &QListView::clicked, edit_,
            [this] { edit_->setFocus(); });
    // Qt opens a folder whose name is typed.
    connect(edit_, &QLineEdit::textChanged, this, [this] {
      if (acceptMode() == AcceptSave) setLabelText(Accept, "&Save");
    });
  }
  FileDialog(const FileDialog&) = delete;
  FileDialog& operator=(const FileDialog&) = delete;
  // Qt keeps the side bar for the dialogs of all its programs.
  ~FileDialog() override { setSidebarUrls(usersPlaces_); }

  void accept() override {
    const std::string trouble = acceptMode() == AcceptSave ? Trouble() : "";
    if (trouble.empty()) {
      QFileDialog::accept();
    } else {
      Desktop::ShowError(trouble);
    }
  }

 private:
  void ShowPlaces() {
    QList<QUrl> urls;
    for (const Place& place : Places()) urls += place.url;
    setSidebarUrls(urls);
    auto* sideBar = findChild<QListView*>("sidebar");
    sideBar->setItemDelegate(new PlaceNames(sideBar));
    sideBar->setMinimumWidth(sideBar->sizeHintForColumn(0) + 2 * sideBar->frameWidth());
  }

  // The names take the room that size, type and date leave.
  void ShowWholeColumns() {
    QHeaderView* header = findChild<QTreeView*>("treeView")->header();
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(0, QHeaderView::Stretch);
    resize(sizeHint().expandedTo(kDialogSize));
  }

  std::string Trouble() const {
    const QString typed = edit_->text();
    const QFileInfo chosen(selectedFiles().constFirst());
    // The dialog looks into a folder that is marked in the list, or whose name ends with "/".
    const bool looksInto = chosen.isDir() && QFileInfo(typed).fileName() != chosen.fileName();
    return typed.isEmpty() || looksInto ? "" : SaveTrouble(chosen.filePath().toStdString());
  }

  const QList<QUrl> usersPlaces_ = sidebarUrls();
  QLineEdit* edit_ = nullptr;
};

// Before the first file is chosen, and for a program without a file, InitDir decides.
QString FirstFolder(const CommonDialog& com, bool isOpen) {
  const QFileInfo document(QString::fromStdString(com.FileName));
  const QString folder = isOpen ? lastFolder : document.absolutePath();
  const bool isKnown = isOpen || !com.FileName.empty();
  return isKnown && QFileInfo(folder).isDir() ? folder : QString::fromStdString(com.InitDir);
}

bool Show(CommonDialog& com, QFileDialog::AcceptMode mode) {
  FileDialog dialog(mode);
  const bool isOpen = mode == QFileDialog::AcceptOpen;
  dialog.setFileMode(isOpen && (com.Flags & kFileMustExist) != 0 ? QFileDialog::ExistingFile
                                                                 : QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite, (com.Flags & kOverwritePrompt) == 0);
  dialog.setNameFilters(NameFilters(com.Filter));
  dialog.setDirectory(FirstFolder(com, isOpen));
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

#pragma once

#include <QDialog>
#include <array>
#include <optional>
#include <string>

class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;

namespace frmToolSelect {

class ToolPicture;

// The tool library: gives the tool numbers their bitmaps. What is assigned is saved by the button
// Close alone; a dialog that is left otherwise leaves it in ToolFiles until the list is read again.
class ToolLibraryDialog : public QDialog {
 public:
  explicit ToolLibraryDialog(QWidget* parent);

 private:
  QWidget* MakeBanner();
  QWidget* MakeLists();
  QWidget* MakeDetails();
  QWidget* MakeButtons();
  void Form_Load();
  void cmbTools_Click();
  void FileList_Click();
  void ShowToolDetails(const std::string& path);
  void cmdAssign_Click();
  void cmdClose_Click();

  void ShowAssignedFile();
  void EnableAssign();
  // Empty while none is chosen.
  std::optional<std::size_t> ChosenNumber() const;
  std::optional<QString> ChosenFile() const;

  QComboBox* cmbTools_;
  QLabel* lblFile_;
  QListWidget* fileList_;
  ToolPicture* picTool_;
  std::array<QLabel*, 4> values_{};
  QPushButton* cmdAssign_;
};

}  // namespace frmToolSelect

namespace frmMain {

// Shows the tool library modally.
void mnuToolLibrary_Click();

}  // namespace frmMain

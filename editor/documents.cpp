#include "editor/documents.h"

#include <cstddef>
#include <string>

#include "debugger/debug_grid.h"
#include "debugger/row_edit.h"
#include "editor/colouring.h"
#include "editor/program_file.h"
#include "editor/recent_files.h"
#include "editor/recovery.h"
#include "editor/recovery_text.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/view_toggles.h"
#include "platform/host/desktop.h"

namespace frmMain {

namespace {

constexpr const char* kFilter = "CNC Code Files|*.cnc|All Files|*.*";

// Of the document's file; empty for a document without one.
std::string documentPath;

bool IsModified() {
  return Toolbar.Buttons("Save").Enabled;
}

const std::string& DocumentName() {
  return StatusBar.Panels("FileName").Text;
}

// False when the operation that asks has to stop. What is typed over a row counts as a change, also
// for who comes by no command: a closed window, a dropped file.
bool MayDropDocument() {
  txtDebug_LostFocus();
  if (!IsModified()) return true;
  const int answer =
      Desktop::MessageBox("Save changes to " + DocumentName() + "?",
                          Desktop::kYesNoCancel + Desktop::kQuestion, "Save Changes?");
  if (answer == Desktop::kCancel) return false;
  if (answer == Desktop::kYes) {
    mnuFileSave_Click();
    return !IsModified();
  }
  return true;
}

bool MayOverwrite() {
  return Desktop::MessageBox(
             '"' + DocumentName() + "\" has been changed by another program. Overwrite it?",
             Desktop::kYesNo + Desktop::kQuestion + Desktop::kDefaultButton2,
             "Save Changes?") == Desktop::kYes;
}

void PrepareFileDialog() {
  com.CancelError = true;
  com.Flags = CommonDialog::kFileFlags;
  com.Filter = kFilter;
}

void NameDocument(const std::string& path) {
  documentPath = path;
  StatusBar.Panels("FileName").Text = NameOfDocument(path);
}

// False, with a reason, when the document is as unsaved as before. Until the file is whole its
// recovery file holds the same text, so that a program that ends in between has lost nothing, and
// has nothing older to offer.
bool SaveDocument(const std::string& path, std::string& reason) {
  UpdateRecovery(path);
  if (!SaveFile(path, reason)) return false;
  EnableCommands("Save", false);
  UpdateRecovery(path);
  return true;
}

// In place of the index of a file in the recent list: it was chosen elsewhere.
constexpr std::int16_t kNotInList = -1;

// Makes the file the document.
void ShowProgram(const std::string& path, std::int16_t index) {
  std::string reason;
  if (!LoadProgram(path, reason)) {
    Desktop::MessageBox(reason, Desktop::kCritical,
                        index == kNotInList ? Desktop::kErrorTitle : "");
    return;
  }
  NameDocument(path);
  UpdateRecentFiles(path, index);
  FillDebugWindow();
  TextChanged = kFalse;
  UpdateRecovery(path);
}

}  // namespace

std::string NameOfDocument(const std::string& path) {
  return path.empty() ? kUntitled : GetFileName(path);
}

void mnuFileNew_Click() {
  if (!MayDropDocument()) return;
  TextEditor().SetText("");
  DocumentIsUtf8 = false;
  DocumentFileBytes.clear();
  DebugWindow.SetRows(1);
  if (!mnuViewTextEditor.Checked) mnuViewTextEditor_Click();
  NameDocument("");
  EnableCommands(kProgramCommands, false);
  UpdateRecovery("");
  if (picSim.Cls) picSim.Cls();
  ActiveControl = "TextEditor";
}

void mnuFileOpen_Click() {
  if (!MayDropDocument()) return;
  PrepareFileDialog();
  if (com.ShowOpen()) ShowProgram(com.FileName, kNotInList);
}

void OpenProgram(const std::string& path) {
  if (MayDropDocument()) ShowProgram(path, kNotInList);
}

bool OpenRecovery(const RecoveryText& document) {
  if (!MayDropDocument()) return false;
  DocumentIsUtf8 = document.isUtf8;
  DocumentFileBytes = document.fileBytes;
  // What is too long to be coloured, and to be opened from a file, can be typed all the same.
  if (document.text.size() > kMaxColouredLength) {
    TextEditor().SetText(document.text);
  } else {
    TextBuffer().SetText(document.text);
    ColourText();
  }
  NameDocument(document.path);
  if (!document.path.empty()) BringToTop(document.path);
  EnableCommands(kChangedProgramCommands, true);
  FillDebugWindow();
  TextChanged = kFalse;
  return true;
}

void mnuFileRecentFiles_Click(std::int16_t index) {
  if (!MayDropDocument()) return;
  ShowProgram(RecentFilePath(index), index);
}

void mnuFileSave_Click() {
  if (DocumentName() == kUntitled) {
    mnuFileSaveAS_Click();
    return;
  }
  if (FileHasChanged(documentPath) && !MayOverwrite()) return;
  BringToTop(documentPath);
  std::string reason;
  if (!SaveDocument(documentPath, reason)) Desktop::ShowError(reason);
}

// Whatever fails here ends it silently: "Save" stays enabled, which the save question looks at.
void mnuFileSaveAS_Click() {
  PrepareFileDialog();
  // What is offered: the document's own name, whatever was opened in between.
  com.FileName = documentPath;
  if (!com.ShowSave()) return;
  std::string reason;
  if (!SaveDocument(com.FileName, reason)) return;
  NameDocument(com.FileName);
  UpdateRecentFiles(com.FileName, kNotInList);
}

void mnuFileExit_Click() {
  std::int16_t cancel = kFalse;
  Form_QueryUnload(cancel, kClosedByProgram);
}

void Form_QueryUnload(std::int16_t& cancel, std::int16_t /*unloadMode*/) {
  if (MayDropDocument()) {
    // Not saved after the question, so given up; during a run nothing was asked.
    if (IsModified()) {
      ForgetRecovery();
    } else {
      UpdateRecovery(documentPath);
    }
    Form_Unload();
  } else {
    cancel = kTrue;
  }
}

void RecoveryTimer_Timer() {
  UpdateRecovery(documentPath);
}

void Form_Unload() {
  WindowClosed = kTrue;
  GlobalVariables::StopRequested = kTrue;
  Desktop::EndProgram();
}

void ResetDocuments() {
  DocumentIsUtf8 = false;
  DocumentFileBytes.clear();
  documentPath.clear();
  ForgetRecovery();
}

}  // namespace frmMain

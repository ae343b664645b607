#include "editor/recovery.h"

#include <utility>

#include "debugger/row_edit.h"
#include "editor/program_file.h"
#include "editor/recovery_text.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "platform/host/recovery_files.h"

namespace frmMain {

namespace {

// What the recovery file holds; empty when there is none.
std::string written;

// A run closes "Save" and the menus, and gives "Save" back at its end.
bool CanBeSaved() {
  return Toolbar.Buttons("Save").Enabled || (!mnuFile.Enabled && SaveWasEnabled != kFalse);
}

}  // namespace

void UpdateRecovery(const std::string& path) {
  if (WindowClosed != kFalse) return;
  const std::string text = TextWithOpenEdit();
  const bool hasChanges = CanBeSaved() || text != TextEditor().Text();
  if (!hasChanges || text.empty()) {
    ForgetRecovery();
    return;
  }
  if (text.size() > kMaxRecoveryText) return;
  std::string bytes = EncodeRecovery({path, DocumentIsUtf8, text, DocumentFileBytes});
  if (bytes != written && WriteRecoveryFile(bytes)) written = std::move(bytes);
}

void ForgetRecovery() {
  RemoveRecoveryFile();
  written.clear();
}

}  // namespace frmMain

#include "platform/dialogs.h"

// Nobody is there to choose a file: every dialog is cancelled.

bool CommonDialog::ShowOpen() {
  return !CancelError;
}

bool CommonDialog::ShowSave() {
  return !CancelError;
}

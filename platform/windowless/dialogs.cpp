#include "platform/host/dialogs.h"

// Nobody is there to choose: every dialog is cancelled.

bool CommonDialog::ShowOpen() {
  return !CancelError;
}

bool CommonDialog::ShowSave() {
  return !CancelError;
}

bool CommonDialog::ShowColor() {
  return false;
}

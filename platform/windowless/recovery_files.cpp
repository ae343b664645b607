#include "platform/host/recovery_files.h"

// Nobody types here, so nothing is lost.

bool WriteRecoveryFile(std::string_view /*bytes*/) {
  return false;
}

void RemoveRecoveryFile() {}

void VisitEndedRecoveryFiles(
    const std::function<RecoveryFate(const std::string& bytes)>& /*visit*/) {}

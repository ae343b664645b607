#include "editor/recovery_offer.h"

#include <string>

#include "editor/documents.h"
#include "editor/recovery_text.h"
#include "platform/code_page.h"
#include "platform/host/desktop.h"
#include "platform/host/files.h"
#include "platform/host/recovery_files.h"
#include "platform/text.h"

namespace frmMain {

namespace {

// The program ended between the save and the end of its recovery file, or the changes have come to
// the file some other way.
bool IsSaved(const RecoveryText& document) {
  std::string reason;
  const auto bytes = document.path.empty() ? std::nullopt : ReadFile(document.path, reason);
  return bytes && WithCrLf(DecodeProgram(*bytes).text) == document.text;
}

RecoveryFate Offer(const std::string& bytes) {
  const auto document = DecodeRecovery(bytes);
  if (!document) return RecoveryFate::Stays;
  if (IsSaved(*document)) return RecoveryFate::Goes;
  const int answer = Desktop::MessageBox("Turnbay ended while \"" + NameOfDocument(document->path) +
                                             "\" had changes that were not saved. Open them?",
                                         Desktop::kYesNo + Desktop::kQuestion);
  if (answer == Desktop::kNo) return RecoveryFate::Goes;
  // Who closes the box, or wants to keep the document that is open, is asked again at the next
  // start.
  if (answer != Desktop::kYes || !OpenRecovery(*document)) return RecoveryFate::Stays;
  return RecoveryFate::BecomesOwn;
}

}  // namespace

void OfferRecovery() {
  VisitEndedRecoveryFiles(Offer);
}

}  // namespace frmMain

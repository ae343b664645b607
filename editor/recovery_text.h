#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace frmMain {

// A document as its recovery file holds it.
struct RecoveryText {
  // Of its file; empty for a document without one.
  std::string path;
  // The document's file is UTF-8.
  bool isUtf8 = false;
  // As the editor holds it, whatever the encoding of the file.
  std::string text;
  // Of the document's file when the changes began, so that a save over another program's work is
  // noticed as it would have been before.
  std::string fileBytes{};

  bool operator==(const RecoveryText&) const = default;
};

// The bytes of a recovery file.
std::string EncodeRecovery(const RecoveryText& document);

// Empty when the bytes are damaged, or of another version.
std::optional<RecoveryText> DecodeRecovery(std::string_view bytes);

}  // namespace frmMain

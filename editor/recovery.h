#pragma once

#include <cstddef>
#include <string>

// What is typed and not saved outlives the program: while the document has changes, a recovery file
// holds it.
namespace frmMain {

// The longest text that is kept, in bytes; far beyond any program. Of a longer one the recovery
// file holds what it was before.
inline constexpr std::size_t kMaxRecoveryText = 1'048'576;

// Brings the recovery file up to the document, whose file is `path` (empty for none): writes it
// when something has changed since, and removes it when there is nothing to save. A file that can't
// be written is tried again the next time. Does nothing once the window has closed.
void UpdateRecovery(const std::string& path);

// The changes have been given up.
void ForgetRecovery();

}  // namespace frmMain

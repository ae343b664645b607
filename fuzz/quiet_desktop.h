#pragma once

#include <string>
#include <string_view>

// A desktop that nobody sees: files and settings in memory, message boxes answered at once, every
// picture a small square. It resumes a paused run, and stops one that has yielded often enough.
namespace QuietDesktop {

// Empties everything; call before each input.
void Reset();

// Paths are compared without regard to case and to the kind of separator. The application folder
// is "/app".
void PutFile(const std::string& path, std::string_view bytes);
void PutSetting(std::string_view section, std::string_view key, std::string_view value);

}  // namespace QuietDesktop

#include <array>
#include <cerrno>
#include <filesystem>
#include <sys/stat.h>

#include "platform/host/files.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/error_words.h"
#include "platform/posix/save_names.h"

namespace {

// Empty on success, else why not.
std::string ReadToEnd(int file, std::string& bytes) {
  std::array<char, 65'536> part;
  // Not as large as the file claims to be: it may be growing, and some have no size at all.
  while (bytes.size() <= kMaxFileSize) {
    const ssize_t count = read(file, part.data(), part.size());
    if (count == 0) return {};
    if (count < 0 && errno != EINTR) return ErrorWords(errno);
    if (count > 0) bytes.append(part.data(), static_cast<std::size_t>(count));
  }
  return "it has more than " + std::to_string(kMaxFileSize) + " bytes";
}

std::string Read(const std::string& path, std::string& bytes) {
  const std::filesystem::path copy = SafetyCopyName(FollowLinks(path));
  if (access(copy.c_str(), F_OK) == 0) {
    return "it was cut off as it was saved, and what it held is in \"" + copy.string() + '"';
  }
  Descriptor file;
  // A pipe without a writer would keep the program waiting in open.
  if (!file.Open(path, O_RDONLY | O_NONBLOCK)) return ErrorWords(errno);
  struct stat status {};
  if (fstat(file.Number(), &status) != 0) return ErrorWords(errno);
  if (S_ISDIR(status.st_mode)) return "it is a folder";
  if (!S_ISREG(status.st_mode)) return "it is no ordinary file";
  return ReadToEnd(file.Number(), bytes);
}

}  // namespace

std::optional<std::string> ReadFile(const std::string& path, std::string& reason) {
  std::string bytes;
  const std::string why = Read(path, bytes);
  if (why.empty()) return bytes;
  reason = "The file \"" + path + "\" can't be read: " + why + '.';
  return std::nullopt;
}

std::optional<std::string> ReadStandardInput(std::string& reason) {
  std::string bytes;
  const std::string why = ReadToEnd(STDIN_FILENO, bytes);
  if (why.empty()) return bytes;
  reason = "Standard input can't be read: " + why + '.';
  return std::nullopt;
}

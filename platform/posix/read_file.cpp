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
  // Bytes read at a time.
  constexpr std::size_t kPartSize = 65'536;
  // Not as large as the file claims to be: it may be growing, and some have no size at all.
  for (;;) {
    const std::size_t size = bytes.size();
    if (size > kMaxFileSize) return "it has more than " + std::to_string(kMaxFileSize) + " bytes";
    bytes.resize(size + kPartSize);
    const ssize_t count = read(file, bytes.data() + size, kPartSize);
    const int error = errno;
    bytes.resize(size + static_cast<std::size_t>(count > 0 ? count : 0));
    if (count == 0) return {};
    if (count < 0 && error != EINTR) return ErrorWords(error);
  }
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

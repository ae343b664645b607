#include "platform/posix/file_traits.h"

#include <cerrno>
#include <map>
#include <optional>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

// By name. An access list is one of them.
using Attributes = std::map<std::string, std::string>;

// The most that the system knows, of all names of a file and of one value.
constexpr std::size_t kMaxAttributeBytes = 65'536;

std::optional<Attributes> AttributesOf(const std::string& path) {
  std::string names(kMaxAttributeBytes, '\0');
  const ssize_t size = listxattr(path.c_str(), names.data(), names.size());
  if (size < 0) return errno == EOPNOTSUPP ? std::optional<Attributes>(Attributes()) : std::nullopt;
  Attributes attributes;
  for (const char* name = names.data(); name < names.data() + size;) {
    std::string value(kMaxAttributeBytes, '\0');
    const ssize_t length = getxattr(path.c_str(), name, value.data(), value.size());
    if (length < 0) return std::nullopt;
    value.resize(static_cast<std::size_t>(length));
    name += attributes.emplace(name, value).first->first.size() + 1;
  }
  return attributes;
}

bool CopyAttributes(const std::string& path, const std::string& oldPath) {
  const auto wanted = AttributesOf(oldPath);
  const auto given = AttributesOf(path);
  if (!wanted || !given) return false;
  // The folder may hand down an access list to its new files.
  for (const auto& [name, value] : *given) {
    if (!wanted->contains(name) && removexattr(path.c_str(), name.c_str()) != 0) return false;
  }
  for (const auto& [name, value] : *wanted) {
    const auto own = given->find(name);
    if (own != given->end() && own->second == value) continue;
    if (setxattr(path.c_str(), name.c_str(), value.data(), value.size(), 0) != 0) return false;
  }
  return true;
}

bool IsAlike(int file, const struct stat& old) {
  struct stat own {};
  return fstat(file, &own) == 0 && own.st_uid == old.st_uid && own.st_gid == old.st_gid &&
         own.st_mode == old.st_mode;
}

}  // namespace

// What already is as it should isn't set: some file systems let nobody set it.
bool MakeAlike(int file, const std::string& name, const std::string& oldPath,
               const struct stat& old) {
  if (!IsAlike(file, old) &&
      (fchown(file, old.st_uid, old.st_gid) != 0 || fchmod(file, old.st_mode & 07777) != 0)) {
    return false;
  }
  // An access list is part of the mode, so both are looked at in the end.
  return CopyAttributes(name, oldPath) && IsAlike(file, old);
}

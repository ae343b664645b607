#include "platform/posix/save_names.h"

#include <system_error>

namespace {

namespace fs = std::filesystem;

constexpr int kMaxLinks = 40;
// Leaves room for what makes another name out of it.
constexpr std::size_t kMaxNameInside = 200;

fs::path Beside(const fs::path& path, const char* ending) {
  const std::string name = path.filename().string().substr(0, kMaxNameInside);
  return path.parent_path() / ('.' + name + ending);
}

}  // namespace

fs::path FollowLinks(fs::path path) {
  for (int links = 0; links < kMaxLinks; ++links) {
    std::error_code isNoLink;
    const fs::path target = fs::read_symlink(path, isNoLink);
    if (isNoLink) return path;
    path = path.parent_path() / target;
  }
  return {};
}

std::string FolderOf(const fs::path& path) {
  return path.has_parent_path() ? path.parent_path().string() : ".";
}

fs::path TemporaryName(const fs::path& path) {
  return Beside(path, ".turnbay-save");
}

fs::path SafetyCopyName(const fs::path& path) {
  return Beside(path, ".turnbay-old");
}

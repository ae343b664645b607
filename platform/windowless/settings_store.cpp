#include "platform/host/settings_store.h"

#include <map>
#include <tuple>

namespace {

using StoreKey = std::tuple<std::string, std::string, std::string>;
std::map<StoreKey, std::string> store;

}  // namespace

std::string GetSetting(std::string_view application, std::string_view section, std::string_view key,
                       std::string_view defaultText) {
  const auto entry = store.find(StoreKey(application, section, key));
  return entry != store.end() ? entry->second : std::string(defaultText);
}

void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                 std::string_view value) {
  store.insert_or_assign(StoreKey(application, section, key), value);
}

#include "platform/notifications.h"

namespace Desktop {

void ShowNotification(const std::string& /*text*/, int /*milliseconds*/, bool /*modal*/) {}

}  // namespace Desktop

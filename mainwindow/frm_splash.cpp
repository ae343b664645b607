#include "platform/notifications.h"

namespace Desktop {

void ShowSplash() {}

}  // namespace Desktop

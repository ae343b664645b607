#include "platform/host/desktop.h"
#include "platform/host/files.h"
#include "platform/qt/host/late_library.h"
#include "platform/qt/host/sound_effect.h"

namespace Desktop {

// Without its library there is silence, as without a device.
void sndPlaySoundA(const std::string& path, int flags) {
  std::string reason;
  static const auto play = reinterpret_cast<decltype(&PlaySoundEffect)>(
      LateRoutine("turnbay_sound", "PlaySoundEffect", reason));
  if (play == nullptr) return;
  play(QString::fromStdString(AssetPath(path)), (flags & kSoundLoop) != 0);
}

}  // namespace Desktop

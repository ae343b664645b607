#include "platform/qt/host/sound_effect.h"

#include <QApplication>
#include <QAudioDevice>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>

namespace {

QSoundEffect* sound = nullptr;

// Audio threads must end before the application object does.
void DeleteSound() {
  delete sound;
  sound = nullptr;
}

}  // namespace

void PlaySoundEffect(const QString& file, bool loops) {
  if (QMediaDevices::defaultAudioOutput().isNull()) return;
  if (sound == nullptr) {
    sound = new QSoundEffect;
    qAddPostRoutine(DeleteSound);
  }
  sound->stop();
  sound->setSource(QUrl::fromLocalFile(file));
  sound->setLoopCount(loops ? int{QSoundEffect::Infinite} : 1);
  sound->play();
}

#include <QApplication>
#include <QAudioDevice>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>

#include "platform/host/desktop.h"
#include "platform/host/files.h"

namespace {

QSoundEffect* sound = nullptr;

// Audio threads must end before the application object does.
void DeleteSound() {
  delete sound;
  sound = nullptr;
}

}  // namespace

namespace Desktop {

void sndPlaySoundA(const std::string& path, int flags) {
  if (QMediaDevices::defaultAudioOutput().isNull()) return;
  if (sound == nullptr) {
    sound = new QSoundEffect;
    qAddPostRoutine(DeleteSound);
  }
  sound->stop();
  sound->setSource(QUrl::fromLocalFile(QString::fromStdString(AssetPath(path))));
  sound->setLoopCount((flags & kSoundLoop) != 0 ? int{QSoundEffect::Infinite} : 1);
  sound->play();
}

}  // namespace Desktop

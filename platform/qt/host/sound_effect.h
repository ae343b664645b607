#pragma once

#include <QString>

// Plays a wave file once or until the next one, replacing the sound before. Silence where there is
// no device. In a library of its own: the sound system is the largest of what Turnbay stands on.
extern "C" void PlaySoundEffect(const QString& file, bool loops);

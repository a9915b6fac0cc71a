// How long a sound file lasts, read from what it tells of itself; nothing is played or decoded.
#pragma once

#include <QString>

namespace vorlane {

// In seconds; 0 for what is no sound file or can't be read. Of a wave file that was cut off, what is there.
double SoundLength(const QString& path);

}  // namespace vorlane

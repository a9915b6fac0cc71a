// The sounds of the sample show, each as the bytes of a WAV file: 22,050 samples of 16 bits a second, one channel.
#pragma once

#include <QByteArray>

namespace samples {

// A chord of bells, 4 s.
QByteArray Chime();
// Three waves that come in and run out, 9 s.
QByteArray Surf();
// A tune on a plucked string, 7 s.
QByteArray Melody();

}  // namespace samples

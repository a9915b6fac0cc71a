// A picture that moves.
#pragma once

#include <QByteArray>

namespace vorlane::test {

// An animated GIF of one pixel, red then blue, each for that many hundredths of a second. rounds: how often it is
// repeated, 0 for ever, below 0: nothing is said of it.
inline QByteArray RedThenBlue(int rounds, char hundredths) {
    const QByteArray red("\x02\x02\x44\x01\x00", 5);
    const QByteArray blue("\x02\x02\x4C\x01\x00", 5);
    QByteArray gif("GIF89a\x01\0\x01\0\x80\0\0\xFF\0\0\0\0\xFF", 19);
    if (rounds >= 0) {
        gif += QByteArray("\x21\xFF\x0BNETSCAPE2.0\x03\x01", 16);
        gif += QByteArray(1, static_cast<char>(rounds)) + QByteArray(2, '\0');
    }
    for (const QByteArray& pixel : {red, blue}) {
        gif += QByteArray("\x21\xF9\x04\x04", 4) + QByteArray(1, hundredths) + QByteArray(3, '\0');
        gif += QByteArray("\x2C\0\0\0\0\x01\0\x01\0\0", 10) + pixel;
    }
    return gif + ";";
}

}  // namespace vorlane::test

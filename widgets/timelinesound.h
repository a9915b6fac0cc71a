// TimeLineSound: one sound of a show (tSon) in Qt's types.
#pragma once

#include <QString>

namespace vorlane {

struct tSon;

struct TimeLineSound {
    int TypeSon = 0;   // 0 a music, 1 a comment
    int DiapoKey = 0;  // of the slide that it starts on; -1 where a search has found none
    QString Nom;       // full name of the file
    bool Repetition = false;
    int Duree = 0;  // whole seconds
    // Volumes for the host, 0 to 255.
    int VolPendantComment = 0;
    int VolNormal = 0;
    int VolComment = 0;
    bool Rehausse = false;
    bool operator==(const TimeLineSound&) const = default;
};

TimeLineSound FromSon(const tSon& son);
// Fails with Overflow() for a volume beyond a byte.
tSon ToSon(const TimeLineSound& sound);

}  // namespace vorlane

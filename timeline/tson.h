// tSon: one sound of a show, a file that starts on a slide.
#pragma once

#include <cstdint>
#include <string>

namespace vorlane {

enum SonType : int32_t { kMusic = 0, kComment = 1 };

// The time line keeps the volumes and the boost for its host; it reads none of them.
struct tSon {
    int32_t TypeSon = 0;            // a SonType
    int32_t DiapoKey = 0;           // key of the slide that the sound starts on
    std::string Nom;                // full name of the file
    bool Repetition = false;        // repeats until the next sound of its row
    int32_t Durée = 0;              // whole seconds
    uint8_t VolPendantComment = 0;  // while a comment plays
    uint8_t VolNormal = 0;
    uint8_t VolComment = 0;  // of a comment
    bool Rehausse = false;   // boosted
    bool operator==(const tSon&) const = default;
};

}  // namespace vorlane

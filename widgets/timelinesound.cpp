#include "widgets/timelinesound.h"

#include "platform/numbers.h"
#include "timeline/tson.h"
#include "widgets/conversions.h"

namespace vorlane {

TimeLineSound FromSon(const tSon& son) {
    return {son.TypeSon,           son.DiapoKey,  FromText(son.Nom), son.Repetition, son.Durée,
            son.VolPendantComment, son.VolNormal, son.VolComment,    son.Rehausse};
}

tSon ToSon(const TimeLineSound& sound) {
    return {sound.TypeSon,
            sound.DiapoKey,
            ToText(sound.Nom),
            sound.Repetition,
            sound.Duree,
            ToByte(sound.VolPendantComment),
            ToByte(sound.VolNormal),
            ToByte(sound.VolComment),
            sound.Rehausse};
}

}  // namespace vorlane

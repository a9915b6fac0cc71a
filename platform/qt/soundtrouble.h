// What can be wrong with a sound that was to be played.
#pragma once

#include <QString>

namespace vorlane {

enum class SoundTrouble {
    Missing = 0,     // the file is not there: nothing is heard
    Unplayable = 1,  // it is no sound, or damaged: nothing is heard, or nothing more
    Gone = 2,        // the file has gone while it plays; what the system still gives of it is heard
    NoDevice = 3,    // there is nothing to hear it on: it plays for its time, silently, or ends if the device has gone
    Unreadable = 4,  // the file may not be read: nothing is heard
};

// For the user, in French; a host that shows another language installs a translator for the context
// "vorlane::SoundTrouble".
QString SoundTroubleText(SoundTrouble trouble, const QString& path);

}  // namespace vorlane

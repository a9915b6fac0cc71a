// QtSounds: lengths of sound files. It reads the header of a wave file; of any other kind it knows nothing.
#pragma once

#include "platform/desktop.h"

namespace vorlane {

class QtSounds final : public Sounds {
public:
    double SoundSeconds(const std::string& path) override;
};

}  // namespace vorlane

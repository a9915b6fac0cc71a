// The time line's events.
#pragma once

#include "platform/event.h"

#include <cstdint>
#include <string>

namespace vorlane {

struct TimeLineEvents {
    Event<> Click;
    Event<> DblClick;
    Event<int32_t, int32_t, int16_t> RemovedSound;  // TypeSound: 0 music, 1 comment; Key; DiapoIndex
    // Number, Description, Source, LastDllError, Valeur: the log line
    Event<int32_t, const std::string&, const std::string&, int32_t, const std::string&> Error;
};

}  // namespace vorlane

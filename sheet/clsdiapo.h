// ClsDiapo: indexes the slides of a sheet. It has no data of its own: it asks for a slide by an event, which the sheet
// answers.
#pragma once

#include "platform/event.h"
#include "slide/ediapolight.h"

#include <cstdint>
#include <memory>

namespace vorlane {

class ClsDiapo {
public:
    // Empty when nobody answers. Fails as the answer does, with ControlNotLoaded() for a slide that is not there.
    std::shared_ptr<eDiapoLight> Item(int16_t index) const {
        std::shared_ptr<eDiapoLight> slide;
        iItem(index, slide);
        return slide;
    }

    Event<int16_t, std::shared_ptr<eDiapoLight>&> iItem;  // Index, ItemDiapo
};

}  // namespace vorlane

// FrenchTexts: the library's own texts by message number, in French.
#pragma once

#include "platform/desktop.h"

namespace vorlane {

class FrenchTexts final : public Texts {
public:
    // 2017: the wait for a picture. 2057 to 2062: the jumps of the time line's menu.
    std::optional<std::string> Text(std::string_view number) const override;
};

}  // namespace vorlane

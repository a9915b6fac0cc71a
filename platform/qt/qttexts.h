// QtTexts: the library's texts in the program's language: the French text of a number, through the translators that the
// program has installed (context "vorlane::Texts").
#pragma once

#include "platform/frenchtexts.h"

namespace vorlane {

class QtTexts final : public Texts {
public:
    std::optional<std::string> Text(std::string_view number) const override;

private:
    FrenchTexts french_;
};

}  // namespace vorlane

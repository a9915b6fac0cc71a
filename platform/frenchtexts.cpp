#include "platform/frenchtexts.h"

#include <utility>

namespace vorlane {

namespace {

constexpr std::pair<std::string_view, std::string_view> kTexts[] = {
    {"2017", "Chargement de l'image en cours…"},
    {"2057", "Musique précédente"},
    {"2058", "Musique suivante"},
    {"2059", "Commentaire précédent"},
    {"2060", "Commentaire suivant"},
    {"2061", "Musique ou commentaire précédent"},
    {"2062", "Musique ou commentaire suivant"},
};

}  // namespace

std::optional<std::string> FrenchTexts::Text(std::string_view number) const {
    for (const auto& [known, text] : kTexts) {
        if (known == number) return std::string(text);
    }
    return std::nullopt;
}

}  // namespace vorlane

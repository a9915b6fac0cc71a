#include "widgets/designer/propertyhelp.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace vorlane::designer {

namespace {

constexpr auto kGrid = "Grille";
constexpr auto kLook = "Apparence";
constexpr auto kFrame = "Cadres et ombre";
constexpr auto kText = "Textes";
constexpr auto kPicture = "Image et vignette";
constexpr auto kScroll = "Défilement";
constexpr auto kSort = "Tri";
constexpr auto kBehaviour = "Comportement";
constexpr auto kSound = "Sons";

// What the sheet has of its own, and what it names otherwise than its slides or means otherwise.
const PropertyTable& Own() {
    static const PropertyTable table{
        {"AliasComment", kSound, "Renvoie ou définit l'Alias utilisé pour la lecture du commentaire."},
        {"AliasMusic", kSound, "Renvoie ou définit l'Alias utilisé pour la lecture de la musique."},
        {"BackColor", kLook, "Renvoie ou définit la couleur du fond de la planche."},
        {"BackColorCurrent", kLook, "Renvoie ou définit la couleur du fond de la dernière diapo sélectionnée."},
        {"BackColorDiapo", kLook, "Renvoie ou définit la couleur du fond des diapos."},
        {"BackColorSelected", kLook, "Renvoie ou définit la couleur du fond des diapos sélectionnées."},
        {"BorderColorDiapo", kFrame, "Renvoie ou définit la couleur du cadre des images, quand il est plat."},
        {"BorderColorDiapoExt", kFrame, "Renvoie ou définit la couleur du cadre extérieur des diapos."},
        {"BorderStyle", kLook, "Renvoie ou définit le bord de la planche : 0 aucun, 1 un trait."},
        {"BorderStyleDiapo", kFrame, "Renvoie ou définit le style des cadres des images."},
        {"BorderStyleDiapoExt", kFrame, "Renvoie ou définit le style du cadre extérieur des diapos."},
        {"CaptionWait", kText, "Renvoie ou définit le texte affiché dans la fenêtre d'attente ( en zoom par ex.)"},
        {"DiapoHeight", kGrid, "Renvoie ou définit la hauteur des diapos, en pixels."},
        {"DiapoWidth", kGrid, "Renvoie ou définit la largeur des diapos, en pixels ; la hauteur suit."},
        {"JaugeAnimation", kBehaviour, "Fait glisser la jauge à son apparition et à sa disparition."},
        {"LegendeFont", kText, "Renvoie ou définit la police des légendes."},
        {"LegendeNbLig", kText, "Renvoie ou définit le nombre de lignes des légendes."},
        {"ListAutoFill", kBehaviour, "Remplit la liste de la planche avec les fichiers du dossier."},
        {"MargeDiapoAutoAdjust", kGrid, "Répartit la place libre entre les diapos."},
        {"MargeDiapoMin", kGrid, "Renvoie ou définit le plus petit écart entre les diapos, en pixels."},
        {"Marges", kGrid, "Renvoie ou définit la marge autour de la grille, en pixels."},
        {"OLEDragMode", kBehaviour, "Renvoie ou définit qui commence un glisser : 0 l'hôte, 1 la planche."},
        {"OLEDropMode", kBehaviour, "Renvoie ou définit qui reçoit un déposer : 0 personne, 1 l'hôte, 2 la planche."},
        {"OleResetDrag", kBehaviour, "Permet de restaurer les éléments du drag & drop."},
        {"ScrollDirection", kScroll,
         "Renvoie ou définit le sens du défilement : une ligne, ou des lignes et des colonnes."},
        {"ScrollWindowBackColor", kScroll,
         "Renvoie ou définit la couleur du fond de la fenêtre qui suit le défilement."},
        {"ScrollWindowPos", kScroll, "Renvoie ou définit la place de la fenêtre qui suit le défilement."},
        {"ScrollWindowWidth", kScroll,
         "Renvoie ou définit la largeur de la fenêtre qui suit le défilement, en pixels."},
        {"SelectionMultiple", kBehaviour, "Gère la sélection multiple"},
        {"ShowJauge", kBehaviour, "Affiche une jauge pendant le remplissage."},
        {"Sorted", kSort, "Autorise le tri."},
        {"SortedSens", kSort, "Renvoie ou définit le sens du tri."},
        {"StopSound", kSound, "Permet d'arrêter les sons en cours et de restaurer l'état des boutons."},
        {"ThumbnailSizeNormal", kPicture, "Renvoie ou définit la plus petite taille des vignettes, en pixels."},
    };
    return table;
}

// The rest is as on a slide.
PropertyTable WithTheSlides(PropertyTable table) {
    const PropertyTable& slide = SlideProperties();
    std::copy_if(slide.begin(), slide.end(), std::back_inserter(table), [](const PropertyHelp& property) {
        return std::none_of(Own().begin(), Own().end(),
                            [&](const PropertyHelp& own) { return std::string_view(own.Name) == property.Name; });
    });
    return table;
}

}  // namespace

const PropertyTable& SheetProperties() {
    static const PropertyTable table = WithTheSlides(Own());
    return table;
}

}  // namespace vorlane::designer

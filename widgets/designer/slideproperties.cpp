#include "widgets/designer/propertyhelp.h"

namespace vorlane::designer {

namespace {

constexpr auto kLook = "Apparence";
constexpr auto kFrame = "Cadres et ombre";
constexpr auto kText = "Textes";
constexpr auto kPicture = "Image et vignette";
constexpr auto kButtons = "Boutons";
constexpr auto kBehaviour = "Comportement";

}  // namespace

const PropertyTable& SlideProperties() {
    static const PropertyTable table{
        {"AlwaysFullSize", kPicture,
         "L'image est agrandie pour remplir sa place, même au-delà de sa taille d'origine."},
        {"AutoAdjust", kFrame, "Les cadres et l'ombre épousent l'image plutôt que la place qui lui est réservée."},
        {"AutoCornerResize", kButtons, "Le coin de zoom n'apparaît que si l'image est réduite."},
        {"BackColor", kLook, "Renvoie ou définit la couleur du fond."},
        {"BackColorSelected", kLook, "Renvoie ou définit la couleur du fond d'une diapo sélectionnée."},
        {"BorderColor", kFrame, "Renvoie ou définit la couleur du cadre de l'image, quand il est plat."},
        {"BorderColorExt", kFrame, "Renvoie ou définit la couleur du cadre extérieur."},
        {"BorderDouble", kFrame, "Affiche un second cadre à l'intérieur de celui de l'image."},
        {"BorderSize", kFrame, "Renvoie ou définit l'écart, en pixels, entre les deux cadres de l'image."},
        {"BorderStyle", kFrame, "Renvoie ou définit le style des cadres de l'image."},
        {"BorderStyleExt", kFrame, "Renvoie ou définit le style du cadre extérieur."},
        {"CaptionBottom", kText, "Renvoie ou définit la légende, sous le nom de l'image."},
        {"CaptionBottomNbLig", kText, "Renvoie ou définit le nombre de lignes de la légende."},
        {"Enabled", kBehaviour, "Indique si le contrôle répond à l'utilisateur."},
        {"FontBottom", kText, "Renvoie ou définit la police de la légende."},
        {"FontImageName", kText, "Renvoie ou définit la police du nom de l'image."},
        {"ForeColor", kText, "Renvoie ou définit la couleur des textes."},
        {"ImageMarge", kPicture,
         "Renvoie ou définit la marge, en pixels, à gauche de l'image, et à droite sans ombre."},
        {"MouseIcon", kBehaviour, "Renvoie ou définit l'image du pointeur de la souris, pour MousePointer 99."},
        {"MousePointer", kBehaviour, "Renvoie ou définit le type de pointeur affiché au-dessus du contrôle."},
        {"NoResize", kBehaviour,
         "Suspend la mise en page à l'exécution, jusqu'à Refresh, pour un chargement plus rapide."},
        {"OLEDragMode", kBehaviour, "Renvoie ou définit qui commence un glisser : 0 l'hôte, 1 le contrôle."},
        {"OLEDropMode", kBehaviour, "Renvoie ou définit qui reçoit un déposer : 0 personne, 1 l'hôte, 2 le contrôle."},
        {"Selected", kBehaviour, "Indique si la diapo est sélectionnée."},
        {"ShadowColor", kFrame, "Renvoie ou définit la couleur de l'ombre, au bord de l'image."},
        {"ShadowWidth", kFrame, "Renvoie ou définit la largeur de l'ombre, en pixels."},
        {"ShowDiapoTools", kButtons,
         "Réserve une ligne aux boutons de la diapo ; prend effet à la mise en page suivante."},
        {"ShowFileName", kText, "Affiche le nom de l'image."},
        {"ShowInfo", kButtons, "Affiche le bouton d'informations."},
        {"ShowJauge", kButtons, "Permet à la jauge de s'afficher."},
        {"ShowShadow", kFrame, "Affiche l'ombre."},
        {"ShowZoom", kButtons, "Affiche le coin de zoom."},
        {"Thumbnail", kPicture, "Affiche une vignette plutôt que l'image entière."},
        {"ThumbnailResolution", kPicture, "Renvoie ou définit laquelle des deux tailles de vignette s'applique."},
        {"ThumbnailSizeHigh", kPicture,
         "Renvoie ou définit le plus long côté d'une vignette en haute résolution, en pixels."},
        {"ThumbnailSizeNormal", kPicture,
         "Renvoie ou définit le plus long côté d'une vignette en résolution normale, en pixels."},
        {"ToolTipBtComment", kButtons, "Renvoie ou définit l'info-bulle du bouton de commentaire."},
        {"ToolTipBtPlay", kButtons, "Renvoie ou définit l'info-bulle du bouton de lecture."},
        {"ToolTipBtText", kButtons, "Renvoie ou définit l'info-bulle du bouton de texte."},
        {"Value", kBehaviour, "Renvoie ou définit une valeur que l'hôte lie à l'image."},
    };
    return table;
}

}  // namespace vorlane::designer

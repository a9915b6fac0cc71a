#include "widgets/designer/propertyhelp.h"

namespace vorlane::designer {

namespace {

constexpr auto kLook = "Apparence";
constexpr auto kTime = "Temps";
constexpr auto kBars = "Barres";
constexpr auto kMusic = "Barres de musique";
constexpr auto kComment = "Barres de commentaire";
constexpr auto kRecord = "Enregistrement et lecture";
constexpr auto kBehaviour = "Comportement";

}  // namespace

const PropertyTable& TimeLineProperties() {
    static const PropertyTable table{
        {"BarreHeight", kBars, "Renvoie ou définit la hauteur des barres, en pixels."},
        {"BarreMarge", kBars, "Renvoie ou définit la marge des barres, en pixels."},
        {"BarreOnTop", kBars, "Renvoie ou définit la barre du dessus : 0 la musique, sinon le commentaire."},
        {"BorderColor", kLook, "Renvoie ou définit la couleur du bord."},
        {"BorderCommentColor", kComment, "Renvoie ou définit le contour des barres de commentaire, premier jeu."},
        {"BorderCommentColor2", kComment, "Renvoie ou définit le contour des barres de commentaire, second jeu."},
        {"BorderMusicColor", kMusic, "Renvoie ou définit le contour des barres de musique, premier jeu."},
        {"BorderMusicColor2", kMusic, "Renvoie ou définit le contour des barres de musique, second jeu."},
        {"BorderStyle", kLook, "Renvoie ou définit le style du bord, de 0 à 12."},
        {"DiapoWidth", kTime, "Renvoie ou définit la largeur d'une diapo, marge droite comprise, en pixels."},
        {"Enabled", kBehaviour, "Indique si le contrôle répond à l'utilisateur."},
        {"ExpositionTime", kTime, "Renvoie ou définit la durée de chaque diapo, en secondes."},
        {"Font", kLook, "Renvoie ou définit la police des repères de temps."},
        {"ForeColor", kLook, "Renvoie ou définit la couleur des repères de temps."},
        {"GradientColorEnd", kLook, "Renvoie ou définit la fin du dégradé du fond."},
        {"GradientColorInverse", kLook, "Inverse les couleurs du fond."},
        {"GradientColorStart", kLook, "Renvoie ou définit le début du dégradé du fond."},
        {"GradientCommentColorEnd", kComment, "Renvoie ou définit la fin du dégradé des commentaires, premier jeu."},
        {"GradientCommentColorEnd2", kComment, "Renvoie ou définit la fin du dégradé des commentaires, second jeu."},
        {"GradientCommentColorStart", kComment,
         "Renvoie ou définit le début du dégradé des commentaires, premier jeu."},
        {"GradientCommentColorStart2", kComment,
         "Renvoie ou définit le début du dégradé des commentaires, second jeu."},
        {"GradientDirection", kLook, "Renvoie ou définit la direction du dégradé du fond."},
        {"GradientMusicColorEnd", kMusic, "Renvoie ou définit la fin du dégradé des musiques, premier jeu."},
        {"GradientMusicColorEnd2", kMusic, "Renvoie ou définit la fin du dégradé des musiques, second jeu."},
        {"GradientMusicColorStart", kMusic, "Renvoie ou définit le début du dégradé des musiques, premier jeu."},
        {"GradientMusicColorStart2", kMusic, "Renvoie ou définit le début du dégradé des musiques, second jeu."},
        {"LectureIndicPos", kRecord,
         "Renvoie ou définit la place des triangles de lecture : 0 en bas, 1 en haut, 2 les deux."},
        {"MargeGauche", kTime, "Renvoie ou définit la marge de gauche, celle de la première diapo, en pixels."},
        {"RecordBorderColor", kRecord, "Renvoie ou définit le contour de la barre d'enregistrement."},
        {"RecordGradientColorEnd", kRecord, "Renvoie ou définit la fin du dégradé de la barre d'enregistrement."},
        {"RecordGradientColorStart", kRecord, "Renvoie ou définit le début du dégradé de la barre d'enregistrement."},
        {"Round", kLook, "Arrondit les coins."},
        {"RoundBorder", kLook, "Renvoie ou définit le diamètre des coins arrondis, en pixels."},
        {"ShowBarres", kBars, "Affiche les barres."},
        {"StartPoint", kTime, "Renvoie ou définit la première diapo affichée."},
        {"Style", kTime, "Renvoie ou définit le style des repères de temps : libres, ou un par diapo."},
    };
    return table;
}

}  // namespace vorlane::designer

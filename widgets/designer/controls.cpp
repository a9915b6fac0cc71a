#include "widgets/designer/controls.h"

#include "widgets/designer/controlplugin.h"
#include "widgets/diapolightwidget.h"
#include "widgets/timelinewidget.h"
#include "widgets/vorlanewidget.h"

#include <utility>

namespace vorlane::designer {

namespace {

constexpr auto kSheet =
    "Une planche contact : une grille de diapos qui défile sur une liste de fichiers d'images, avec sélection, tri et "
    "glisser-déposer. L'hôte remplit la liste par Add ou InitListe, puis appelle StartLecture.";
constexpr auto kSlide =
    "Une diapo : une image encadrée avec son nom, une légende, les boutons de lecture, de commentaire, de texte et "
    "d'informations, et un coin de zoom.";
constexpr auto kTimeLine =
    "Une ligne de temps, sous une planche contact : les repères de temps, les barres des musiques et celles des "
    "commentaires du diaporama. L'hôte l'attache à la planche et remplit Musiques et Comments.";

template <class Widget>
QWidget* Make(QWidget* parent) {
    return new Widget(parent);
}

}  // namespace

Controls::Controls(QObject* parent) : QObject(parent) {
    const auto add = [this](ControlDescription description) {
        controls_ << new ControlPlugin(std::move(description), this);
    };
    add({VorlaneWidget::staticMetaObject, "planche", "widgets/vorlanewidget.h", ":/vorlane/designer/sheet.svg",
         "Planche contact", kSheet, SheetProperties(), Make<VorlaneWidget>});
    add({DiapoLightWidget::staticMetaObject, "diapo", "widgets/diapolightwidget.h", ":/vorlane/designer/slide.svg",
         "Diapo", kSlide, SlideProperties(), Make<DiapoLightWidget>});
    add({TimeLineWidget::staticMetaObject, "ligneDeTemps", "widgets/timelinewidget.h",
         ":/vorlane/designer/timeline.svg", "Ligne de temps", kTimeLine, TimeLineProperties(), Make<TimeLineWidget>});
}

}  // namespace vorlane::designer

#include "widgets/designer/controls.h"

#include "widgets/designer/controlplugin.h"
#include "widgets/diapolightwidget.h"
#include "widgets/vorlanewidget.h"

namespace vorlane::designer {

namespace {

template <class Widget>
QWidget* Make(QWidget* parent) {
    return new Widget(parent);
}

}  // namespace

Controls::Controls(QObject* parent) : QObject(parent) {
    controls_ << new ControlPlugin(
        {VorlaneWidget::staticMetaObject, "planche", "widgets/vorlanewidget.h", ":/vorlane/designer/sheet.svg",
         "Planche contact",
         "Une planche contact : une grille de diapos qui défile sur une liste de fichiers d'images, avec sélection, "
         "tri "
         "et glisser-déposer. L'hôte remplit la liste par Add ou InitListe, puis appelle StartLecture.",
         SheetProperties(), Make<VorlaneWidget>},
        this);
    controls_ << new ControlPlugin({DiapoLightWidget::staticMetaObject, "diapo", "widgets/diapolightwidget.h",
                                    ":/vorlane/designer/slide.svg", "Diapo",
                                    "Une diapo : une image encadrée avec son nom, une légende, les boutons de lecture, "
                                    "de commentaire, de texte et "
                                    "d'informations, et un coin de zoom.",
                                    SlideProperties(), Make<DiapoLightWidget>},
                                   this);
}

}  // namespace vorlane::designer

// QtDesktop: the Qt desktop's roles together, with what painting needs. It must not outlive the application object,
// and outlives every control that it was given to.
#pragma once

#include "platform/qt/looks.h"
#include "platform/qt/painttools.h"
#include "platform/qt/qtclock.h"
#include "platform/qt/qtdialogs.h"
#include "platform/qt/qtdrags.h"
#include "platform/qt/qtfilms.h"
#include "platform/qt/qtforms.h"
#include "platform/qt/qtkeyboard.h"
#include "platform/qt/qtmenus.h"
#include "platform/qt/qtpictures.h"
#include "platform/qt/qtscreen.h"
#include "platform/qt/qtsounds.h"
#include "platform/qt/qttextmetrics.h"
#include "platform/qt/qttexts.h"
#include "platform/qt/qttooltips.h"
#include "platform/qt/qtwindows.h"
#include "platform/qt/scaledpictures.h"
#include "platform/sharedobjects.h"

#include <QObject>

class QCoreApplication;

namespace vorlane {

class QtDesktop final : public QObject {
    Q_OBJECT

public:
    explicit QtDesktop(QObject* parent = nullptr);

    // The desktop that the controls of a program share when nothing else is said. It is made when it is asked for
    // first, and ends when the application object does.
    static QtDesktop& Of(QCoreApplication& application);

    Desktop Roles() {
        return {clock,  screen, keyboard, metrics, windows,  drags, dialogs, pictures,
                sounds, texts,  forms,    films,   tooltips, menus, shared};
    }
    // Whether the controls that are made run; false in a form designer.
    bool UserMode = true;

    PaintTools Tools() { return {screen, metrics, scaled, looks, replays}; }

    QtClock clock;
    QtWindows windows;
    QtScreen screen{windows};
    QtKeyboard keyboard;
    QtTextMetrics metrics;
    QtDrags drags{windows};
    QtDialogs dialogs;
    QtPictures pictures;
    QtSounds sounds;
    QtTexts texts;
    ScaledPictures scaled;
    Looks looks;
    Looks replays;
    QtForms forms{windows, Tools()};
    QtFilms films{pictures};
    QtTooltips tooltips{windows, screen};
    QtMenus menus{windows};
    SharedObjects shared;
};

}  // namespace vorlane

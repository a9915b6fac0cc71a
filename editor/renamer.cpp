#include "editor/renamer.h"

#include "editor/navigator.h"
#include "editor/show.h"
#include "widgets/vorlanewidget.h"

#include <utility>

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QMouseEvent>

namespace vorlane::editor {

Renamer::Renamer(VorlaneWidget& sheet, Show& show, Navigator& navigator, QObject* parent)
    : QObject(parent), sheet_(sheet), show_(show), navigator_(navigator) {
    sheet.installEventFilter(this);
    connect(&sheet, &VorlaneWidget::OnAfterEdit, this, &Renamer::Edited);
    connect(&sheet, &VorlaneWidget::OnRenameError, this,
            [](int, const QString& newName, const QString&, QString* message) {
                *message = tr("Un autre fichier porte déjà le nom « %1 ».").arg(QFileInfo(newName).fileName());
            });
    connect(&sheet, &VorlaneWidget::OnScroll, this, [this] {
        Forget();
        sheet_.EndEdit(true);
    });
    noDoubleClick_.setSingleShot(true);
    connect(&noDoubleClick_, &QTimer::timeout, this, [this] { start(std::exchange(clicked_, -1)); });
}

void Renamer::start(int listIndex) {
    Forget();
    if (listIndex < 0 || show_.isBusy()) return;
    show_.reveal(listIndex);
    const int slide = navigator_.slideOf(listIndex);
    if (slide >= 0) sheet_.StartEdit(slide);
}

// While the show is at work, its list waits.
void Renamer::Edited(const QString& newName, const QString& oldName, bool canceled) {
    if (canceled) return;
    if (show_.isBusy()) {
        QTimer::singleShot(1, this, [this, newName, oldName] { Edited(newName, oldName, false); });
        return;
    }
    show_.renamed(oldName, newName);
    Q_EMIT renamed(oldName, newName);
}

// --- The ways in ---

bool Renamer::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
            Forget();
            return Key(static_cast<const QKeyEvent&>(*event));
        case QEvent::MouseButtonPress:
            Press(static_cast<const QMouseEvent&>(*event));
            break;
        case QEvent::MouseButtonRelease:
            Release(static_cast<const QMouseEvent&>(*event));
            break;
        case QEvent::MouseButtonDblClick:
        case QEvent::FocusOut:
        case QEvent::Wheel:
            Forget();
            break;
        case QEvent::Resize:
            Forget();
            sheet_.EndEdit(true);
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

bool Renamer::Key(const QKeyEvent& event) {
    if (event.key() != Qt::Key_F2 || event.modifiers() != Qt::NoModifier) return false;
    start(navigator_.current());
    return true;
}

int Renamer::NamedAt(const QPointF& place) const {
    const QList<int> selected = sheet_.SelectedTableau();
    if (selected.size() != 1) return -1;
    const int slide = navigator_.slideOf(selected.front());
    return slide >= 0 && sheet_.NameRect(slide).contains(place) ? selected.front() : -1;
}

// Here the selection is still what it was before this press.
void Renamer::Press(const QMouseEvent& event) {
    Forget();
    const bool plain = event.button() == Qt::LeftButton && event.modifiers() == Qt::NoModifier;
    pressed_ = event.position();
    if (plain && sheet_.hasFocus()) clicked_ = NamedAt(pressed_);
}

void Renamer::Release(const QMouseEvent& event) {
    if (clicked_ < 0) return;
    const bool moved = (event.position() - pressed_).manhattanLength() >= QApplication::startDragDistance();
    if (moved) return Forget();
    noDoubleClick_.start(QApplication::doubleClickInterval());
}

void Renamer::Forget() {
    clicked_ = -1;
    noDoubleClick_.stop();
}

}  // namespace vorlane::editor

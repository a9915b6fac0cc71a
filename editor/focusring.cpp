#include "editor/focusring.h"

#include "editor/navigator.h"
#include "widgets/vorlanewidget.h"

#include <QEvent>
#include <QPainter>

namespace vorlane::editor {

namespace {

constexpr double kWidth = 2;

}  // namespace

FocusRing::FocusRing(VorlaneWidget& sheet, const Navigator& navigator)
    : QWidget(&sheet), sheet_(sheet), navigator_(navigator) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(sheet.rect());
    sheet.installEventFilter(this);
    connect(&navigator, &Navigator::moved, this, [this] { update(); });
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) setGeometry(sheet_.rect());
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) update();
    return QWidget::eventFilter(watched, event);
}

void FocusRing::paintEvent(QPaintEvent*) {
    if (!sheet_.hasFocus()) return;
    const int slide = navigator_.slideOf(navigator_.current());
    if (slide < 0) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), kWidth));
    const double outside = kWidth / 2 + 1;
    painter.drawRoundedRect(sheet_.DiapoRect(slide).adjusted(-outside, -outside, outside, outside), 3, 3);
}

}  // namespace vorlane::editor

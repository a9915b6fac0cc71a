#include "editor/focusring.h"

#include "editor/navigator.h"
#include "widgets/vorlanewidget.h"

#include <QEvent>
#include <QPainter>

namespace vorlane::editor {

namespace {

constexpr double kWidth = 2;

// All that the ring of a slide can cover.
QRectF Around(const QRectF& slide) {
    const double outside = 2 * kWidth;
    return slide.isEmpty() ? slide : slide.adjusted(-outside, -outside, outside, outside);
}

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

QRectF FocusRing::Slide() const {
    const int slide = navigator_.slideOf(navigator_.current());
    return sheet_.hasFocus() && slide >= 0 ? sheet_.DiapoRect(slide) : QRectF();
}

// A slide that makes room for a drag takes its ring along. What is painted then is the slide and the place where it
// was, and so only a part of either ring.
void FocusRing::paintEvent(QPaintEvent*) {
    const QRectF slide = Slide();
    if (slide != painted_) {
        for (const QRectF& place : {painted_, slide}) update(Around(place).toAlignedRect());
        painted_ = slide;
    }
    if (slide.isEmpty()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), kWidth));
    const double outside = kWidth / 2 + 1;
    painter.drawRoundedRect(slide.adjusted(-outside, -outside, outside, outside), 3, 3);
}

}  // namespace vorlane::editor

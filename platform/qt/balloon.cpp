#include "platform/qt/balloon.h"

#include <algorithm>

#include <QApplication>
#include <QBitmap>
#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QStyle>

namespace vorlane {

namespace {

constexpr int kMargin = 8;
constexpr int kGap = 6;
constexpr int kIcon = 16;
constexpr int kRadius = 6;
constexpr int kStemHeight = 10;
constexpr int kStemWidth = 12;
constexpr int kStemInset = 18;  // of the stem's middle, from either side
constexpr int kWidest = 600;
constexpr int kTextFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap | Qt::TextExpandTabs;

QFont Bold(QFont font) {
    font.setBold(true);
    return font;
}

QSize SizeOf(const QString& text, const QFont& font) {
    if (text.isEmpty()) return {0, 0};
    return QFontMetrics(font).boundingRect(QRect(0, 0, kWidest, 10000), kTextFlags, text).size();
}

QIcon IconOf(int number) {
    const QStyle* style = QApplication::style();
    if (number == 1) return style->standardIcon(QStyle::SP_MessageBoxInformation);
    if (number == 2) return style->standardIcon(QStyle::SP_MessageBoxWarning);
    return number == 3 ? style->standardIcon(QStyle::SP_MessageBoxCritical) : QIcon();
}

bool IsLight(const QColor& color) {
    return qGray(color.rgb()) > 127;
}

bool TooNear(const QColor& text, const QColor& ground) {
    return std::abs(qGray(text.rgb()) - qGray(ground.rgb())) < 80;
}

// The outline of a balloon, or of a plain box without a stem, in a widget of that size.
QPainterPath Outline(const QSize& size, const BalloonPlace& place, bool pointed) {
    const double radius = pointed ? kRadius : 2;
    QRectF body = QRectF(QPointF(0, 0), QSizeF(size)).adjusted(0.5, 0.5, -0.5, -0.5);
    if (!pointed) {
        QPainterPath box;
        box.addRoundedRect(body, radius, radius);
        return box;
    }
    body.adjust(0, place.below ? kStemHeight : 0, 0, place.below ? 0 : -kStemHeight);
    const double base = place.below ? body.top() + 1 : body.bottom() - 1;
    const double tip = place.below ? 0.5 : size.height() - 0.5;
    QPainterPath outline;
    outline.addRoundedRect(body, radius, radius);
    QPainterPath stem;
    stem.addPolygon(QPolygonF({QPointF(place.stem - kStemWidth / 2.0, base), QPointF(place.stem, tip),
                               QPointF(place.stem + kStemWidth / 2.0, base)}));
    stem.closeSubpath();
    return outline.united(stem);
}

// The pixels that painting the outline with its rim touches.
QBitmap Filled(const QPainterPath& outline, const QSize& size) {
    QBitmap mask(size);
    mask.clear();
    QPainter painter(&mask);
    painter.setPen(Qt::color1);
    painter.setBrush(Qt::color1);
    painter.drawPath(outline);
    return mask;
}

}  // namespace

BalloonPlace PlaceBalloon(QPoint place, QSize body, const QRect& screen) {
    BalloonPlace found;
    found.below = place.y() + kStemHeight + body.height() <= screen.bottom() + 1 ||
                  place.y() - kStemHeight - body.height() < screen.top();
    const int top = found.below ? place.y() + kStemHeight : place.y() - kStemHeight - body.height();
    const int rightmost = std::max(screen.left(), screen.right() + 1 - body.width());
    const int left = std::clamp(place.x() - kStemInset, screen.left(), rightmost);
    found.body = QRect(QPoint(left, top), body);
    found.stem = std::clamp(place.x() - left, kStemInset, std::max(kStemInset, body.width() - kStemInset));
    return found;
}

Balloon::Balloon(bool pointed)
    : QWidget(nullptr, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus |
                           Qt::WindowTransparentForInput),
      pointed_(pointed) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    SetTextColor(palette().color(QPalette::ToolTipText));
    SetGroundColor(palette().color(QPalette::ToolTipBase));
}

void Balloon::SetHeading(Heading heading) {
    heading_ = std::move(heading);
    Rearrange();
}

void Balloon::SetText(const QString& text) {
    text_ = text;
    Rearrange();
}

void Balloon::SetTextColor(const QColor& color) {
    textColor_ = color;
    update();
}

void Balloon::SetGroundColor(const QColor& color) {
    groundColor_ = color;
    update();
}

QColor Balloon::InkColor() const {
    if (!TooNear(textColor_, groundColor_)) return textColor_;
    return IsLight(groundColor_) ? Qt::black : Qt::white;
}

// --- Layout ---

QSize Balloon::BodySize() const {
    const QSize title = SizeOf(heading_.text, Bold(font()));
    const QSize text = SizeOf(text_, font());
    const bool icon = heading_.icon != 0 && !heading_.text.isEmpty();
    const int titleWidth = title.width() + (icon ? kIcon + kGap : 0);
    const int titleHeight = std::max(title.height(), icon ? kIcon : 0);
    const int gap = titleHeight > 0 && text.height() > 0 ? kGap : 0;
    return {std::max({titleWidth, text.width(), 2 * kStemInset - 2 * kMargin}) + 2 * kMargin,
            titleHeight + gap + text.height() + 2 * kMargin};
}

QRect Balloon::HeadingBox(const QRect& inside) const {
    if (heading_.text.isEmpty()) return {};
    const int height = SizeOf(heading_.text, Bold(font())).height();
    return {inside.left(), inside.top(), inside.width(), std::max(height, heading_.icon != 0 ? kIcon : 0)};
}

QRect Balloon::TextBox(const QRect& inside) const {
    const QRect heading = HeadingBox(inside);
    return inside.adjusted(0, heading.isEmpty() ? 0 : heading.height() + kGap, 0, 0);
}

void Balloon::PointAt(QPoint place, bool centred) {
    target_ = place;
    centred_ = centred;
    Rearrange();
}

void Balloon::Rearrange() {
    const QSize body = BodySize();
    const QPoint target = target_.value_or(QPoint());
    const QScreen* screen = QGuiApplication::screenAt(target);
    if (screen == nullptr) screen = QGuiApplication::primaryScreen();
    const QRect room = screen == nullptr ? QRect(0, 0, 800, 600) : screen->availableGeometry();
    place_ = PlaceBalloon(target, body, room);
    if (centred_) {
        const int rightmost = std::max(room.left(), room.right() + 1 - body.width());
        place_.body.moveLeft(std::clamp(target.x() - body.width() / 2, room.left(), rightmost));
        place_.stem = std::clamp(target.x() - place_.body.left(), kStemInset, body.width() - kStemInset);
    }
    QRect whole = place_.body;
    if (pointed_) whole.adjust(0, place_.below ? -kStemHeight : 0, 0, place_.below ? 0 : kStemHeight);
    setGeometry(whole);
    setMask(Filled(Outline(size(), place_, pointed_), size()));
    update();
}

void Balloon::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) Rearrange();
}

// --- Painting ---

void Balloon::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), groundColor_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(IsLight(groundColor_) ? groundColor_.darker(160) : groundColor_.lighter(220));
    painter.setBrush(groundColor_);
    painter.drawPath(Outline(size(), place_, pointed_));

    const QRect body =
        rect().adjusted(0, pointed_ && place_.below ? kStemHeight : 0, 0, pointed_ && !place_.below ? -kStemHeight : 0);
    const QRect inside = body.adjusted(kMargin, kMargin, -kMargin, -kMargin);
    QRect heading = HeadingBox(inside);
    painter.setPen(InkColor());
    if (!heading.isEmpty()) {
        if (heading_.icon != 0) {
            IconOf(heading_.icon).paint(&painter, QRect(heading.topLeft(), QSize(kIcon, kIcon)));
            heading.setLeft(heading.left() + kIcon + kGap);
        }
        painter.setFont(Bold(font()));
        painter.drawText(heading, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, heading_.text);
    }
    painter.setFont(font());
    painter.drawText(TextBox(inside), kTextFlags, text_);
}

}  // namespace vorlane

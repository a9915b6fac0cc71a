#include "platform/qt/formwidget.h"

#include "platform/numbers.h"
#include "platform/qt/colors.h"
#include "platform/qt/regions.h"
#include "platform/qt/widgetpainting.h"
#include "platform/usercontrol.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QVariantAnimation>

namespace vorlane {

namespace {

constexpr int kMillisecondsAStep = 16;
constexpr int kMostSteps = 10;

}  // namespace

FormWidget::FormWidget(const PaintTools& tools)
    : QWidget(nullptr, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus |
                           Qt::WindowTransparentForInput),
      tools_(tools) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
}

void FormWidget::SetContent(UserControl& content) {
    content_ = &content;
    damaged_ = content.Damaged.connect([this](const Box& box) {
        update(TouchedBy(box));
        if (key_) ShapeByKeySoon();
    });
    update();
}

void FormWidget::SetRegion(const Region& region) {
    region_ = ToQRegion(region);
    Shape();
}

void FormWidget::SetColorKey(std::optional<OLE_COLOR> key) {
    key_ = key;
    key_ ? ShapeByKeySoon() : Shape();
}

// --- Painting ---

void FormWidget::paintEvent(QPaintEvent* event) {
    if (content_ != nullptr) PaintContent(event->region());
    QPainter(this).drawPixmap(0, 0, seen_);
}

void FormWidget::PaintContent(QRegion part) {
    const double scale = devicePixelRatioF();
    const QSize pixels = (QSizeF(size()) * scale).toSize();
    if (seen_.size() != pixels) {
        seen_ = QPixmap(pixels);
        part = rect();
    }
    seen_.setDevicePixelRatio(scale);
    QPainter painter(&seen_);
    PaintOnWidget(painter, part, *content_, tools_);
}

// --- Shape ---

void FormWidget::Shape() {
    QRegion shape = region_.value_or(QRegion(rect()));
    if (key_) shape -= KeyedOut();
    if (remaining_) shape &= *remaining_;
    if (shape == QRegion(rect())) return clearMask();
    // An empty mask would mean the whole window.
    setMask(shape.isEmpty() ? QRegion(-1, -1, 1, 1) : shape);
}

void FormWidget::ShapeByKeySoon() {
    if (std::exchange(shapesSoon_, true)) return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            shapesSoon_ = false;
            if (content_ != nullptr) PaintContent(rect());
            Shape();
        },
        Qt::QueuedConnection);
}

QRegion FormWidget::KeyedOut() const {
    const QRgb key = ToQColor(*key_, tools_.screen).rgb();
    const double scale = seen_.devicePixelRatio();
    const QImage image = seen_.toImage().convertToFormat(QImage::Format_RGB32);
    const auto isHole = [&](int x, int y) {
        const QPoint pixel(ToInt32(Int((x + 0.5) * scale)), ToInt32(Int((y + 0.5) * scale)));
        return image.valid(pixel) && image.pixel(pixel) == key;
    };
    std::vector<QRect> runs;
    for (int y = 0; y < height(); ++y) {
        for (int x = 0; x < width(); ++x) {
            if (!isHole(x, y)) continue;
            const int start = x;
            while (x + 1 < width() && isHole(x + 1, y)) ++x;
            runs.emplace_back(QPoint(start, y), QPoint(x, y));
        }
    }
    QRegion holes;
    holes.setRects(runs.data(), static_cast<int>(runs.size()));
    return holes;
}

// --- Closing ---

void FormWidget::CloseInto(const ClosingEffect& effect) {
    damaged_ = {};
    content_ = nullptr;
    auto* closing = new QVariantAnimation(this);
    closing->setStartValue(0.0);
    closing->setEndValue(1.0);
    closing->setDuration(std::min(effect.Steps, kMostSteps) * kMillisecondsAStep);
    closing->setEasingCurve(QEasingCurve::InQuad);
    connect(closing, &QVariantAnimation::valueChanged, this, [this, corner = effect.Corner](const QVariant& done) {
        remaining_ = Remaining(corner, done.toDouble());
        Shape();
    });
    connect(closing, &QVariantAnimation::finished, this, [this] {
        hide();
        deleteLater();
    });
    closing->start();
}

QRect FormWidget::Remaining(ClosingCorner corner, double done) const {
    QRect left(0, 0, ToInt32(width() * (1 - done)), ToInt32(height() * (1 - done)));
    if (corner == ClosingCorner::TopRight || corner == ClosingCorner::BottomRight) left.moveRight(rect().right());
    if (corner == ClosingCorner::BottomLeft || corner == ClosingCorner::BottomRight) left.moveBottom(rect().bottom());
    return left;
}

}  // namespace vorlane

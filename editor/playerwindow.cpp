#include "editor/playerwindow.h"

#include <algorithm>
#include <utility>

#include <QFileInfo>
#include <QKeyEvent>
#include <QPainter>

namespace vorlane::editor {

namespace {

constexpr int kPointerTime = 1500;  // milliseconds that the pointer shows after a move
constexpr int kNoticeTime = 6000;   // milliseconds
constexpr int kTextMargin = 24;     // pixels, from the window's edges
constexpr QMargins kTextPadding(12, 6, 12, 6);
constexpr int kTextGap = 6;
constexpr double kTextSize = 1.4;  // times the usual
constexpr QColor kText(0xd8, 0xd8, 0xd8);

QString TroubleText(const QString& path, ReadPicture::State state) {
    const QString name = QFileInfo(path).fileName();
    switch (state) {
        case ReadPicture::State::Fine:
            return {};
        case ReadPicture::State::Missing:
            return PlayerWindow::tr("Image introuvable : %1").arg(name);
        case ReadPicture::State::Unreadable:
            return PlayerWindow::tr("Image illisible : %1").arg(name);
        case ReadPicture::State::Damaged:
            return PlayerWindow::tr("Image abîmée : %1").arg(name);
    }
    return {};
}

}  // namespace

PlayerWindow::PlayerWindow(ThumbnailDecoder decoder, QWidget* parent)
    : QWidget(parent, Qt::Window), loader_(std::move(decoder)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::BlankCursor);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(160, 120);
    setAccessibleName(tr("Lecture du diaporama"));
    setWindowTitle(tr("Lecture du diaporama"));
    fading_.setDuration(kFade);
    fading_.setStartValue(0.0);
    fading_.setEndValue(1.0);
    fading_.setEasingCurve(QEasingCurve::InOutSine);
    connect(&fading_, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        fade_ = value.toDouble();
        update();
    });
    connect(&fading_, &QVariantAnimation::finished, this, [this] { former_ = {}; });
    connect(&loader_, &PictureLoader::loaded, this, &PlayerWindow::Take);
    restless_.setSingleShot(true);
    connect(&restless_, &QTimer::timeout, this, [this] { setCursor(Qt::BlankCursor); });
    noticeEnd_.setSingleShot(true);
    connect(&noticeEnd_, &QTimer::timeout, this, [this] {
        notice_.clear();
        update();
    });
}

void PlayerWindow::present(const QString& path) {
    loader_.want(path, Edge());
}

void PlayerWindow::expect(const QString& path) {
    loader_.expect(path, Edge());
}

void PlayerWindow::setPaused(bool paused) {
    if (std::exchange(paused_, paused) != paused) update();
}

void PlayerWindow::tell(const QString& notice) {
    notice_ = notice;
    noticeEnd_.start(kNoticeTime);
    update();
}

QStringList PlayerWindow::texts() const {
    QStringList texts{trouble_, notice_, paused_ ? tr("Pause") : QString()};
    texts.removeAll(QString());
    return texts;
}

// The window's longer side in the pixels of its screen.
int PlayerWindow::Edge() const {
    const QSizeF pixels = QSizeF(size()) * devicePixelRatioF();
    return qRound(std::max(pixels.width(), pixels.height()));
}

void PlayerWindow::Take(const QString& path, const ReadPicture& picture) {
    former_ = std::exchange(picture_, picture.image);
    trouble_ = TroubleText(path, picture.state);
    fading_.stop();
    fade_ = 0;  // the animation itself begins with its first step
    fading_.start();
    update();
}

// --- Painting ---

void PlayerWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    DrawFitted(painter, former_, 1 - fade_);
    DrawFitted(painter, picture_, fade_);
    DrawTexts(painter);
}

// Two pictures that fade into each other add up, so that what they share does not darken on the way.
void PlayerWindow::DrawFitted(QPainter& painter, const QImage& image, double opacity) const {
    if (image.isNull() || opacity <= 0) return;
    const QSizeF fitted = QSizeF(image.size()).scaled(QSizeF(size()), Qt::KeepAspectRatio);
    QRectF place(QPointF(), fitted);
    place.moveCenter(QRectF(rect()).center());
    painter.setOpacity(opacity);
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    painter.drawImage(place, image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setOpacity(1);
}

// From the bottom up.
void PlayerWindow::DrawTexts(QPainter& painter) const {
    QRect room = rect().marginsRemoved({kTextMargin, kTextMargin, kTextMargin, kTextMargin});
    const QStringList lines = texts();
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * kTextSize);
    painter.setFont(large);
    painter.setRenderHint(QPainter::Antialiasing);
    for (auto line = lines.crbegin(); line != lines.crend(); ++line) {
        const QRect within = room.marginsRemoved(kTextPadding);
        const QString text = painter.fontMetrics().elidedText(*line, Qt::ElideMiddle, within.width());
        const QRect place = painter.fontMetrics().boundingRect(within, Qt::AlignHCenter | Qt::AlignBottom, text);
        const QRect ground = place.marginsAdded(kTextPadding);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, 170));
        painter.drawRoundedRect(ground, 6, 6);
        painter.setPen(kText);
        painter.drawText(place, Qt::AlignCenter, text);
        room.setBottom(ground.top() - kTextGap);
    }
}

// --- The user ---

void PlayerWindow::closeEvent(QCloseEvent* event) {
    QWidget::closeEvent(event);
    loader_.forget();
    fading_.stop();
    picture_ = former_ = {};
    trouble_.clear();
    notice_.clear();
    Q_EMIT endAsked();
}

void PlayerWindow::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Escape:
            close();
            break;
        case Qt::Key_Space:
            Q_EMIT pauseAsked();
            break;
        case Qt::Key_Right:
        case Qt::Key_Down:
        case Qt::Key_PageDown:
            Q_EMIT stepAsked(1);
            break;
        case Qt::Key_Left:
        case Qt::Key_Up:
        case Qt::Key_PageUp:
            Q_EMIT stepAsked(-1);
            break;
        default:
            QWidget::keyPressEvent(event);
    }
}

void PlayerWindow::mouseMoveEvent(QMouseEvent*) {
    setCursor(Qt::ArrowCursor);
    restless_.start(kPointerTime);
}

void PlayerWindow::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) Q_EMIT stepAsked(1);
    if (event->button() == Qt::RightButton) Q_EMIT stepAsked(-1);
}

}  // namespace vorlane::editor

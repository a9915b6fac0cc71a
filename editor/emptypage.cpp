#include "editor/emptypage.h"

#include "editor/colors.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace vorlane::editor {

namespace {

constexpr int kMargin = 24;
constexpr QSize kDrawing(132, 92);

// Three slides that lie on each other, in shades of the palette.
class Drawing : public QWidget {
public:
    explicit Drawing(QWidget* parent) : QWidget(parent) { setFixedSize(kDrawing); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(width() / 2.0, height() / 2.0 + 4);
        PaintSlide(painter, -11, {-22, -3}, 22);
        PaintSlide(painter, 10, {22, -3}, 30);
        PaintSlide(painter, -1, {0, 2}, 44);
    }

private:
    void PaintSlide(QPainter& painter, double angle, QPointF place, int strength) const {
        const QColor ink = palette().color(QPalette::WindowText);
        const QColor paper = palette().color(QPalette::Window);
        const QRectF frame(-34, -26, 68, 52);
        painter.save();
        painter.translate(place);
        painter.rotate(angle);
        painter.setPen(QPen(Mixed(ink, paper, strength), 1.6));
        painter.setBrush(palette().color(QPalette::Base));
        painter.drawRoundedRect(frame, 4, 4);
        const QRectF picture = frame.adjusted(6, 6, -6, -6);
        painter.setClipRect(picture);
        painter.setPen(Qt::NoPen);
        painter.fillRect(picture, Mixed(ink, paper, strength / 4));
        painter.setBrush(Mixed(ink, paper, strength * 2 / 3));
        painter.drawEllipse(QPointF(14, -9), 5, 5);
        painter.drawPolygon(QPolygonF({{-34, 24}, {-10, -4}, {4, 12}, {12, 4}, {32, 24}}));
        painter.restore();
    }
};

QFont Larger(QFont font) {
    font.setPointSizeF(font.pointSizeF() * 1.45);
    return font;
}

}  // namespace

EmptyPage::EmptyPage(QWidget* parent)
    : QWidget(parent), title_(new QLabel(this)), hint_(new QLabel(this)), button_(new QPushButton(this)) {
    title_->setFont(Larger(font()));
    for (QLabel* label : {title_, hint_}) {
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
    }
    button_->setObjectName(QStringLiteral("openFolder"));
    button_->setMinimumHeight(button_->sizeHint().height() + 6);
    button_->setAutoDefault(true);  // Enter presses it
    setFocusProxy(button_);
    connect(button_, &QPushButton::clicked, this, &EmptyPage::openRequested);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->addStretch(4);
    column->addWidget(new Drawing(this), 0, Qt::AlignCenter);
    column->addSpacing(14);
    column->addWidget(title_);
    column->addSpacing(2);
    column->addWidget(hint_);
    column->addSpacing(18);
    column->addWidget(button_, 0, Qt::AlignCenter);
    column->addStretch(5);
    ApplyPalette();
}

void EmptyPage::setTexts(const QString& title, const QString& hint, const QString& button) {
    title_->setText(title);
    hint_->setText(hint);
    button_->setText(button);
    button_->setMinimumWidth(button_->sizeHint().width() + kMargin);
}

void EmptyPage::setDropping(bool dropping) {
    dropping_ = dropping;
    update();
}

QString EmptyPage::title() const {
    return title_->text();
}

void EmptyPage::ApplyPalette() {
    QPalette quiet = palette();
    quiet.setColor(QPalette::WindowText, Mixed(quiet.color(QPalette::WindowText), quiet.color(QPalette::Window), 65));
    hint_->setPalette(quiet);
}

void EmptyPage::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) ApplyPalette();
}

void EmptyPage::paintEvent(QPaintEvent*) {
    if (!dropping_) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2, Qt::DashLine));
    painter.drawRoundedRect(QRectF(rect()).adjusted(11, 11, -11, -11), 8, 8);
}

}  // namespace vorlane::editor

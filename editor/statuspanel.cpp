#include "editor/statuspanel.h"

#include "editor/slidesize.h"
#include "widgets/timelinewidget.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QSlider>
#include <QStyle>
#include <QToolButton>

namespace vorlane::editor {

namespace {

constexpr int kSliderWidth = 150;
constexpr int kProgressWidth = 140;
constexpr int kProgressHeight = 8;
constexpr int kMargin = 8;

// A line that ends in an ellipsis where there is no room for all of it.
class ElidedLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QString line = fontMetrics().elidedText(text(), Qt::ElideRight, width());
        style()->drawItemText(&painter, rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), line,
                              foregroundRole());
    }
};

}  // namespace

StatusPanel::StatusPanel(QWidget* parent)
    : QWidget(parent),
      text_(new ElidedLabel(this)),
      length_(new QLabel(this)),
      progress_(new QProgressBar(this)),
      smaller_(MakeButton(QStringLiteral("\u2212"))),
      slider_(new QSlider(Qt::Horizontal, this)),
      larger_(MakeButton(QStringLiteral("+"))),
      percent_(new QLabel(this)) {
    text_->setObjectName(QStringLiteral("status"));
    text_->setTextFormat(Qt::PlainText);
    text_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    length_->setObjectName(QStringLiteral("length"));
    length_->hide();
    progress_->setTextVisible(false);
    progress_->setFixedSize(kProgressWidth, kProgressHeight);
    progress_->hide();
    slider_->setObjectName(QStringLiteral("zoom"));
    slider_->setFixedWidth(kSliderWidth);
    slider_->setRange(slidesize::kLeast, slidesize::kMost);
    slider_->setSingleStep(slidesize::kStep);
    slider_->setPageStep(2 * slidesize::kStep);
    slider_->setFocusPolicy(Qt::TabFocus);
    percent_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    percent_->setFixedWidth(percent_->fontMetrics().horizontalAdvance(QStringLiteral("9999 %")));

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(kMargin, 2, kMargin, 2);
    row->addWidget(text_, 1);
    row->addWidget(length_);
    row->addSpacing(kMargin);
    row->addWidget(progress_);
    row->addSpacing(2 * kMargin);
    for (QWidget* part : ZoomParts()) row->addWidget(part);

    connect(smaller_, &QToolButton::clicked, this, [this] { setSlideWidth(slidesize::Smaller(slideWidth())); });
    connect(larger_, &QToolButton::clicked, this, [this] { setSlideWidth(slidesize::Larger(slideWidth())); });
    connect(slider_, &QSlider::valueChanged, this, &StatusPanel::ShowPercent);
    connect(slider_, &QSlider::valueChanged, this, &StatusPanel::slideWidthChanged);
    slider_->setValue(slidesize::kUsual);
    Retranslate();
}

std::array<QWidget*, 4> StatusPanel::ZoomParts() const {
    return {smaller_, slider_, larger_, percent_};
}

void StatusPanel::setZoomShown(bool shown) {
    for (QWidget* part : ZoomParts()) part->setVisible(shown);
}

QToolButton* StatusPanel::MakeButton(const QString& sign) {
    auto* button = new QToolButton(this);
    button->setText(sign);
    button->setAutoRaise(true);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

void StatusPanel::Retranslate() {
    smaller_->setToolTip(tr("Diapositives plus petites"));
    larger_->setToolTip(tr("Diapositives plus grandes"));
    slider_->setToolTip(tr("Taille des diapositives"));
    slider_->setAccessibleName(tr("Taille des diapositives"));
    length_->setToolTip(tr("Durée de tout le diaporama"));
    progress_->setAccessibleName(tr("Progression"));
    ShowLength();
    ShowPercent(slideWidth());
}

void StatusPanel::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) Retranslate();
}

void StatusPanel::setCounts(int images, int selected) {
    const QString count = tr("%Ln image(s)", nullptr, images);
    const QString marked = tr("%Ln sélectionnée(s)", nullptr, selected);
    text_->setText(selected > 0 ? tr("%1 — %2", "images, selected").arg(count, marked) : count);
}

void StatusPanel::setMessage(const QString& message) {
    text_->setText(message);
}

void StatusPanel::clear() {
    text_->clear();
}

QString StatusPanel::text() const {
    return text_->text();
}

void StatusPanel::setLength(qint64 seconds) {
    const int told = static_cast<int>(std::min(seconds, qint64{std::numeric_limits<int>::max()}));
    if (std::exchange(seconds_, told) != told) ShowLength();
}

QString StatusPanel::length() const {
    return length_->text();
}

void StatusPanel::ShowLength() {
    length_->setText(seconds_ == 0 ? QString() : tr("Durée : %1").arg(TimeLineWidget::SecondsToText(seconds_, true)));
    length_->setVisible(seconds_ != 0);
}

void StatusPanel::setProgress(int value, int maximum) {
    progress_->setMaximum(maximum);
    progress_->setValue(value);
    progress_->setVisible(value < maximum);
}

bool StatusPanel::isProgressShown() const {
    return !progress_->isHidden();
}

int StatusPanel::slideWidth() const {
    return slider_->value();
}

void StatusPanel::setSlideWidth(int width) {
    slider_->setValue(width);
}

void StatusPanel::ShowPercent(int width) {
    percent_->setText(tr("%L1 %").arg(slidesize::Percent(width)));
}

}  // namespace vorlane::editor

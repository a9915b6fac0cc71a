#include "editor/strip.h"

#include "editor/colors.h"
#include "editor/show.h"
#include "widgets/droppedfiles.h"
#include "widgets/filekind.h"
#include "widgets/vorlanewidget.h"

#include <algorithm>

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>

namespace vorlane::editor {

namespace {

constexpr int kHeight = 66;
constexpr int kBarHeight = 12;
constexpr int kBarMargin = 20;  // the labels of the marks stand below the lower row
constexpr double kLabelSize = 0.8;
constexpr double kRing = 2;

QStringList SoundsOf(const QMimeData& data) {
    QStringList sounds;
    for (const QString& file : DroppedFiles(data)) {
        if (FileKindOf(file) == FileKind::Sound) sounds.push_back(file);
    }
    return sounds;
}

// Empty for a slide that is not there.
QRectF SlideRect(const VorlaneWidget& sheet, int slide) {
    return slide < sheet.CountAffiche() ? sheet.DiapoRect(slide) : QRectF();
}

SheetSight SightOf(const VorlaneWidget& sheet) {
    const GridView view = ViewOf(sheet);
    const QRectF first = SlideRect(sheet, 0);
    const QRectF second = SlideRect(sheet, 1);
    SheetSight sight;
    sight.sideways = sheet.ScrollDirection() == ui::ScrollDirection::sdHorizontal;
    sight.first = view.top;
    sight.left = first.left();
    sight.pitch = second.isEmpty() ? first.width() + sheet.MargeDiapoMin() : second.left() - first.left();
    sight.cells = view.lineLength * view.lines;
    sight.width = sheet.width();
    return sight;
}

}  // namespace

Strip::Strip(VorlaneWidget& sheet, QWidget* parent) : TimeLineWidget(parent), sheet_(sheet) {
    setFixedHeight(kHeight);
    AttachVorlane(&sheet);
    SetRedraw(true);
    connect(&sheet, &VorlaneWidget::OnDisplayEnd, this, &Strip::Follow);
    connect(&sheet, &VorlaneWidget::OnScroll, this, &Strip::Follow);
    connect(&sheet, &VorlaneWidget::OnTLRefresh, this, &Strip::Follow);
}

QSize Strip::sizeHint() const {
    return {TimeLineWidget::sizeHint().width(), kHeight};
}

void Strip::applyLook(const QPalette& palette) {
    const QColor ground = palette.color(QPalette::Window);
    const QColor ink = palette.color(QPalette::WindowText);
    const QColor paper = palette.color(QPalette::Base);
    const QColor music = QColor::fromHsv(38, 200, 225);
    const QColor comment = QColor::fromHsv(150, 150, 185);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * kLabelSize);

    SetFont(small);
    SetForeColor(Mixed(ink, ground, 75));
    SetBorderColor(Mixed(ink, ground, 18));
    GradientColor(paper, Mixed(paper, ground, 40), 1);
    SetBarreHeight(kBarHeight);
    SetBarreMarge(kBarMargin);
    SetBorderMusicColor(Mixed(music, ink, 80));
    SetBorderMusicColor2(Mixed(music, ink, 80));
    SetGradientMusicColorStart(Mixed(music, paper, 80));
    SetGradientMusicColorEnd(Mixed(music, paper, 35));
    SetGradientMusicColorStart2(Mixed(music, paper, 55));
    SetGradientMusicColorEnd2(Mixed(music, paper, 20));
    SetBorderCommentColor(Mixed(comment, ink, 80));
    SetBorderCommentColor2(Mixed(comment, ink, 80));
    SetGradientCommentColorStart(Mixed(comment, paper, 80));
    SetGradientCommentColorEnd(Mixed(comment, paper, 35));
    SetGradientCommentColorStart2(Mixed(comment, paper, 55));
    SetGradientCommentColorEnd2(Mixed(comment, paper, 20));
}

// --- In step with the sheet ---

void Strip::Follow() {
    if (SlideRect(sheet_, 0).isEmpty()) return;
    scale_ = ScaleOf(SightOf(sheet_));
    SetStyle(scale_.markEach ? ui::TimeMarks::etltFollowDiapo : ui::TimeMarks::etltFree);
    SetMargeGauche(scale_.left - BorderWidth());
    SetDiapoWidth(scale_.slideWidth);
    SetStartPoint(scale_.startPoint);
}

void Strip::resizeEvent(QResizeEvent* event) {
    TimeLineWidget::resizeEvent(event);
    Follow();
}

int Strip::itemAt(double x) const {
    return ItemAt(x, scale_, sheet_.Liste().ListCount());
}

int Strip::keyOf(int listIndex) const {
    return listIndex < 0 || listIndex >= sheet_.Liste().ListCount() ? -1 : sheet_.Key(listIndex);
}

int Strip::itemOf(int key) const {
    return sheet_.GetListIndexFromItemData(key);
}

qint64 Strip::showSeconds() const {
    return qint64{sheet_.Liste().ListCount()} * ExpositionTime();
}

// --- Drops ---

Strip::Target Strip::TargetAt(const QPointF& place) const {
    return {place.y() < height() / 2.0 ? SoundKind::Music : SoundKind::Comment, itemAt(place.x())};
}

void Strip::SetTarget(std::optional<Target> target) {
    if (target == target_) return;
    target_ = target;
    update();
}

void Strip::dragEnterEvent(QDragEnterEvent* event) {
    if (itemAt(0) < 0 || SoundsOf(*event->mimeData()).isEmpty()) return event->ignore();
    event->setDropAction(Qt::CopyAction);
    event->accept();
    SetTarget(TargetAt(event->position()));
}

void Strip::dragMoveEvent(QDragMoveEvent* event) {
    event->setDropAction(Qt::CopyAction);
    event->accept();
    SetTarget(TargetAt(event->position()));
}

void Strip::dragLeaveEvent(QDragLeaveEvent*) {
    SetTarget(std::nullopt);
}

void Strip::dropEvent(QDropEvent* event) {
    SetTarget(std::nullopt);
    const Target target = TargetAt(event->position());
    const QStringList sounds = SoundsOf(*event->mimeData());
    if (target.item < 0 || sounds.isEmpty()) return event->ignore();
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Q_EMIT soundsDropped(target.kind, sounds, target.item);
}

// --- What lies over the time line ---

QRectF Strip::PlaceOf(const Target& target) const {
    const double left = scale_.left + (target.item - scale_.startPoint) * scale_.slideWidth;
    const double top = target.kind == SoundKind::Music ? kBarMargin : height() - kBarMargin - kBarHeight;
    return {left, top, scale_.slideWidth, double{kBarHeight}};
}

void Strip::focusInEvent(QFocusEvent* event) {
    TimeLineWidget::focusInEvent(event);
    update();
}

void Strip::focusOutEvent(QFocusEvent* event) {
    TimeLineWidget::focusOutEvent(event);
    update();
}

void Strip::paintEvent(QPaintEvent* event) {
    TimeLineWidget::paintEvent(event);
    if (!target_ && !hasFocus()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor accent = palette().color(QPalette::Highlight);
    painter.setPen(QPen(accent, kRing));
    if (hasFocus()) painter.drawRect(QRectF(rect()).adjusted(kRing / 2, kRing / 2, -kRing / 2, -kRing / 2));
    if (!target_) return;
    accent.setAlpha(70);
    painter.setBrush(accent);
    painter.drawRoundedRect(PlaceOf(*target_), 3, 3);
}

}  // namespace vorlane::editor

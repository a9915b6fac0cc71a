// The properties of the time line's widget.
#include "platform/numbers.h"
#include "platform/qt/colors.h"
#include "platform/qt/qtdesktop.h"
#include "timeline/etimeline.h"
#include "widgets/timelinewidget.h"

namespace vorlane {

int TimeLineWidget::BarreMarge() const {
    return line_.BarreMarge();
}

void TimeLineWidget::SetBarreMarge(int value) {
    Do("SetBarreMarge", [&] { line_.SetBarreMarge(ToByte(value)); });
}

int TimeLineWidget::BarreHeight() const {
    return line_.BarreHeight();
}

void TimeLineWidget::SetBarreHeight(int value) {
    Do("SetBarreHeight", [&] { line_.SetBarreHeight(ToByte(value)); });
}

int TimeLineWidget::BarreOnTop() const {
    return line_.BarreOnTop();
}

void TimeLineWidget::SetBarreOnTop(int value) {
    Do("SetBarreOnTop", [&] { line_.SetBarreOnTop(value); });
}

int TimeLineWidget::BorderStyle() const {
    return line_.BorderStyle();
}

void TimeLineWidget::SetBorderStyle(int value) {
    Do("SetBorderStyle", [&] { line_.SetBorderStyle(value); });
}

QColor TimeLineWidget::BorderColor() const {
    return ToQColor(line_.BorderColor(), Desktop().screen);
}

void TimeLineWidget::SetBorderColor(const QColor& color) {
    Do("SetBorderColor", [&] { line_.SetBorderColor(FromQColor(color)); });
}

QColor TimeLineWidget::BorderMusicColor() const {
    return ToQColor(line_.BorderMusicColor(), Desktop().screen);
}

void TimeLineWidget::SetBorderMusicColor(const QColor& color) {
    Do("SetBorderMusicColor", [&] { line_.SetBorderMusicColor(FromQColor(color)); });
}

QColor TimeLineWidget::BorderMusicColor2() const {
    return ToQColor(line_.BorderMusicColor2(), Desktop().screen);
}

void TimeLineWidget::SetBorderMusicColor2(const QColor& color) {
    Do("SetBorderMusicColor2", [&] { line_.SetBorderMusicColor2(FromQColor(color)); });
}

QColor TimeLineWidget::BorderCommentColor() const {
    return ToQColor(line_.BorderCommentColor(), Desktop().screen);
}

void TimeLineWidget::SetBorderCommentColor(const QColor& color) {
    Do("SetBorderCommentColor", [&] { line_.SetBorderCommentColor(FromQColor(color)); });
}

QColor TimeLineWidget::BorderCommentColor2() const {
    return ToQColor(line_.BorderCommentColor2(), Desktop().screen);
}

void TimeLineWidget::SetBorderCommentColor2(const QColor& color) {
    Do("SetBorderCommentColor2", [&] { line_.SetBorderCommentColor2(FromQColor(color)); });
}

bool TimeLineWidget::Enabled() const {
    return line_.Enabled();
}

void TimeLineWidget::SetEnabled(bool on) {
    Do("SetEnabled", [&] { line_.SetEnabled(on); });
}

QFont TimeLineWidget::Font() const {
    return ToQFont(line_.Font());
}

void TimeLineWidget::SetFont(const QFont& font) {
    Do("SetFont", [&] { line_.SetFont(FromQFont(font)); });
}

QColor TimeLineWidget::ForeColor() const {
    return ToQColor(line_.ForeColor(), Desktop().screen);
}

void TimeLineWidget::SetForeColor(const QColor& color) {
    Do("SetForeColor", [&] { line_.SetForeColor(FromQColor(color)); });
}

QColor TimeLineWidget::GradientColorStart() const {
    return ToQColor(line_.GradientColorStart(), Desktop().screen);
}

void TimeLineWidget::SetGradientColorStart(const QColor& color) {
    Do("SetGradientColorStart", [&] { line_.SetGradientColorStart(FromQColor(color)); });
}

QColor TimeLineWidget::GradientColorEnd() const {
    return ToQColor(line_.GradientColorEnd(), Desktop().screen);
}

void TimeLineWidget::SetGradientColorEnd(const QColor& color) {
    Do("SetGradientColorEnd", [&] { line_.SetGradientColorEnd(FromQColor(color)); });
}

bool TimeLineWidget::GradientColorInverse() const {
    return line_.GradientColorInverse();
}

void TimeLineWidget::SetGradientColorInverse(bool on) {
    Do("SetGradientColorInverse", [&] { line_.SetGradientColorInverse(on); });
}

int TimeLineWidget::GradientDirection() const {
    return line_.GradientDirection();
}

void TimeLineWidget::SetGradientDirection(int value) {
    Do("SetGradientDirection", [&] { line_.SetGradientDirection(value); });
}

QColor TimeLineWidget::GradientMusicColorStart() const {
    return ToQColor(line_.GradientMusicColorStart(), Desktop().screen);
}

void TimeLineWidget::SetGradientMusicColorStart(const QColor& color) {
    Do("SetGradientMusicColorStart", [&] { line_.SetGradientMusicColorStart(FromQColor(color)); });
}

QColor TimeLineWidget::GradientMusicColorEnd() const {
    return ToQColor(line_.GradientMusicColorEnd(), Desktop().screen);
}

void TimeLineWidget::SetGradientMusicColorEnd(const QColor& color) {
    Do("SetGradientMusicColorEnd", [&] { line_.SetGradientMusicColorEnd(FromQColor(color)); });
}

QColor TimeLineWidget::GradientCommentColorStart() const {
    return ToQColor(line_.GradientCommentColorStart(), Desktop().screen);
}

void TimeLineWidget::SetGradientCommentColorStart(const QColor& color) {
    Do("SetGradientCommentColorStart", [&] { line_.SetGradientCommentColorStart(FromQColor(color)); });
}

QColor TimeLineWidget::GradientCommentColorEnd() const {
    return ToQColor(line_.GradientCommentColorEnd(), Desktop().screen);
}

void TimeLineWidget::SetGradientCommentColorEnd(const QColor& color) {
    Do("SetGradientCommentColorEnd", [&] { line_.SetGradientCommentColorEnd(FromQColor(color)); });
}

QColor TimeLineWidget::GradientMusicColorStart2() const {
    return ToQColor(line_.GradientMusicColorStart2(), Desktop().screen);
}

void TimeLineWidget::SetGradientMusicColorStart2(const QColor& color) {
    Do("SetGradientMusicColorStart2", [&] { line_.SetGradientMusicColorStart2(FromQColor(color)); });
}

QColor TimeLineWidget::GradientMusicColorEnd2() const {
    return ToQColor(line_.GradientMusicColorEnd2(), Desktop().screen);
}

void TimeLineWidget::SetGradientMusicColorEnd2(const QColor& color) {
    Do("SetGradientMusicColorEnd2", [&] { line_.SetGradientMusicColorEnd2(FromQColor(color)); });
}

QColor TimeLineWidget::GradientCommentColorStart2() const {
    return ToQColor(line_.GradientCommentColorStart2(), Desktop().screen);
}

void TimeLineWidget::SetGradientCommentColorStart2(const QColor& color) {
    Do("SetGradientCommentColorStart2", [&] { line_.SetGradientCommentColorStart2(FromQColor(color)); });
}

QColor TimeLineWidget::GradientCommentColorEnd2() const {
    return ToQColor(line_.GradientCommentColorEnd2(), Desktop().screen);
}

void TimeLineWidget::SetGradientCommentColorEnd2(const QColor& color) {
    Do("SetGradientCommentColorEnd2", [&] { line_.SetGradientCommentColorEnd2(FromQColor(color)); });
}

QColor TimeLineWidget::RecordGradientColorStart() const {
    return ToQColor(line_.RecordGradientColorStart(), Desktop().screen);
}

void TimeLineWidget::SetRecordGradientColorStart(const QColor& color) {
    Do("SetRecordGradientColorStart", [&] { line_.SetRecordGradientColorStart(FromQColor(color)); });
}

QColor TimeLineWidget::RecordGradientColorEnd() const {
    return ToQColor(line_.RecordGradientColorEnd(), Desktop().screen);
}

void TimeLineWidget::SetRecordGradientColorEnd(const QColor& color) {
    Do("SetRecordGradientColorEnd", [&] { line_.SetRecordGradientColorEnd(FromQColor(color)); });
}

QColor TimeLineWidget::RecordBorderColor() const {
    return ToQColor(line_.RecordBorderColor(), Desktop().screen);
}

void TimeLineWidget::SetRecordBorderColor(const QColor& color) {
    Do("SetRecordBorderColor", [&] { line_.SetRecordBorderColor(FromQColor(color)); });
}

bool TimeLineWidget::Round() const {
    return line_.Round();
}

void TimeLineWidget::SetRound(bool on) {
    Do("SetRound", [&] { line_.SetRound(on); });
}

int TimeLineWidget::RoundBorder() const {
    return line_.RoundBorder();
}

void TimeLineWidget::SetRoundBorder(int value) {
    Do("SetRoundBorder", [&] { line_.SetRoundBorder(ToInt16(value)); });
}

int TimeLineWidget::ExpositionTime() const {
    return line_.ExpositionTime();
}

void TimeLineWidget::SetExpositionTime(int value) {
    Do("SetExpositionTime", [&] { line_.SetExpositionTime(ToInt16(value)); });
}

int TimeLineWidget::StartPoint() const {
    return line_.StartPoint();
}

void TimeLineWidget::SetStartPoint(int value) {
    Do("SetStartPoint", [&] { line_.SetStartPoint(value); });
}

double TimeLineWidget::DiapoWidth() const {
    return line_.DiapoWidth();
}

void TimeLineWidget::SetDiapoWidth(double value) {
    Do("SetDiapoWidth", [&] { line_.SetDiapoWidth(static_cast<float>(value)); });
}

ui::TimeMarks TimeLineWidget::Style() const {
    return static_cast<ui::TimeMarks>(line_.Style());
}

void TimeLineWidget::SetStyle(ui::TimeMarks style) {
    Do("SetStyle", [&] { line_.SetStyle(static_cast<etlType>(style)); });
}

int TimeLineWidget::MargeGauche() const {
    return line_.MargeGauche();
}

void TimeLineWidget::SetMargeGauche(int value) {
    Do("SetMargeGauche", [&] { line_.SetMargeGauche(ToInt16(value)); });
}

bool TimeLineWidget::ShowBarres() const {
    return line_.ShowBarres();
}

void TimeLineWidget::SetShowBarres(bool on) {
    Do("SetShowBarres", [&] { line_.SetShowBarres(on); });
}

int TimeLineWidget::LectureIndicPos() const {
    return line_.LectureIndicPos();
}

void TimeLineWidget::SetLectureIndicPos(int value) {
    Do("SetLectureIndicPos", [&] { line_.SetLectureIndicPos(value); });
}

}  // namespace vorlane

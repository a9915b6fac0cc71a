// The time line's setters that are no plain store.
#include "timeline/etimeline.h"

namespace vorlane {

// Clears and paints also when the kind stands already.
void eTimeLine::SetBorderStyle(int32_t kind) {
    settings_.BorderStyle = kind;
    PropertyChanged("BorderStyle");
    Surface().Cls();
    Paint();
}

void eTimeLine::SetFont(const vorlane::Font& font) {
    if (font == Font()) return;
    Surface().SetFont(font);
    Paint();
    PropertyChanged("Font");
}

void eTimeLine::SetEnabled(bool enabled) {
    if (enabled == Enabled()) return;
    Control::SetEnabled(enabled);
    Paint();
    PropertyChanged("Enabled");
}

void eTimeLine::SetRedraw(bool redraw) {
    if (redraw == redraw_) return;
    redraw_ = redraw;
    PropertyChanged("Redraw");
    if (redraw) Paint();
}

// --- Colours of the bars ---

void eTimeLine::SetBorderMusicColor(OLE_COLOR color) {
    ChangeInHost(settings_.Music1.Border, color, "BorderMusicColor");
}

void eTimeLine::SetBorderMusicColor2(OLE_COLOR color) {
    ChangeInHost(settings_.Music2.Border, color, "BorderMusicColor2");
}

void eTimeLine::SetBorderCommentColor(OLE_COLOR color) {
    ChangeInHost(settings_.Comment1.Border, color, "BorderCommentColor");
}

void eTimeLine::SetBorderCommentColor2(OLE_COLOR color) {
    ChangeInHost(settings_.Comment2.Border, color, "BorderCommentColor2");
}

void eTimeLine::SetGradientMusicColorStart(OLE_COLOR color) {
    ChangeInHost(settings_.Music1.Start, color, "GradientMusicColorStart");
}

void eTimeLine::SetGradientMusicColorEnd(OLE_COLOR color) {
    ChangeInHost(settings_.Music1.End, color, "GradientMusicColorEnd");
}

void eTimeLine::SetGradientMusicColorStart2(OLE_COLOR color) {
    ChangeInHost(settings_.Music2.Start, color, "GradientMusicColorStart2");
}

void eTimeLine::SetGradientMusicColorEnd2(OLE_COLOR color) {
    ChangeInHost(settings_.Music2.End, color, "GradientMusicColorEnd2");
}

void eTimeLine::SetGradientCommentColorStart(OLE_COLOR color) {
    ChangeInHost(settings_.Comment1.Start, color, "GradientCommentColorStart");
}

void eTimeLine::SetGradientCommentColorEnd(OLE_COLOR color) {
    ChangeInHost(settings_.Comment1.End, color, "GradientCommentColorEnd");
}

void eTimeLine::SetGradientCommentColorStart2(OLE_COLOR color) {
    ChangeInHost(settings_.Comment2.Start, color, "GradientCommentColorStart2");
}

void eTimeLine::SetGradientCommentColorEnd2(OLE_COLOR color) {
    ChangeInHost(settings_.Comment2.End, color, "GradientCommentColorEnd2");
}

void eTimeLine::SetRecordGradientColorStart(OLE_COLOR color) {
    ChangeInHost(settings_.Record.Start, color, "RecordGradientColorStart");
}

// Paints in a designer too, unlike its two sisters.
void eTimeLine::SetRecordGradientColorEnd(OLE_COLOR color) {
    Change(settings_.Record.End, color, "RecordGradientColorEnd");
}

void eTimeLine::SetRecordBorderColor(OLE_COLOR color) {
    ChangeInHost(settings_.Record.Border, color, "RecordBorderColor");
}

}  // namespace vorlane

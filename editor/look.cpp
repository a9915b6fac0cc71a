#include "editor/look.h"

#include "editor/colors.h"
#include "widgets/vorlanewidget.h"

namespace vorlane::editor {

namespace {

QFont CaptionFont() {
    QFont font;
    font.setPointSizeF(font.pointSizeF() * 0.85);
    return font;
}

}  // namespace

void ApplyLook(VorlaneWidget& sheet, const QPalette& palette) {
    const QColor ground = palette.color(QPalette::Window);
    const QColor card = palette.color(QPalette::Base);
    const QColor ink = palette.color(QPalette::Text);

    sheet.SetBackColor(ground);
    sheet.SetBackColorDiapo(card);
    sheet.SetForeColor(Mixed(ink, card, 85));
    sheet.SetBorderStyleDiapoExt(ui::BorderStyle::FlatBackColor);
    sheet.SetBorderColorDiapoExt(Mixed(ink, ground, 18));
    sheet.SetBorderStyleDiapo(ui::BorderStyle::FlatBackColor);
    sheet.SetBorderColorDiapo(Mixed(ink, card, 40));
    sheet.SetShadowColor(Mixed(palette.color(QPalette::Shadow), card, 30));
    sheet.SetShadowWidth(3);

    const QColor mark = palette.color(QPalette::Highlight);
    sheet.SetBackColorSelected(Mixed(mark, card, 40));
    sheet.SetBackColorCurrent(Mixed(mark, card, 65));

    sheet.SetMarges(12);
    sheet.SetMargeDiapoMin(12);
    sheet.SetImageMarge(6);
    sheet.SetLegendeFont(CaptionFont());
    sheet.SetLegendeNbLig(1);
    sheet.SetShowDiapoJauge(false);
    sheet.SetShowJauge(false);  // a fill is done before anybody could read it
    sheet.StartAgain();
}

}  // namespace vorlane::editor

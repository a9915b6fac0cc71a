// Colours and fonts between the core and Qt.
#pragma once

#include "platform/color.h"
#include "platform/font.h"

#include <QColor>
#include <QFont>

namespace vorlane {

class Screen;

// A system colour is resolved in the present theme.
QColor ToQColor(OLE_COLOR color, const Screen& screen);
// A plain colour; the alpha channel is dropped.
OLE_COLOR FromQColor(const QColor& color);

QFont ToQFont(const Font& font);
Font FromQFont(const QFont& font);

}  // namespace vorlane

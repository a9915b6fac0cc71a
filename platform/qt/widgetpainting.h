// Painting a tree of controls on the widget that it fills.
#pragma once

#include "platform/qt/painttools.h"

class QPainter;
class QRegion;
class QWidget;

namespace vorlane {

class UserControl;
struct Box;

// The pixels of a widget that a change of box touches.
QRegion TouchedBy(const Box& box);

// Paints part of root, in pixels of the widget. painter has not been scaled; widget gives the density. Never throws.
void PaintOnWidget(QPainter& painter, const QWidget& widget, const QRegion& part, const UserControl& root,
                   const PaintTools& tools);

}  // namespace vorlane

// Painting a tree of controls on the widget that it fills.
#pragma once

#include "platform/qt/painttools.h"

class QPainter;
class QRect;
class QRegion;

namespace vorlane {

class UserControl;
struct Box;

// The pixels of a widget that a change of box touches.
QRect TouchedBy(const Box& box);

// Paints part of root, in pixels of the widget, with a painter as the widget's paint event begins with. Never throws.
void PaintOnWidget(QPainter& painter, const QRegion& part, const UserControl& root, const PaintTools& tools);

}  // namespace vorlane

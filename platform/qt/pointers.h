// Pointers that are pictures: those of hosts, and the one of a drag that moves what it drags inside the program, where
// other programs are offered a copy alone and the system would show the pointer of a copy.
//
// scale: device pixels of a logical one.
#pragma once

#include <QPixmap>

namespace vorlane {

class Picture;

// A picture as a pointer, at its own size. Null for the empty picture.
QPixmap PointerFrom(const Picture& icon, double scale);
// The same for a drag, whose pointers point with their middle: that is where the icon's top left corner is.
QPixmap DragPointer(const Picture& icon, double scale);

// A plain arrow that points with its middle.
QPixmap MovePointer(double scale);

}  // namespace vorlane

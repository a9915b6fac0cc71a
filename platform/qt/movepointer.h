// The pointer of a drag that moves what it drags inside the program, where other programs are offered a copy alone and
// the system would show the pointer of a copy.
#pragma once

#include <QPixmap>

namespace vorlane {

// A plain arrow that points with its middle, as drag pointers do. scale: device pixels of a logical one.
QPixmap MovePointer(double scale);

}  // namespace vorlane

// Regions of the core as Qt's.
#pragma once

#include "platform/region.h"

#include <QRegion>

namespace vorlane {

inline QRegion ToQRegion(const Region& region) {
    QRegion whole;
    for (const auto& shape : region.Shapes()) {
        QRegion part;
        for (const WinRect& row : shape) {
            part += QRect(QPoint(row.Left, row.Top), QPoint(row.Right - 1, row.Bottom - 1));
        }
        whole ^= part;
    }
    return whole;
}

}  // namespace vorlane

// SurfaceReplay: what a surface looks like in device pixels, kept from one painting to the next. Where a recording has
// changed in a few of its commands, only what lies under these is drawn anew.
#pragma once

#include "platform/qt/painttools.h"
#include "platform/surface.h"

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include <QImage>
#include <QSize>

namespace vorlane {

class SurfaceReplay final : public SurfaceImage {
public:
    // The surface with its ground, in that many device pixels, scale of which make a logical one. It is kept with the
    // surface, and good until the surface changes.
    static const QImage& Of(const Surface& surface, QSize size, double scale, const PaintTools& tools);

private:
    using Recording = std::shared_ptr<const std::vector<draw::Command>>;
    // What the pixels depend on beside the recording.
    struct Look {
        QSize size;
        double scale = 0;
        qint64 theme = 0;
        OLE_COLOR ground = 0;
        bool operator==(const Look&) const = default;
    };

    // Since the recording that is drawn.
    draw::Changes ChangesOf(const Surface& surface) const;
    void DrawAll(std::span<const draw::Command> commands, const PaintTools& tools);
    void DrawChanges(const draw::Changes& changes, std::span<const draw::Command> commands, const PaintTools& tools);

    Look look_;
    uint64_t revision_ = 0;
    Recording recording_;
    size_t count_ = 0;  // of the recording's commands that are drawn
    QImage pixels_;
};

}  // namespace vorlane

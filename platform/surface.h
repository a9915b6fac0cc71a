// Surface: what has been drawn on a control, as a recording. Each drawing call appends one plain command; Cls empties
// the recording, and what was drawn stays until then. The surface owns no pixel: a desktop replays the commands when
// the revision has moved.
//
// Coordinates are pixels of the control, as Singles, and every recorded one can be rounded. A replay snaps them to the
// device's own pixels, halves upwards, so that what touches on the surface touches on every screen. Colours are stored
// as given, so a system colour follows the theme at each replay.
#pragma once

#include "platform/color.h"
#include "platform/drawcommands.h"
#include "platform/event.h"
#include "platform/font.h"
#include "platform/geometry.h"
#include "platform/picture.h"
#include "platform/recordingchanges.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vorlane {

// What a desktop keeps of its last replay of a surface.
class SurfaceImage {
public:
    virtual ~SurfaceImage() = default;
};

class Surface {
public:
    // The state that later commands take over.
    OLE_COLOR BackColor() const { return backColor_; }
    // Fills the ground with color at once; what is drawn stays above it.
    void SetBackColor(OLE_COLOR color);
    OLE_COLOR ForeColor() const { return foreColor_; }
    void SetForeColor(OLE_COLOR color) { foreColor_ = color; }
    const vorlane::Font& Font() const { return font_; }
    void SetFont(vorlane::Font font) { font_ = std::move(font); }
    OLE_COLOR FillColor() const { return fillColor_; }
    void SetFillColor(OLE_COLOR color) { fillColor_ = color; }
    // 0 solid, anything else transparent.
    int16_t FillStyle() const { return fillStyle_; }
    void SetFillStyle(int16_t style) { fillStyle_ = style; }

    // Runs what draws, and tells of all that it has changed at once, behind it. For what draws the same all anew and
    // changes little.
    void Redraw(const std::function<void()>& paint);
    // Empties the recording: only the back colour is left.
    void Cls();
    // Lines and boxes fail with Overflow() for a coordinate that is no 32-bit number when rounded.
    void Line(double x1, double y1, double x2, double y2, OLE_COLOR color);
    void LineBox(double x1, double y1, double x2, double y2, OLE_COLOR color);
    void LineFilledBox(double x1, double y1, double x2, double y2, OLE_COLOR color);
    // In ForeColor and Font.
    void TextOutA(int32_t x, int32_t y, std::string_view text);
    // Fails with SubscriptOutOfRange() for a rectangle over a vertex that is not given, and with InvalidCall() for an
    // unknown mode.
    void GradientFill(const draw::Vertices& vertices, const draw::GradientMesh& rects, uint32_t mode);
    void DrawEdge(const WinRect& rect, uint32_t edge, uint32_t flags);
    // Outline in ForeColor, inside in FillColor when FillStyle is solid.
    void Polygon(std::vector<Point> points);
    // Outline in ForeColor, whatever FillStyle.
    void RoundRect(const WinRect& rect, int32_t cornerWidth, int32_t cornerHeight);
    void SetPixel(int32_t x, int32_t y, OLE_COLOR color);
    void BitBlt(int32_t x, int32_t y, int32_t width, int32_t height, Picture source, int32_t sourceX, int32_t sourceY);

    const std::vector<draw::Command>& Commands() const { return *commands_; }
    // The recording itself, which grows until the next Cls; that leaves it to its holders and begins another one.
    std::shared_ptr<const std::vector<draw::Command>> Recording() const { return commands_; }
    // Moves on with every change of what a replay would show.
    uint64_t Revision() const { return revision_; }
    // What the last Redraw has changed since that revision; nothing where something else has changed since, or the
    // ground.
    struct Redrawn {
        uint64_t Since;
        draw::Changes Changes;
    };
    const std::optional<Redrawn>& LastRedraw() const { return lastRedraw_; }
    // The back colour, then the commands, one a line: "BackColor sys15", "Box 0,0 99,74 #8C021B". A colour is "#" and
    // the six digits of its value, blue first, or "sys" and its number. A coordinate has up to three decimals and no
    // idle zeros. A text stands in quotes, with \ in front of quotes and backslashes and \xNN for control codes.
    std::string dump() const;

    // The desktop's own, and gone with the surface.
    const std::shared_ptr<SurfaceImage>& Image() const { return image_; }
    void KeepImage(std::shared_ptr<SurfaceImage> image) const { image_ = std::move(image); }

    Event<> Changed;  // behind every change of the revision

private:
    void Append(draw::Command command);
    void Touch();

    OLE_COLOR backColor_ = FromSystem(SystemColor::ButtonFace);
    OLE_COLOR foreColor_ = 0;
    OLE_COLOR fillColor_ = 0;
    int16_t fillStyle_ = 1;
    vorlane::Font font_;
    std::shared_ptr<std::vector<draw::Command>> commands_ = std::make_shared<std::vector<draw::Command>>();
    uint64_t revision_ = 0;
    bool redrawing_ = false;
    std::optional<Redrawn> lastRedraw_;
    mutable std::shared_ptr<SurfaceImage> image_;
};

}  // namespace vorlane

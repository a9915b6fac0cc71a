// The slide's persisted properties: one table for reading, writing and new slides.
#include "platform/boxing.h"
#include "slide/ediapolight.h"
#include "slide/fontsize.h"

#include <functional>
#include <type_traits>
#include <utility>

namespace vorlane {

namespace {

constexpr OLE_COLOR kWhite = 0xFFFFFF;
constexpr OLE_COLOR kDesignForeColor = 0;

}  // namespace

eDiapoLight::PersistedProperty::PersistedProperty(std::string key, Get otherwise, Get value, ReadFrom read,
                                                  SetFresh initialize)
    : Key(std::move(key)),
      Default(std::move(otherwise)),
      Value(std::move(value)),
      read_(std::move(read)),
      initialize_(std::move(initialize)) {}

const std::vector<eDiapoLight::PersistedProperty>& eDiapoLight::PersistedProperties() {
    static const std::vector<PersistedProperty> table = MakePersistedProperties();
    return table;
}

std::vector<eDiapoLight::PersistedProperty> eDiapoLight::MakePersistedProperties() {
    // A field: its value for a missing key, and the one of a new slide.
    const auto field = [](const std::string& key, auto member, auto otherwise, auto initial) {
        using T = std::remove_reference_t<decltype(std::declval<Settings&>().*member)>;
        const T missing = static_cast<T>(otherwise);
        const T fresh = static_cast<T>(initial);
        return PersistedProperty{
            key,
            [=](const eDiapoLight&) { return Boxed(missing); },
            [=](const eDiapoLight& slide) { return Boxed(slide.settings_.*member); },
            [=](eDiapoLight& slide, const PropertyBag& bag) { slide.settings_.*member = Unboxed(bag, key, missing); },
            [=](eDiapoLight& slide) { slide.settings_.*member = fresh; },
        };
    };
    // A value that a child or the surface keeps: otherwise gives what stands for a missing key.
    const auto kept = [](const std::string& key, auto otherwise, auto get, auto set) {
        return PersistedProperty{
            key,
            [=](const eDiapoLight& slide) { return Boxed(otherwise(slide)); },
            [=](const eDiapoLight& slide) { return Boxed(std::invoke(get, slide)); },
            [=](eDiapoLight& slide, const PropertyBag& bag) {
                std::invoke(set, slide, Unboxed(bag, key, otherwise(slide)));
            },
        };
    };
    const auto always = [](auto value) { return [value](const eDiapoLight&) { return value; }; };
    const auto ambientFont = [](const eDiapoLight& slide) { return slide.Ambient().Font; };

    // A missing text colour leaves the one that stands, but only the design's own is not stored.
    const PersistedProperty foreColor{
        "ForeColor",
        [](const eDiapoLight&) { return Boxed(kDesignForeColor); },
        [](const eDiapoLight& slide) { return Boxed(slide.ForeColor()); },
        [](eDiapoLight& slide, const PropertyBag& bag) {
            slide.SetForeColor(bag.ReadColor("ForeColor", slide.ForeColor()));
        },
    };

    using S = Settings;
    using This = eDiapoLight;
    const std::string noText;
    const int16_t zero = 0;
    return {
        field("NoResize", &S::NoResize, true, true),
        field("AlwaysFullSize", &S::AlwaysFullSize, true, true),
        field("AutoAdjust", &S::AutoAdjust, true, true),
        field("AutoCornerResize", &S::AutoCornerResize, true, true),
        kept("BackColor", always(kWhite), &This::BackColor, &This::SetBackColor),
        field("BackColorSelected", &S::BackColorSelected, 0x6FB5FB, 0x6FB5FB),
        field("BorderColor", &S::BorderColor, 0xC0C0C0, 0xC0C0C0),
        field("BorderColorExt", &S::BorderColorExt, 0x8C021B, 0xC0C0C0),
        field("BorderDouble", &S::BorderDouble, true, true),
        field("BorderSize", &S::BorderSize, 5, 5),
        field("BorderStyle", &S::BorderStyle, DiapoBorderStyle::BorderRaised, DiapoBorderStyle::FlatBackColor),
        field("BorderStyleExt", &S::BorderStyleExt, DiapoBorderStyle::BorderNone, DiapoBorderStyle::FlatBackColor),
        kept("CaptionBottom", always(noText), &This::CaptionBottom,
             [](This& slide, const std::string& text) { slide.LblBottom.SetCaption(text); }),
        field("CaptionBottomNbLig", &S::CaptionBottomNbLig, 2, 2),
        kept("Enabled", always(true), &This::Enabled,
             [](This& slide, bool enabled) { slide.Control::SetEnabled(enabled); }),
        kept("FontBottom", ambientFont, &This::FontBottom,
             [](This& slide, const vorlane::Font& font) { slide.LblBottom.SetFont(WithUsableSize(font)); }),
        kept("FontImageName", ambientFont, &This::FontImageName,
             [](This& slide, const vorlane::Font& font) { slide.LblTop.SetFont(WithUsableSize(font)); }),
        foreColor,
        field("ImageMarge", &S::ImageMarge, 5, 5),
        kept("MouseIcon", always(vorlane::Picture{}), &This::MouseIcon, &This::SetMouseIcon),
        kept("MousePointer", always(zero), &This::MousePointer, &This::SetMousePointer),
        kept("OLEDropMode", always(zero), &This::OLEDropMode, &This::SetOLEDropMode),
        kept("OLEDragMode", always(zero), &This::OLEDragMode, &This::SetOLEDragMode),
        field("Selected", &S::Selected, false, false),
        field("ShadowWidth", &S::ShadowWidth, 5, 5),
        field("ShowShadow", &S::ShowShadow, true, true),
        field("ShadowColor", &S::ShadowColor, 0xB4B4B4, 0xB4B4B4),
        field("Thumbnail", &S::Thumbnail, false, false),
        field("ThumbnailResolution", &S::ThumbnailResolution, 0, 0),
        field("ThumbnailSizeNormal", &S::ThumbnailSizeNormal, 150, 150),
        field("ThumbnailSizeHigh", &S::ThumbnailSizeHigh, 500, 500),
        field("Value", &S::Value, 0, 0),
        kept("ToolTipBtPlay", always(noText), &This::ToolTipBtPlay,
             [](This& slide, const std::string& text) { slide.BtPlay.SetToolTipText(text); }),
        kept("ToolTipBtComment", always(noText), &This::ToolTipBtComment,
             [](This& slide, const std::string& text) { slide.BtComment.SetToolTipText(text); }),
        kept("ToolTipBtText", always(noText), &This::ToolTipBtText,
             [](This& slide, const std::string& text) { slide.BtTexte.SetToolTipText(text); }),
        field("ShowFileName", &S::ShowFileName, true, true),
        field("ShowInfo", &S::ShowInfo, true, true),
        field("ShowZoom", &S::ShowZoom, true, true),
        field("ShowJauge", &S::ShowJauge, true, true),
        kept("ShowDiapoTools", always(false), &This::ShowDiapoTools, &This::SetShowDiapoTools),
    };
}

// A host that fails when it hears of a change leaves the slide ready all the same.
void eDiapoLight::InitProperties() {
    Attempt([&] { SetBackColor(kWhite); });
    for (const PersistedProperty& property : PersistedProperties()) {
        if (property.initialize_) property.initialize_(*this);
    }
    settings_.ShowDiapoTools = false;
    Attempt([&] { ShowGround(Ambient().BackColor, false); });
    life_ = {true, true};
}

// A value that can't be read leaves its property as it was.
void eDiapoLight::ReadProperties(const PropertyBag& bag) {
    life_.Ready = false;
    for (const PersistedProperty& property : PersistedProperties()) {
        Attempt([&] { property.read_(*this, bag); });
    }
    life_ = {true, true};
}

void eDiapoLight::WriteProperties(PropertyBag& bag) const {
    for (const PersistedProperty& property : PersistedProperties()) {
        Attempt([&] { bag.Write(property.Key, property.Value(*this), property.Default(*this)); });
    }
}

void eDiapoLight::WriteDesign(PropertyBag& bag) const {
    WriteProperties(bag);
    for (const PersistedProperty& property : PersistedProperties()) {
        if (property.Key == "BackColor") bag.Write(property.Key, Boxed(NormalGround()), property.Default(*this));
    }
}

void eDiapoLight::CopyDesign(const eDiapoLight& from) {
    PropertyBag design;
    for (const PersistedProperty& property : PersistedProperties()) {
        if (property.Key != "Selected" && property.Key != "Value") {
            design.SetValue(property.Key, property.Value(from));
        }
    }
    ReadProperties(design);
    ShowGround(from.NormalGround(), false);
    ground_.Normal = from.ground_.Normal;
}

}  // namespace vorlane

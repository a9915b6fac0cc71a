// The sheet's own properties, and the table of those that persist.
#include "platform/boxing.h"
#include "platform/numbers.h"
#include "sheet/vorlane.h"

namespace vorlane {

// --- State ---

int16_t Vorlane::Count() const {
    return ToInt16(ListCount());
}

int16_t Vorlane::CountAffiché() const {
    return ToInt16(Diapo.Count());
}

// --- Setters that do more than store ---

void Vorlane::SetBackColor(OLE_COLOR color) {
    if (color == BackColor()) return;
    Surface().SetBackColor(color);
    PropertyChanged("BackColor");
}

void Vorlane::SetBorderStyle(int32_t style) {
    if (style == BorderStyle()) return;
    UserControl::SetBorderStyle(style);
    PropertyChanged("BorderStyle");
}

void Vorlane::SetScrollDirection(ScrollDirectionType direction) {
    if (direction == bar_.ScrollDirection) return;
    bar_.ScrollDirection = direction;
    const bool vertical = direction == ScrollDirectionType::sdVertical;
    VScroll.SetAlign(vorlane::Align::None);
    VScroll.SetOrientation(vertical ? Orientation::Vertical : Orientation::Horizontal);
    VScroll.SetAlign(vertical ? vorlane::Align::Right : vorlane::Align::Bottom);
    Resize();
    PropertyChanged("ScrollDirection");
}

void Vorlane::SetThumbnailSizeNormal(int16_t size) {
    if (size == thumbnailSizeNormal_) return;
    thumbnailSizeNormal_ = size;
    SetOnSlides(&eDiapoLight::SetThumbnailSizeNormal, size);
    PropertyChanged("ThumbnailSizeNormal");
}

// In mode 1 the sheet starts the slides' drags, so they must not do it themselves.
void Vorlane::SetOLEDragMode(int16_t mode) {
    if (mode == oleDragMode_) return;
    oleDragMode_ = mode;
    SetOnSlides(&eDiapoLight::SetOLEDragMode, mode == 1 ? int16_t{0} : mode);
    PropertyChanged("OLEDragMode");
}

// In mode 2 the sheet answers the drops, so they must come to it as in mode 1.
void Vorlane::SetOLEDropMode(int16_t mode) {
    if (mode == oleDropMode_) return;
    oleDropMode_ = mode;
    const int16_t manual = mode == 2 ? int16_t{1} : mode;
    SetOnSlides(&eDiapoLight::SetOLEDropMode, manual);
    ImgDrag.SetOLEDropMode(manual);
    Control::SetOLEDropMode(manual);
    PropertyChanged("OLEDropMode");
}

// --- Persistence ---

const std::vector<Vorlane::PersistedProperty>& Vorlane::PersistedProperties() {
    static const std::vector<PersistedProperty> table = MakePersistedProperties();
    return table;
}

std::vector<Vorlane::PersistedProperty> Vorlane::MakePersistedProperties() {
    using This = Vorlane;
    using Slide = eDiapoLight;
    // otherwise gives what stands for a missing key, in the type that the bag holds; put takes over what was read.
    const auto row = [](const std::string& key, auto otherwise, auto get, auto put) {
        return PersistedProperty{
            key,
            [=](const This& sheet) { return Boxed(otherwise(sheet)); },
            [=](const This& sheet) { return Boxed(std::invoke(get, sheet)); },
            [=](This& sheet, const PropertyBag& bag) { std::invoke(put, sheet, Unboxed(bag, key, otherwise(sheet))); },
        };
    };
    const auto always = [](auto value) { return [value](const This&) { return value; }; };
    const auto field = [](auto group, auto member) {
        return [=](This& sheet, const auto& value) { sheet.*group.*member = value; };
    };
    const auto slide = [](auto set) {
        return [=](This& sheet, const auto& value) { std::invoke(set, sheet.First(), value); };
    };
    const auto ambientFont = [](const This& sheet) { return sheet.Ambient().Font; };
    const auto ambientGround = [](const This& sheet) { return sheet.Ambient().BackColor; };
    // A slide takes a colour for its normal ground only where it differs from the present one.
    const auto ground = [](This& sheet, OLE_COLOR color) {
        sheet.First().SetBackColor(color ^ 1U);
        sheet.First().SetBackColor(color);
    };

    // Any number but 0 counts as a yes.
    const auto lax = [](PersistedProperty property, auto group, auto member) {
        property.Read = [=, key = property.Key](This& sheet, const PropertyBag& bag) {
            sheet.*group.*member = bag.ReadSingle(key, 0) != 0;
        };
        return property;
    };

    const int16_t zero16 = 0;
    const int32_t zero32 = 0;
    const OLE_COLOR black = 0;
    return {
        row("BackColor", always(FromSystem(SystemColor::ButtonFace)), &This::BackColor,
            [](This& sheet, OLE_COLOR color) { sheet.Surface().SetBackColor(color); }),
        row("BorderStyle", always(zero32), &This::BorderStyle,
            [](This& sheet, int32_t style) { sheet.UserControl::SetBorderStyle(style); }),
        row("Enabled", always(true), &This::Enabled,
            [](This& sheet, bool enabled) { sheet.Control::SetEnabled(enabled); }),
        row("AutoAdjust", always(true), &This::AutoAdjust, slide(&Slide::SetAutoAdjust)),
        row("AutoCornerResize", always(true), &This::AutoCornerResize, slide(&Slide::SetAutoCornerResize)),
        row("BackColorDiapo", ambientGround, &This::BackColorDiapo, ground),
        row("BackColorSelected", always(OLE_COLOR{7321083}), &This::BackColorSelected,
            slide(&Slide::SetBackColorSelected)),
        row("BorderColorDiapo", always(OLE_COLOR{9175579}), &This::BorderColorDiapo, slide(&Slide::SetBorderColor)),
        row("BorderColorDiapoExt", always(OLE_COLOR{9175579}), &This::BorderColorDiapoExt,
            slide(&Slide::SetBorderColorExt)),
        row("BorderDouble", always(false), &This::BorderDouble, slide(&Slide::SetBorderDouble)),
        row("BorderSize", always(int16_t{4}), &This::BorderSize,
            [](This& sheet, int16_t size) { sheet.First().SetBorderSize(ToByte(size)); }),
        row("BorderStyleDiapo", always(DiapoBorderStyle::BorderSunken), &This::BorderStyleDiapo,
            slide(&Slide::SetBorderStyle)),
        row("BorderStyleDiapoExt", always(DiapoBorderStyle::FlatBackColor), &This::BorderStyleDiapoExt,
            slide(&Slide::SetBorderStyleExt)),
        row("CaptionWait", always(std::string()), &This::CaptionWait,
            [](This& sheet, const std::string& caption) { sheet.captionWait_ = caption; }),
        row("ImageMarge", always(int16_t{5}), &This::ImageMarge,
            [](This& sheet, int16_t margin) { sheet.First().SetImageMarge(ToByte(margin)); }),
        row("ShadowColor", always(OLE_COLOR{0xB4B4B4}), &This::ShadowColor, slide(&Slide::SetShadowColor)),
        row("ShadowWidth", always(int16_t{5}), &This::ShadowWidth,
            [](This& sheet, int16_t width) { sheet.First().SetShadowWidth(ToByte(width)); }),
        row("ShowShadow", always(true), &This::ShowShadow, slide(&Slide::SetShowShadow)),
        row("ShowDiapoTools", always(false), &This::ShowDiapoTools, slide(&Slide::SetShowDiapoTools)),
        row("ForeColor", always(black), &This::ForeColor, slide(&Slide::SetForeColor)),
        row("MouseIcon", always(vorlane::Picture{}), &This::MouseIcon, slide(&Slide::SetMouseIcon)),
        row("MousePointer", always(zero32), &This::MousePointer,
            [](This& sheet, int32_t shape) { sheet.First().SetMousePointer(ToInt16(shape)); }),
        row("LegendeFont", ambientFont, &This::LegendeFont, slide(&Slide::SetFontBottom)),
        row("LegendeNbLig", always(int16_t{2}), &This::LegendeNbLig, slide(&Slide::SetCaptionBottomNbLig)),
        row("FontImageName", ambientFont, &This::FontImageName, slide(&Slide::SetFontImageName)),
        row("SortedSens", always(SortSensType::ssAscending), &This::SortedSens,
            field(&This::sort_, &sheet::Sorting::SortedSens)),
        row("Thumbnail", always(false), &This::Thumbnail, slide(&Slide::SetThumbnail)),
        row("ThumbnailResolution", always(DiapoThumbResolution::ThumbResolutionNormal), &This::ThumbnailResolution,
            slide(&Slide::SetThumbnailResolution)),
        row("ThumbnailSizeNormal", always(int16_t{150}), &This::ThumbnailSizeNormal,
            [](This& sheet, int16_t size) { sheet.thumbnailSizeNormal_ = size; }),
        row("ThumbnailSizeHigh", always(int16_t{500}), &This::ThumbnailSizeHigh, slide(&Slide::SetThumbnailSizeHigh)),
        row(
            "DiapoHeight", always(int16_t{75}), [](const This& sheet) { return sheet.DiapoHeight(); },
            slide(&Slide::SetHeight)),
        row(
            "DiapoWidth", always(int16_t{100}), [](const This& sheet) { return sheet.DiapoWidth(); },
            slide(&Slide::SetWidth)),
        row("ShowFileName", always(true), &This::ShowFileName, slide(&Slide::SetShowFileName)),
        row("ShowInfo", always(true), &This::ShowInfo, slide(&Slide::SetShowInfo)),
        row("ShowZoom", always(true), &This::ShowZoom, slide(&Slide::SetShowZoom)),
        row("ListAutoFill", always(true), &This::ListAutoFill, field(&This::items_, &sheet::Items::ListAutoFill)),
        row("Marges", always(int16_t{5}), &This::Marges, field(&This::grid_, &sheet::Grid::Marges)),
        row("MargeDiapoMin", always(int16_t{5}), &This::MargeDiapoMin,
            field(&This::grid_, &sheet::Grid::MargeDiapoMin)),
        row("MargeDiapoAutoAdjust", always(true), &This::MargeDiapoAutoAdjust,
            field(&This::grid_, &sheet::Grid::MargeDiapoAutoAdjust)),
        row("ShowJauge", always(true), &This::ShowJauge, field(&This::gauge_, &sheet::Gauge::ShowJauge)),
        row("ScrollDirection", always(ScrollDirectionType::sdVertical), &This::ScrollDirection,
            &This::SetScrollDirection),
        row("ScrollWindowPos", always(ScrollWindowPosType::swpOutside), &This::ScrollWindowPos,
            field(&This::bar_, &sheet::Bar::ScrollWindowPos)),
        row("ScrollWindowWidth", always(int16_t{100}), &This::ScrollWindowWidth,
            field(&This::bar_, &sheet::Bar::ScrollWindowWidth)),
        row("ScrollWindowBackColor", always(OLE_COLOR{0xFFFFFF}), &This::ScrollWindowBackColor,
            field(&This::bar_, &sheet::Bar::ScrollWindowBackColor)),
        row("SelectionMultiple", always(true), &This::SelectionMultiple,
            field(&This::selection_, &sheet::Selection::SelectionMultiple)),
        row("Sorted", always(true), &This::Sorted, field(&This::sort_, &sheet::Sorting::Sorted)),
        row("BackColorCurrent", always(OLE_COLOR{8249597}), &This::BackColorCurrent,
            field(&This::selection_, &sheet::Selection::BackColorCurrent)),
        row("OLEDropMode", always(zero16), &This::OLEDropMode, &This::SetOLEDropMode),
        row("OLEDragMode", always(zero16), &This::OLEDragMode, &This::SetOLEDragMode),
        lax(row("JaugeAnimation", always(false), &This::JaugeAnimation,
                field(&This::gauge_, &sheet::Gauge::JaugeAnimation)),
            &This::gauge_, &sheet::Gauge::JaugeAnimation),
    };
}

}  // namespace vorlane

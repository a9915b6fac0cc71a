// The time line's persisted properties: one table for reading, writing and new time lines.
#include "platform/boxing.h"
#include "timeline/borders.h"
#include "timeline/etimeline.h"
#include "timeline/gradient.h"

#include <type_traits>
#include <utility>

namespace vorlane {

eTimeLine::PersistedProperty::PersistedProperty(std::string key, Get otherwise, Get value, ReadFrom read,
                                                SetFresh initialize)
    : Key(std::move(key)),
      Default(std::move(otherwise)),
      Value(std::move(value)),
      read_(std::move(read)),
      initialize_(std::move(initialize)) {}

const std::vector<eTimeLine::PersistedProperty>& eTimeLine::PersistedProperties() {
    static const std::vector<PersistedProperty> table = MakePersistedProperties();
    return table;
}

std::vector<eTimeLine::PersistedProperty> eTimeLine::MakePersistedProperties() {
    using S = Settings;
    using This = eTimeLine;
    // A value of the settings: field gives it, otherwise what stands for a missing key, fresh that of a new time line.
    const auto row = [](const std::string& key, auto field, auto otherwise, auto fresh) {
        return PersistedProperty{
            key,
            [=](const This& line) { return Boxed(otherwise(line)); },
            [=](const This& line) { return Boxed(field(line.settings_)); },
            [=](This& line, const PropertyBag& bag) { field(line.settings_) = Unboxed(bag, key, otherwise(line)); },
            [=](This& line) { field(line.settings_) = fresh(line); },
        };
    };
    const auto anew = [=](const std::string& key, auto member, auto otherwise, auto initial) {
        using T = std::remove_reference_t<decltype(std::declval<S&>().*member)>;
        const auto field = [member](auto& settings) -> auto& {
            return settings.*member;
        };
        const T missing = static_cast<T>(otherwise);
        const T first = static_cast<T>(initial);
        return row(
            key, field, [missing](const This&) { return missing; }, [first](const This&) { return first; });
    };
    const auto field = [=](const std::string& key, auto member, auto otherwise) {
        return anew(key, member, otherwise, otherwise);
    };
    const auto color = [=](const std::string& key, auto set, auto part, OLE_COLOR otherwise) {
        const auto access = [=](auto& settings) -> auto& {
            return settings.*set.*part;
        };
        const auto always = [otherwise](const This&) { return otherwise; };
        return row(key, access, always, always);
    };
    const auto ground = [=](const std::string& key, auto member, auto otherwise) {
        const auto access = [member](auto& settings) -> auto& {
            return settings.*member;
        };
        const auto own = [otherwise](const This& line) { return line.*otherwise; };
        return row(key, access, own, own);
    };
    const PersistedProperty enabled{
        "Enabled",
        [](const This&) { return Boxed(true); },
        [](const This& line) { return Boxed(line.Enabled()); },
        [](This& line, const PropertyBag& bag) { line.Control::SetEnabled(bag.ReadFlag("Enabled", true)); },
        [](This& line) { line.Control::SetEnabled(true); },
    };
    const PersistedProperty font{
        "Font",
        [](const This& line) { return Boxed(line.Ambient().Font); },
        [](const This& line) { return Boxed(line.Font()); },
        [](This& line, const PropertyBag& bag) { line.Surface().SetFont(bag.ReadFont("Font", line.Ambient().Font)); },
        [](This& line) { line.Surface().SetFont(line.Ambient().Font); },
    };

    using C = BarColors;
    return {
        field("BarreMarge", &S::BarreMarge, 3),
        field("BarreHeight", &S::BarreHeight, 8),
        field("BarreOnTop", &S::BarreOnTop, 0),
        anew("BorderStyle", &S::BorderStyle, kNoBorder, kSolidBorder),
        field("BorderColor", &S::BorderColor, 0xE3CFC9),
        color("BorderMusicColor", &S::Music1, &C::Border, 0x00C0C0),
        color("BorderMusicColor2", &S::Music2, &C::Border, 0x0080FF),
        color("BorderCommentColor", &S::Comment1, &C::Border, 0x00C000),
        color("BorderCommentColor2", &S::Comment2, &C::Border, 0x808000),
        enabled,
        font,
        field("ForeColor", &S::ForeColor, 0xF34141),
        ground("GradientColorStart", &S::GradientColorStart, &This::defaultColorStart_),
        ground("GradientColorEnd", &S::GradientColorEnd, &This::defaultColorEnd_),
        field("GradientColorInverse", &S::GradientColorInverse, false),
        field("GradientDirection", &S::GradientDirection, kTopToBottom),
        color("GradientMusicColorStart", &S::Music1, &C::Start, 0x80FFFF),
        color("GradientMusicColorEnd", &S::Music1, &C::End, 0xFFFFFF),
        color("GradientCommentColorStart", &S::Comment1, &C::Start, 0x80FF80),
        color("GradientCommentColorEnd", &S::Comment1, &C::End, 0xFFFFFF),
        color("GradientMusicColorStart2", &S::Music2, &C::Start, 0x80C0FF),
        color("GradientMusicColorEnd2", &S::Music2, &C::End, 0xFFFFFF),
        color("GradientCommentColorStart2", &S::Comment2, &C::Start, 0xFFFF80),
        color("GradientCommentColorEnd2", &S::Comment2, &C::End, 0xFFFFFF),
        color("RecordGradientColorStart", &S::Record, &C::Start, 0x0101EB),
        color("RecordGradientColorEnd", &S::Record, &C::End, 0x6060FF),
        color("RecordBorderColor", &S::Record, &C::Border, 0x0EADFA),
        field("Round", &S::Round, false),
        field("RoundBorder", &S::RoundBorder, 7),
        field("ExpositionTime", &S::ExpositionTime, 5),
        field("StartPoint", &S::StartPoint, 0),
        field("DiapoWidth", &S::DiapoWidth, 150),
        field("Style", &S::Style, etlType::etltFollowDiapo),
        field("MargeGauche", &S::MargeGauche, 0),
        field("ShowBarres", &S::ShowBarres, true),
        field("LectureIndicPos", &S::LectureIndicPos, kIndicTop),
    };
}

void eTimeLine::InitProperties() {
    for (const PersistedProperty& property : PersistedProperties()) property.initialize_(*this);
    indicators_.LectureActive = false;
}

// A value that can't be read leaves its property as it was.
void eTimeLine::ReadProperties(const PropertyBag& bag) {
    for (const PersistedProperty& property : PersistedProperties()) {
        Attempt([&] { property.read_(*this, bag); });
    }
}

void eTimeLine::WriteProperties(PropertyBag& bag) const {
    for (const PersistedProperty& property : PersistedProperties()) {
        Attempt([&] { bag.Write(property.Key, property.Value(*this), property.Default(*this)); });
    }
}

}  // namespace vorlane

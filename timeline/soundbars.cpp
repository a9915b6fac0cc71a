// The bars of the sounds: which of them the strip shows, and drawing them.
#include "timeline/etimeline.h"
#include "timeline/gradient.h"
#include "timeline/log.h"

#include <algorithm>

namespace vorlane {

void eTimeLine::PaintBars(const TimeScale& scale) {
    BuildBars(scale);
    SetRowTops();
    ExtendRepetitions(musics_.Bars);
    ExtendRepetitions(comments_.Bars);
    Alternation music;
    Alternation comment;
    const size_t count = std::max(musics_.Bars.size(), comments_.Bars.size());
    for (size_t i = 0; i < count; ++i) {
        Attempt([&] { DrawBar(musics_, i, music, settings_.Music1, settings_.Music2); });
        Attempt([&] { DrawBar(comments_, i, comment, settings_.Comment1, settings_.Comment2); });
    }
}

// --- Which bars there are ---

// From right to left: of the sounds that ended before the visible part only the last one can still reach it, and only
// by repeating.
void eTimeLine::BuildBars(const TimeScale& scale) {
    musics_.Bars.clear();
    comments_.Bars.clear();
    const KnownRow musics = KnownOf(musics_);
    const KnownRow comments = KnownOf(comments_);
    const bool walksMusics = !PlaceThoseInSight(musics_, musics, scale);
    const bool walksComments = !PlaceThoseInSight(comments_, comments, scale);
    // Both rows side by side: a host may hear in which order their slides are asked for.
    const size_t count = std::max(walksMusics ? musics.Count : 0, walksComments ? comments.Count : 0);
    bool passedMusic = false;
    bool passedComment = false;
    for (size_t i = count; i-- > 0;) {
        if (walksMusics && i < musics.Count) PlaceSound(musics_, musics, i, scale, passedMusic);
        if (walksComments && i < comments.Count) PlaceSound(comments_, comments, i, scale, passedComment);
    }
}

eTimeLine::KnownRow eTimeLine::KnownOf(const Row& row) {
    KnownRow known;
    if (!row.Sounds) return known;
    known.Sounds = row.Sounds->CollectItem();
    known.Count = static_cast<size_t>(known.Sounds->Count());
    Attempt([&] { known.Places = row.Sounds->KnownPlaces(&row); });
    return known;
}

// Whether it could be done so.
bool eTimeLine::PlaceThoseInSight(Row& row, const KnownRow& known, const TimeScale& scale) {
    if (!known.Places || !bars::CanLookUp(*known.Places, scale, settings_.ExpositionTime)) return false;
    bool passed = false;
    bars::EachInSight(*known.Places, TheStrip(), scale, settings_.ExpositionTime, [&](size_t i) {
        PlaceSound(row, known, i, scale, passed);
        const bool closed = !row.Bars.empty() && row.Bars.front().x <= static_cast<float>(borderPixels_);
        if (closed) return bars::Left::None;
        return passed ? bars::Left::ThoseThatReachIn : bars::Left::Any;
    });
    return true;
}

void eTimeLine::PlaceSound(Row& row, const KnownRow& known, size_t i, const TimeScale& scale, bool& passed) {
    Attempt([&] {
        const tSon& son = known.Sounds->Item(static_cast<int32_t>(i) + 1);
        const int32_t position = known.Places ? known.Places->Numbers().at(i) : PositionOf(son.DiapoKey);
        if (position < 0) return;
        const int32_t start = timescale::Start(position, settings_.ExpositionTime);
        if (start >= scale.LastSecond) return;
        if (bars::ReachesIn(TheStrip(), scale, start, son.Durée)) return AddBar(row.Bars, son, start, scale);
        if (son.Repetition && !passed) AddBar(row.Bars, son, start, scale);
        passed = true;
    });
}

void eTimeLine::AddBar(BarList& list, const tSon& son, int32_t start, const TimeScale& scale) {
    const auto add = [&] { bars::AddBar(list, son, start, TheStrip(), scale); };
    Trap(pending_, add, [&](const Failure& failure) {
        Report(failure, TimeLineLogText("AddBar", start, scale.FirstSecond, scale.PixelsPerSecond));
    });
}

void eTimeLine::ExtendRepetitions(BarList& list) {
    for (int32_t position = 1; position <= static_cast<int32_t>(list.size()); ++position) {
        const auto repeat = [&] { bars::RepetSon(list, position, TheStrip()); };
        Trap(pending_, repeat, [&](const Failure& failure) { Report(failure, TimeLineLogText("RepetSon")); });
    }
}

// --- Drawing them ---

void eTimeLine::SetRowTops() {
    const auto top = static_cast<float>(settings_.BarreMarge);
    const float bottom = ScaleHeight() - static_cast<float>(settings_.BarreHeight + settings_.BarreMarge);
    const bool musicOnTop = settings_.BarreOnTop == 0;
    musics_.BarTop = musicOnTop ? top : bottom;
    comments_.BarTop = musicOnTop ? bottom : top;
}

void eTimeLine::DrawBar(const Row& row, size_t i, Alternation& colors, const BarColors& set0, const BarColors& set1) {
    if (i >= row.Bars.size()) return;
    // A host that hears of a failure may end the bars.
    const bars::Extent bar{row.Bars[i].x, row.Bars[i].W};
    const int32_t slide = PositionOf(row.Bars[i].Son.DiapoKey);
    if (i == 0) colors.LastSlide = slide;
    if (slide != colors.LastSlide) {
        colors.LastSlide = slide;
        colors.Set = 1 - colors.Set;
    }
    if (bar.x + bar.W <= 0) return;
    const BarColors& set = colors.Set == 0 ? set0 : set1;
    const auto height = static_cast<float>(settings_.BarreHeight);
    GradientTrace(set.Start, set.End, kLeftToRight, false, bar.x, row.BarTop, bar.W, height);
    Surface().LineBox(bar.x, row.BarTop, bar.x + bar.W, row.BarTop + height, set.Border);
}

// --- What lies under the pointer ---

std::string eTimeLine::ToolTipAt(float x, float y) const {
    const std::string music = ToolTipOf(musics_, x, y);
    return music.empty() ? ToolTipOf(comments_, x, y) : music;
}

std::string eTimeLine::ToolTipOf(const Row& row, float x, float y) const {
    if (!bars::InRow(y, row.BarTop, settings_.BarreHeight)) return {};
    const tBarreSon* bar = bars::BarAt(row.Bars, x);
    return bar == nullptr ? std::string() : bar->Son.Nom + " " + Trelmic6::SecondsToText(bar->Son.Durée, true);
}

}  // namespace vorlane

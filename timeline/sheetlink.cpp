// The time line between its sounds and its sheet.
#include "platform/failure.h"
#include "sheet/vorlane.h"
#include "timeline/etimeline.h"

#include <utility>

namespace vorlane {

namespace {

constexpr int16_t kF2 = 113;
constexpr int16_t kF7 = 118;

constexpr eMnuTimeLineID kCommands[] = {emnutlPreviousSound, emnutlPreviousMusic, emnutlPreviousComment,
                                        emnutlNextSound,     emnutlNextMusic,     emnutlNextComment};

}  // namespace

// --- The collections ---

void eTimeLine::Follow(Row& row, SonType type, std::shared_ptr<ClsSon> sounds) {
    row.Heard.clear();
    if (row.Sounds) row.Sounds->LeaveUnanswered(&row);
    row.Sounds = std::move(sounds);
    if (!row.Sounds) return;
    ClsSonEvents& events = row.Sounds->Events;
    row.Heard.emplace_back(events.csGetDiapoIndex.connect([this](int32_t key, int16_t& diapoIndex) {
        diapoIndex = link_.Sheet == nullptr ? int16_t{-1} : link_.Sheet->GetIndexFromKey(key);
    }));
    row.Sounds->AnswerNumDiapo(
        &row, [this](int32_t key) { return PositionOf(key); }, [this] { return PositionsState(); });
    row.Heard.emplace_back(events.csGetRedraw.connect([this](bool& redraw) { redraw = redraw_; }));
    row.Heard.emplace_back(events.csRemoveSound.connect(
        [this, type](int32_t key, int16_t diapoIndex) { Events.RemovedSound(type, key, diapoIndex); }));
    row.Heard.emplace_back(events.csRepaint.connect([this] {
        if (Ambient().UserMode) Paint();
    }));
}

template <class Act>
void eTimeLine::ForEachCollection(Act&& act) {
    for (const auto& sounds : {Musiques(), Comments()}) {
        if (sounds) act(*sounds);
    }
}

// --- The sheet ---

Vorlane& eTimeLine::Sheet() const {
    if (link_.Sheet == nullptr) throw failures::ObjectNotSet();
    return *link_.Sheet;
}

int32_t eTimeLine::PositionOf(int32_t diapoKey) const {
    return link_.Sheet == nullptr ? -1 : link_.Sheet->GetListIndexFromItemData(diapoKey);
}

uint64_t eTimeLine::PositionsState() const {
    ListControl* list = link_.Sheet == nullptr ? nullptr : link_.Sheet->Liste();
    return list == nullptr || list->AsListBox() == nullptr ? 0 : list->AsListBox()->DataState();
}

void eTimeLine::AttachVorlane(Vorlane* sheet) {
    link_.Heard.clear();
    link_.Sheet = sheet;
    if (sheet == nullptr) return;
    const auto hear = [this](auto& event, auto handler) { link_.Heard.emplace_back(event.connect(handler)); };
    VorlaneEvents& events = sheet->Events;
    hear(events.AfterDropAdd, [this](auto&&...) { Refresh(); });
    hear(events.KeyDown, [this](int16_t keyCode, int16_t) { KeyCommand(keyCode); });
    hear(events.OLECompleteDrag, [this](auto&&...) { SortSounds(); });
    hear(events.Removed,
         [this](int16_t, int32_t key) { ForEachCollection([key](ClsSon& sounds) { sounds.Remove(key); }); });
    hear(events.Sorted, [this] { SortSounds(); });
    hear(events.TLRefresh, [this] { Refresh(); });
}

void eTimeLine::SortSounds() {
    ForEachCollection([](ClsSon& sounds) { sounds.Sort(); });
    Refresh();
}

bool eTimeLine::KeyCommand(int16_t keyCode) {
    if (keyCode < kF2 || keyCode > kF7) return false;
    const bool leads = link_.Sheet != nullptr && link_.Sheet->CurrentDiapo() >= 0;
    if (leads) MnuCtx_ItemClic(kCommands[keyCode - kF2]);
    return true;
}

}  // namespace vorlane

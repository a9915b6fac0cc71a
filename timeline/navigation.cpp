// From sound to sound: searching them, the popup menu, and selecting a sound's slide.
#include "platform/failure.h"
#include "platform/numbers.h"
#include "sheet/vorlane.h"
#include "timeline/etimeline.h"
#include "timeline/log.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace vorlane {

namespace {

constexpr int32_t kNoKey = -1;
constexpr int32_t kBothKinds = 2;
constexpr int16_t kRightButton = 2;
constexpr int32_t kControlKey = 17;

constexpr bool Wants(int32_t quoi, SonType type) {
    return quoi == type || quoi == kBothKinds;
}

tSon NoSound() {
    tSon none;
    none.DiapoKey = kNoKey;
    return none;
}

}  // namespace

// --- Searching ---

int32_t eTimeLine::StartOf(int32_t diapoKey) const {
    return timescale::Start(Sheet().GetListIndexFromItemData(diapoKey), settings_.ExpositionTime);
}

// A comment wins over a music, even over an earlier one.
tSon eTimeLine::Found::Choice(int32_t quoi) const {
    if (quoi == kMusic) return Music;
    if (quoi == kComment) return Comment;
    if (quoi != kBothKinds) return NoSound();
    return Comment.DiapoKey == kNoKey ? Music : Comment;
}

// Walks the collections side by side. judge takes a sound, its start and the second to start from, and gives what the
// sound is as a result, if it is one. A result without a slide is replaced by a later one, unless one kind alone is
// looked for: then the first one ends the search.
template <class Judge>
void eTimeLine::Search(int32_t fromDiapoKey, int32_t quoi, bool forward, const Judge& judge, Found& found) const {
    if (!Musiques() || !Comments()) throw failures::ObjectNotSet();
    const auto musics = Musiques()->CollectItem();
    const auto comments = Comments()->CollectItem();
    const int32_t from = StartOf(fromDiapoKey);
    const auto hit = [&](const SonCollection& sounds, int32_t i, tSon& result) {
        if (i > sounds.Count() || result.DiapoKey != kNoKey) return false;
        const tSon& son = sounds.Item(i);
        const std::optional<tSon> judged = judge(son, StartOf(son.DiapoKey), from);
        if (judged) result = *judged;
        return judged.has_value();
    };
    const int32_t count = std::max(musics->Count(), comments->Count());
    for (int32_t step = 1; step <= count; ++step) {
        const int32_t i = forward ? step : count + 1 - step;
        if (Wants(quoi, kMusic) && hit(*musics, i, found.Music) && quoi == kMusic) return;
        if (Wants(quoi, kComment) && hit(*comments, i, found.Comment)) {
            found.Comment.TypeSon = kComment;
            if (quoi == kComment) return;
        }
        if (found.Music.DiapoKey != kNoKey && found.Comment.DiapoKey != kNoKey) return;
    }
}

tSon eTimeLine::NextSound(int32_t fromDiapoKey, int32_t quoi) {
    Found found{NoSound(), NoSound()};
    const auto behind = [](const tSon& son, int32_t start, int32_t from) {
        return start > from ? std::optional(son) : std::nullopt;
    };
    Trap(
        pending_, [&] { Search(fromDiapoKey, quoi, true, behind, found); },
        [&](const Failure& failure) { Report(failure, TimeLineLogText("NextSound", fromDiapoKey, quoi)); });
    return found.Choice(quoi);
}

tSon eTimeLine::PreviousSound(int32_t fromDiapoKey, int32_t quoi, bool setStart) {
    Found found{NoSound(), NoSound()};
    const auto before = [setStart](const tSon& son, int32_t start, int32_t from) -> std::optional<tSon> {
        if (start >= from) return std::nullopt;
        tSon result = son;
        if (setStart && int64_t{start} + son.Durée >= from) {
            result.Durée = ToInt32(int64_t{from} - start);
            result.DiapoKey = kNoKey;
            result.Nom.clear();
        }
        return result;
    };
    Trap(
        pending_, [&] { Search(fromDiapoKey, quoi, false, before, found); },
        [&](const Failure& failure) {
            Report(failure, TimeLineLogText("PreviousSound", fromDiapoKey, quoi, setStart));
        });
    return found.Choice(quoi);
}

tSon eTimeLine::SoundAt(const Row& row, float diapoX, std::string_view operation) {
    tSon result;
    const auto look = [&] {
        const tBarreSon* bar = bars::BarAt(row.Bars, diapoX);
        if (bar == nullptr) return;
        result = bar->Son;
        const float ratio = timescale::PixelsPerSecond(settings_.DiapoWidth, settings_.ExpositionTime);
        if (ratio == 0) throw failures::DivisionByZero();
        result.Durée = ToInt32((diapoX - bar->x) / ratio);
    };
    Trap(pending_, look, [&](const Failure& failure) { Report(failure, TimeLineLogText(operation, diapoX)); });
    return result;
}

// --- The menu ---

void eTimeLine::ConnectMenu() {
    Input.MouseUp.connect([this](int16_t button, int16_t, float, float y) {
        if (button != kRightButton || link_.Sheet == nullptr) return;
        const bool control = utilities_.KeyIsDown(kControlKey);
        const bool onMusic = control && bars::InRow(y, musics_.BarTop, settings_.BarreHeight);
        const bool onComment = control && !onMusic && bars::InRow(y, comments_.BarTop, settings_.BarreHeight);
        ShowMenu(!onComment, !onMusic, false, -1, -1);
    });
}

void eTimeLine::Menu(int32_t quoi, int32_t xPixels, int32_t yPixels) {
    if (quoi < kMusic || quoi > kBothKinds) return;
    ShowMenu(Wants(quoi, kMusic), Wants(quoi, kComment), true, xPixels, yPixels);
}

void eTimeLine::ContextMenu(int32_t xPixels, int32_t yPixels) {
    if (link_.Sheet != nullptr) ShowMenu(true, true, false, xPixels, yPixels);
}

// The time line may end while its menu is open; then nobody hears of the choice.
void eTimeLine::ShowMenu(bool musics, bool comments, bool onlyFiles, int32_t x, int32_t y) {
    const auto menu = std::make_shared<ClsMenuCtx>(Desktop());
    menu_.Heard.clear();
    menu_.Heard.emplace_back(menu->Events.ItemClic.connect([this](int32_t item) { MnuCtx_ItemClic(item); }));
    menu_.Heard.emplace_back(
        menu->Events.GetSecond.connect([this](int32_t diapoKey, int32_t& secStart, std::string& nomImage) {
            MnuCtx_GetSecond(diapoKey, secStart, nomImage);
        }));
    menu_.MnuCtx = menu;
    const std::weak_ptr<const bool> alive = alive_;
    Attempt([&] {
        const auto shown = [](bool wanted, const std::shared_ptr<ClsSon>& sounds) {
            return wanted && sounds ? sounds->CollectItem() : nullptr;
        };
        menu->MenuTimeLine(Hwnd(), shown(musics, Musiques()), shown(comments, Comments()), onlyFiles, x, y);
    });
    if (!alive.expired()) menu_ = {};
}

void eTimeLine::MnuCtx_GetSecond(int32_t diapoKey, int32_t& secStart, std::string& nomImage) {
    const int32_t position = Sheet().GetListIndexFromItemData(diapoKey);
    if (position < 0) return;
    secStart = timescale::Start(position, settings_.ExpositionTime);
    nomImage = Trelmic6::FilePart(Sheet().ImageFullPath(position), PathPart::FileName);
}

void eTimeLine::MnuCtx_ItemClic(int32_t mnuItemID) {
    const std::weak_ptr<const bool> alive = alive_;
    Trap(
        pending_, [&] { RunMenuItem(mnuItemID); },
        [&](const Failure& failure) { Report(failure, TimeLineLogText("MnuCtx_ItemClic", mnuItemID)); });
    if (!alive.expired()) menu_.MnuCtx.reset();
}

void eTimeLine::RunMenuItem(int32_t mnuItemID) {
    if (mnuItemID >= 1) return SelectSlide(mnuItemID - 1);
    if (mnuItemID == 0 || mnuItemID < emnutlNextSound) return;
    const int16_t current = Sheet().CurrentDiapo();
    if (current < 0) return;
    const int32_t from = Sheet().Diapos.Item(current)->Key();
    const bool next = mnuItemID % 2 == 0;
    const int32_t quoi = (-mnuItemID - 1) / 2;
    const std::weak_ptr<const bool> alive = alive_;
    const int32_t found = next ? NextSound(from, quoi).DiapoKey : PreviousSound(from, quoi).DiapoKey;
    if (!alive.expired()) SelectSlide(found);
}

// The time line may end while the sheet shows the slide; then the slide is shown and not selected.
void eTimeLine::SelectSlide(int32_t diapoKey) {
    if (diapoKey < 0) return;
    const std::weak_ptr<const bool> alive = alive_;
    const int16_t index = Sheet().StartLecture({}, diapoKey);
    if (!alive.expired() && index >= 0) Sheet().SetCurrentDiapo(index);
}

}  // namespace vorlane

// ClsSon: the sounds of one kind in the order of the slides that they start on, at most one to a slide. It knows
// nothing of a sheet nor of a screen: it asks its owner through events where a slide stands and whether the display
// follows, and the owner answers before the event returns. What the owner leaves unanswered keeps the last answer.
//
// Add and Sort ask for the numbers of slides at each step of their scans. Where only the owner answers, by
// AnswerNumDiapo, a sort comes to the same order with one question for each sound; and where the owner tells, too, when
// its answers may be others, the numbers are kept as long as they are good.
#pragma once

#include "platform/event.h"
#include "platform/trelmic6.h"
#include "timeline/soncollection.h"
#include "timeline/soundplaces.h"
#include "timeline/tson.h"

#include <cstdint>
#include <functional>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vorlane {

struct ClsSonEvents {
    Event<> csRepaint;                         // repaint
    Event<bool&> csGetRedraw;                  // Redraw: whether the display follows changes
    Event<int32_t, int32_t&> csGetNumDiapo;    // Key, NumDiapo: the slide's place on the sheet, -1 for none
    Event<int32_t, int16_t&> csGetDiapoIndex;  // Key, DiapoIndex: its index among the slides, negative for none
    Event<int32_t, int16_t> csRemoveSound;     // Key, DiapoIndex: that slide has lost its sound
};

class ClsSon {
public:
    // A walk over the entries that stood in the list when it began; later changes to them show, a new list does not.
    class Enumerator {
    public:
        class Iterator {
        public:
            using iterator_category = std::input_iterator_tag;
            using value_type = tSon;
            using difference_type = std::ptrdiff_t;
            using pointer = const tSon*;
            using reference = const tSon&;

            explicit Iterator(const SonCollection& sounds) : sounds_(&sounds) {}
            reference operator*() const { return sounds_->Item(index_); }
            Iterator& operator++() {
                ++index_;
                return *this;
            }
            bool operator==(std::default_sentinel_t) const { return index_ > sounds_->Count(); }

        private:
            const SonCollection* sounds_;
            int32_t index_ = 1;
        };

        explicit Enumerator(std::shared_ptr<const SonCollection> sounds) : sounds_(std::move(sounds)) {}
        Iterator begin() const { return Iterator(*sounds_); }
        static std::default_sentinel_t end() { return {}; }

    private:
        std::shared_ptr<const SonCollection> sounds_;
    };

    explicit ClsSon(const Desktop& desktop) : utilities_(desktop) {}
    ClsSon(const ClsSon&) = delete;
    ClsSon& operator=(const ClsSon&) = delete;

    // Puts a sound in front of the first one of a later slide; a file that is not there is not added. DiapoValue is
    // the slide's place where the caller knows it. Fails with DuplicateKey() for a slide that has a sound.
    void Add(const std::string& soundFileName, int32_t diapoKey, int32_t diapoValue = -1, bool repetition = false,
             bool rehausse = true, uint8_t volNormal = 100, uint8_t volPendantComment = 25, uint8_t volComment = 100);
    void Clear();
    int32_t Count() const { return sounds_->Count(); }
    // The sound of a slide; nothing when it has none.
    std::optional<tSon> Item(int32_t key) const;
    // Replaces the sound of a slide. The last but one of a list goes behind the last one until the next Sort.
    void SetItem(int32_t key, const tSon& son);
    // Index from 1; fails with SubscriptOutOfRange().
    tSon ItemFromPos(int32_t index) const { return sounds_->Item(index); }
    // Whether a sound went. Never fails.
    bool Remove(int32_t key);
    // All sounds of a file, whatever the case of its name.
    void RemoveFromName(const std::string& fileName);
    // Puts the sounds in the present order of their slides and drops those of slides that have left. The caller
    // repaints.
    void Sort();
    // for (const tSon& son : sounds.NewEnum())
    Enumerator NewEnum() const { return Enumerator(sounds_); }
    // The list itself. Clear and Sort leave it to its holders and begin another one.
    const std::shared_ptr<SonCollection>& CollectItem() const { return sounds_; }
    void SetTypeSon(int32_t type) { typeSon_ = type; }
    // The owner's own answer to csGetNumDiapo, ahead of the event's handlers. It must not change the list. state names
    // what the answers go by: all of them stay the same as long as it is the same number; 0 where that can't be told.
    // A collection in several hands goes by the last one that answered.
    void AnswerNumDiapo(const void* owner, std::function<int32_t(int32_t key)> answer,
                        std::function<uint64_t()> state = {});
    // Nothing when somebody else answers.
    void LeaveUnanswered(const void* owner);
    // That owner's answers for all sounds; nullptr without a state. Good until the next change.
    std::shared_ptr<const SoundPlaces> KnownPlaces(const void* owner);

    ClsSonEvents Events;

private:
    // The owner's answers, and what they go by.
    struct Known {
        uint64_t State = 0;
        uint64_t Revision = 0;  // of the list
        std::shared_ptr<SoundPlaces> Places;
    };

    int32_t NumDiapo(int32_t key);
    bool OnlyOwnerAnswers() const { return answer_ && !Events.csGetNumDiapo.connected(); }
    void Begin();
    void KeepKnown(const tSon& son, size_t place);
    void SortByEvents(const SonCollection& old);
    void SortByAnswers(const SonCollection& old);
    void Place(const tSon& son, int32_t diapoValue);
    std::optional<int32_t> FirstBehind(int32_t diapoKey, int32_t diapoValue);
    std::optional<int32_t> FirstKnownBehind(int32_t diapoKey, int32_t diapoValue) const;
    void FollowDisplay();

    Trelmic6 utilities_;
    std::shared_ptr<SonCollection> sounds_ = std::make_shared<SonCollection>();
    const void* owner_ = nullptr;  // who answers; only compared
    std::function<int32_t(int32_t key)> answer_;
    std::function<uint64_t()> state_;
    Known known_;
    int32_t typeSon_ = 0;
    bool redraw_ = false;  // last answers of the owner
    int32_t numDiapo_ = 0;
};

}  // namespace vorlane

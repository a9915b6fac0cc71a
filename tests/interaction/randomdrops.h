// RandomDrops: a RandomHand that drags and drops too, within the sheet and from outside, renames the files of a folder
// of the test's own, and plays sounds.
#pragma once

#include "platform/draggedfile.h"
#include "platform/headless/userdrag.h"
#include "tests/interaction/randomhand.h"
#include "tests/platform/temporaryfolder.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace vorlane {

class RandomDrops : public RandomHand {
protected:
    using UserDrag = headless::UserDrag;

    RandomDrops() {
        for (const char* name : {"picture-1.jpg", "picture-2.jpg", "picture-3.png", "notes.txt", "plain"})
            MakeFile(name);
        folder_.Folder("inner");
        for (const char* name : {"inner/picture-4.jpg", "inner/picture-5.jpg"}) MakeFile(name);
        desktop.sounds.Add(kSound, 2);
        desktop.drags.Script([this](UserDrag& drag) {
            dragged_ = true;
            LeadAbout(drag);
        });
        AnswerDrags();
        AnswerSounds();
    }

    void Begin() {
        Start();
        sheet->SetOLEDragMode(1);
        sheet->SetOLEDropMode(2);
        sheet->SetSortedSens(SortSensType::ssNone);
        Fill();
    }

    // --- Drags ---

    bool DragRuns() const { return leading_; }

    std::string DragSlides() {
        const auto before = Items();
        const int32_t disturbed = disturbances_;
        const bool renames = sheet->Txt.Visible();  // a press on the ground may end that
        dragged_ = false;
        const int32_t k = Pick(0, sheet->Diapo.Count() - 1);
        const Point from = InSlide(k);
        const auto x = static_cast<float>(from.X);
        const auto y = static_cast<float>(from.Y);
        desktop.clock.Advance(1000);
        window.Press(x, y, headless::kLeftButton, Keys());
        window.MouseTo(x + static_cast<float>(Pick(-9, 9)), y);
        if (!dragged_ && Holds()) window.Release(x, y);
        if (disturbed == disturbances_ && !renames) CompareItems(before);
        return dragged_ ? "drag" : "press";
    }

    std::string DropFromOutside() {
        UserDrag drag(desktop, SomeData(), Maybe(90) ? 3 : Pick(0, 3));
        LeadAbout(drag);
        return "drag from outside";
    }

    // --- Renames and sounds ---

    std::string Rename() {
        if (!sheet->Txt.Visible()) {
            const int32_t k = Pick(0, sheet->Diapo.Count() - 1);
            if (sheet->Diapo.Item(k)->Value() < 0) return "no name";
            sheet->StartEdit(ToInt16(k));
        }
        // None of them is a part of the folder's own name, which is another each time.
        constexpr const char* kNames[] = {"alpha", "ALPHA", "été",    "x.y",    "b c",
                                          "",      "con",   "beta/b", "omega ", "picture-1"};
        if (Maybe(80)) sheet->Txt.SetText(kNames[Pick(0, 9)]);
        window.Router().SetFocus(&sheet->Txt);
        const int16_t key = Maybe(70) ? int16_t{13} : int16_t{27};
        if (Maybe(80)) window.Key(key, key);
        return "rename";
    }

    std::string PressASoundButton() {
        const auto slide = sheet->Diapo.Item(Pick(0, sheet->Diapo.Count() - 1));
        Image& button = Maybe(50) ? slide->BtPlay : slide->BtComment;
        if (button.Visible()) button.Input.Click();
        if (Maybe(30)) desktop.clock.Advance(Pick(0, 1500));
        if (Maybe(10)) sheet->StopSound();
        return "sound";
    }

    // --- What has to hold ---

    // No row is open, no mark, no ghost and no band show, the mouse is free; one sound on a channel.
    void CheckRest() {
        const auto holds = [this](bool good, const char* what) { errors_ += good ? "" : std::string(what) + "\n"; };
        holds(desktop.screen.Captured() == 0, "the mouse is still captured");
        holds(!sheet->SelRect.Visible(), "the band still stands");
        holds(!IsDragArmed(), "a drag is still armed");
        holds(!sheet->ImgDrag.Visible(), "the mark still stands");
        holds(!sheet->TimerDrag.Enabled(), "the drag's timer runs on");
        holds(desktop.forms.OpenForms() == 0, "a ghost is left");
        holds(desktop.sounds.OpenSounds() <= 2, "a sound has got lost");
        for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) {
            const auto slide = sheet->Diapo.Item(k);
            holds(slide->Left() == slide->Col() && slide->Top() == slide->Lig(), "a row is open");
        }
    }
    // Whatever was renamed and dropped, each file is there, once.
    bool FilesAreThere() const {
        std::multiset<std::string> contents;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_.Path())) {
            if (!entry.is_regular_file()) continue;
            std::ifstream file(entry.path(), std::ios::binary);
            contents.emplace(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
        }
        return contents == contents_;
    }

    int32_t disturbances_ = 0;  // what has come in at yields

private:
    // Whether a slide that is pulled without having been pressed starts a drag.
    bool IsDragArmed() {
        const auto slide = sheet->Diapo.Item(0);
        dragStarts_ = false;
        for (const int32_t key : {kShiftKey, kCtrlKey}) desktop.keyboard.Set(key, false);
        slide->Events.MouseMove(0, 0, 0, 0);
        desktop.keyboard.Set(headless::kLeftButton, true);
        slide->Events.MouseMove(headless::kLeftButton, 0, kFar, kFar);
        desktop.keyboard.Set(headless::kLeftButton, false);
        return dragStarts_;
    }

    static constexpr int32_t kShiftKey = 16;
    static constexpr int32_t kCtrlKey = 17;
    static constexpr float kFar = 100000;  // twips
    static constexpr const char* kSound = "/s/a.mp3";
    static constexpr int32_t kEscape = 27;

    void MakeFile(const std::string& name) {
        desktop.pictures.Add(folder_.File(name, name), 60, 40);
        contents_.insert(name);
    }

    void AnswerDrags() {
        auto& events = sheet->Events;
        events.OLEBeforeStartDrag.connect([this](int32_t count, std::string& text, bool& cancel) {
            leading_ = true;
            text = std::to_string(count);
            cancel = Maybe(5);
        });
        events.OLEStartDrag.connect([this](DataObject&, int32_t&) { dragStarts_ = true; });
        events.OLECompleteDrag.connect([this](int32_t&) { leading_ = false; });
        events.OLEBeforeDropStart.connect([this](int32_t, bool& cancel) { cancel = Maybe(10); });
        events.OLENewFileAdded.connect([this](const std::string&, int32_t& key, bool& cancel) {
            cancel = Maybe(10);
            if (Maybe(30)) key = Pick(-1, 2000);
        });
    }
    void AnswerSounds() {
        auto& events = sheet->Events;
        events.BeforeSetPicture.connect([](int16_t, const std::string& name, Picture&, bool& music, bool& comment,
                                           bool& text, bool& badMusic, bool& badComment) {
            const size_t kind = std::hash<std::string>{}(name.substr(name.rfind('/') + 1));
            music = kind % 2 == 0;
            comment = kind % 3 == 0;
            text = kind % 5 == 0;
            badMusic = kind % 7 == 0;
            badComment = kind % 11 == 0;
        });
        events.ClickPlay.connect([this](int16_t, std::string& file, int32_t&, int32_t, bool& play, std::string& alias) {
            if (Maybe(80)) file = kSound;
            play = Maybe(70);
            if (!play) alias = "of the host";
        });
    }

    // Over the sheet and beyond, to a drop, away, or cancelled.
    void LeadAbout(UserDrag& drag) {
        leading_ = true;
        for (int32_t n = Pick(0, 5); n > 0; --n) {
            const bool escapes = Maybe(2);
            desktop.keyboard.Set(kEscape, escapes);
            const float x = Across();
            const float y = Down();
            drag.Over(window, x, y, Keys());
            desktop.keyboard.Set(kEscape, false);
            if (Maybe(30)) desktop.clock.Advance(Pick(0, 50));  // scrolls at the edges
        }
        const int32_t end = Pick(1, 10);
        if (end <= 6) drag.Drop();
        if (end == 7) drag.Escape();
        leading_ = false;
    }

    DataObject SomeData() {
        std::vector<std::string> files;
        std::string text;
        for (int32_t n = Pick(0, 4); n > 0; --n) {
            const std::string path = SomePath();
            files.push_back(Maybe(30) ? DraggedFileEntry(path, Pick(-1, 2000)) : path);
            text += path + (Maybe(90) ? "\r\n" : "\n");
        }
        DataObject data;
        if (Maybe(70)) data.SetFiles(files);
        if (Maybe(40)) data.SetText(text);
        return data;
    }
    // A folder, a file that is there or was, what is no path at all.
    std::string SomePath() {
        switch (Pick(0, 9)) {
            case 0:
                return folder_.Path();
            case 1:
                return folder_.At("inner");
            case 2:
                return folder_.At("gone.jpg");
            case 3:
                return "";
            case 4:
                return "relative.jpg";
            default:
                return folder_.At(contents_.empty() ? "" : *std::next(contents_.begin(), Pick(0, 6)));
        }
    }

    void CompareItems(const std::multiset<std::pair<std::string, int32_t>>& before) {
        const auto now = Items();
        for (const auto& [text, key] : now) {
            if (before.count({text, key}) == 0) errors_ += "new: " + text + " " + std::to_string(key) + "\n";
        }
        for (const auto& [text, key] : before) {
            if (now.count({text, key}) == 0) errors_ += "gone: " + text + " " + std::to_string(key) + "\n";
        }
        if (now.size() != before.size()) errors_ += "a drag has changed the number of items\n";
    }
    // Texts and keys of all items.
    std::multiset<std::pair<std::string, int32_t>> Items() const {
        std::multiset<std::pair<std::string, int32_t>> items;
        const ListBox& list = *sheet->Liste()->AsListBox();
        for (int32_t i = 0; i < list.ListCount(); ++i) items.emplace(list.List(i), list.ItemData(i));
        return items;
    }

    TemporaryFolder folder_;
    std::multiset<std::string> contents_;  // of all files: the name that each had at first
    bool dragged_ = false;
    bool dragStarts_ = false;
    bool leading_ = false;
};

}  // namespace vorlane

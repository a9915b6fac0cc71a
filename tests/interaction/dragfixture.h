// DragTest: a sheet that drags and takes drops by itself, with no sort in force, under the scripted user's hand. Slides
// are 100 x 75, at 5, 111 and 217 from the left, at 5, 86 and 167 from the top; a row has 19 pixels of free room.
#pragma once

#include "platform/headless/userdrag.h"
#include "tests/interaction/gesturefixture.h"
#include "tests/platform/temporaryfolder.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace vorlane {

class DragTest : public GestureTest {
protected:
    using UserDrag = headless::UserDrag;

    void ShowDraggable(int32_t items) {
        Start();
        sheet->SetOLEDragMode(1);
        sheet->SetOLEDropMode(2);
        sheet->SetSortedSens(SortSensType::ssNone);
        ListenToDrags();
        AddItems(0, items - 1);
        sheet->StartLecture();
        desktop.trace.Clear();
    }

    // A drag of the selection by slide k, which is selected by the press if it was not yet.
    void DragSlide(int32_t k, std::function<void(UserDrag&)> script) {
        desktop.drags.Script(std::move(script));
        Press(k);
        const Point from = InSlide(k);
        window.MouseTo(static_cast<float>(from.X + 5), static_cast<float>(from.Y));
    }
    // To the left (share below 0.5) or the right half of slide k, by its home.
    void Over(UserDrag& drag, int32_t k, float share) {
        const auto slide = sheet->Diapo.Item(k);
        drag.Over(window, slide->Col() + slide->Width() * share, slide->Lig() + slide->Height() / 2);
    }
    void DropOn(UserDrag& drag, int32_t k, float share) {
        Over(drag, k, share);
        drag.Drop();
    }

    // Pictures that are really there.
    std::string RealFile(const std::string& name) {
        std::string path = folder.Sparse(name, 1);
        desktop.pictures.Add(path, 60, 40);
        return path;
    }
    static DataObject Files(std::vector<std::string> files) {
        DataObject data;
        data.SetFiles(std::move(files));
        return data;
    }
    static DataObject Text(std::string text) {
        DataObject data;
        data.SetText(std::move(text));
        return data;
    }

    // Left edges of the slides first to last.
    std::string Lefts(int32_t first, int32_t last) const {
        std::string text;
        for (int32_t k = first; k <= last; ++k) {
            text += (k == first ? "" : " ") + std::to_string(static_cast<int>(sheet->Diapo.Item(k)->Left()));
        }
        return text;
    }
    std::string Mark() const {
        if (!sheet->ImgDrag.Visible()) return "hidden";
        return std::to_string(static_cast<int>(sheet->ImgDrag.Left())) + "," +
               std::to_string(static_cast<int>(sheet->ImgDrag.Top()));
    }
    // Names of all files of the list, without folder and extension.
    std::string Names() const {
        std::string text;
        for (int32_t i = 0; i < sheet->Liste()->ListCount(); ++i) {
            const std::string path = sheet->ImageFullPath(i);
            const size_t start = path.rfind('/') + 1;
            text += (i == 0 ? "" : " ") + path.substr(start, path.rfind('.') - start);
        }
        return text;
    }
    // What the host heard of drags and failures.
    std::string Told() { return desktop.trace.Take({"ole", "drag"}); }

    TemporaryFolder folder;
    std::function<void(std::string&, bool&)> onBeforeStart;
    std::function<void(DataObject&, int32_t&)> onStart;
    std::function<void(bool&)> onBeforeDrop;
    std::function<void(const std::string&, int32_t&, bool&)> onNewFile;
    std::function<void()> onSortChanged;

private:
    void Note(const std::string& line) { desktop.trace.Add("ole " + line); }

    void ListenToDrags() {
        auto& events = sheet->Events;
        events.OLEBeforeStartDrag.connect([this](int32_t count, std::string& text, bool& cancel) {
            Note("BeforeStartDrag " + std::to_string(count));
            if (onBeforeStart) onBeforeStart(text, cancel);
        });
        events.OLEStartDrag.connect([this](DataObject& data, int32_t& effects) {
            Note("StartDrag " + std::to_string(effects));
            if (onStart) onStart(data, effects);
        });
        events.OLEDragOver.connect(
            [this](DataObject&, int32_t& effect, int16_t, int16_t, float x, float y, int16_t state) {
                Note("DragOver " + std::to_string(effect) + " " + std::to_string(static_cast<int>(x)) + "," +
                     std::to_string(static_cast<int>(y)) + " " + std::to_string(state));
            });
        events.OLEDragDrop.connect([this](DataObject&, int32_t& effect, int16_t, int16_t, float x, float y) {
            Note("DragDrop " + std::to_string(effect) + " " + std::to_string(static_cast<int>(x)) + "," +
                 std::to_string(static_cast<int>(y)));
        });
        events.OLECompleteDrag.connect([this](int32_t& effect) { Note("CompleteDrag " + std::to_string(effect)); });
        events.OLEBeforeDropStart.connect([this](int32_t count, bool& cancel) {
            Note("BeforeDropStart " + std::to_string(count));
            if (onBeforeDrop) onBeforeDrop(cancel);
        });
        events.OLENewFileAdded.connect([this](const std::string& name, int32_t& key, bool& cancel) {
            Note("NewFileAdded " + name.substr(name.rfind('/') + 1) + " " + std::to_string(key));
            if (onNewFile) onNewFile(name, key, cancel);
        });
        events.OLESortChanged.connect([this] {
            Note("SortChanged");
            if (onSortChanged) onSortChanged();
        });
        events.OLEDragError.connect([this] { Note("DragError"); });
        events.AfterDropAdd.connect([this](int32_t count) { Note("AfterDropAdd " + std::to_string(count)); });
        events.Sorted.connect([this] { Note("Sorted"); });
        events.Error.connect([this](int32_t number, const std::string&, const std::string&, int32_t,
                                    const std::string& log) { Note("Error " + std::to_string(number) + " " + log); });
    }
};

}  // namespace vorlane

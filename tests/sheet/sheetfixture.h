// SheetTest: a sheet in a headless window, with a host that writes what it hears into the desktop's trace.
//
// The usual window shows two rows of three slides; the pool has one row more: nine slides.
#pragma once

#include "platform/headless/window.h"
#include "platform/numbers.h"
#include "sheet/vorlane.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace vorlane {

class SheetTest : public ::testing::Test {
protected:
    static constexpr int32_t kWidth = 345;
    static constexpr int32_t kHeight = 180;

    headless::Desktop desktop;
    headless::Window window{desktop, {100, 200, 100 + kWidth, 200 + kHeight}};
    std::unique_ptr<Vorlane> sheet;

    SheetTest() { Make(window.Ambient()); }

    // A sheet that has not started yet.
    void Make(const Ambient& ambient) {
        sheet = std::make_unique<Vorlane>(desktop.Roles(), ambient);
        Listen();
    }

    // The usual start: from an empty bag, so with the defaults of the properties.
    void Start(const PropertyBag& bag = {}) {
        window.Host(*sheet, bag);
        desktop.trace.Clear();
    }

    // The full name of the n-th picture, which can be read.
    std::string File(int32_t n) {
        for (; declared_ <= n; ++declared_) desktop.pictures.Add(NameOfFile(declared_), 60, 40);
        return NameOfFile(n);
    }

    // The number of the picture that stands at each index of the list, by its key.
    std::string Order() const {
        const ListBox& list = *sheet->Liste()->AsListBox();
        std::string text;
        for (int32_t i = 0; i < list.ListCount(); ++i) {
            text += (i == 0 ? "" : " ") + std::to_string(list.ItemData(i) - 1000);
        }
        return text;
    }

    // Adds pictures first to last with their numbers as keys plus 1000.
    void AddItems(int32_t first, int32_t last) {
        for (int32_t n = first; n <= last; ++n) sheet->Add(File(n), "", 1000 + n);
    }

    // Starts the sheet and shows that many items, from the top.
    void Show(int32_t items) {
        Start();
        AddItems(0, items - 1);
        sheet->StartLecture();
        desktop.trace.Clear();
    }

    // What the loaded slides show, by list index: "." for a blank slide, in brackets when it is out of sight.
    std::string Slides() const {
        std::string text;
        for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) {
            const auto slide = sheet->Diapo.Item(k);
            const std::string value = slide->Value() == -1 ? "." : std::to_string(slide->Value());
            text += (k == 0 ? "" : " ") + (slide->Visible() ? value : "(" + value + ")");
        }
        return text;
    }

    // Where slide k stands: "left,top".
    std::string Place(int32_t k) const {
        const auto slide = sheet->Diapo.Item(k);
        const auto spelled = [](float length) { return std::to_string(static_cast<int>(length)); };
        return spelled(slide->Left()) + "," + spelled(slide->Top());
    }

    // Whether each bound slide shows the file and the selection of its item.
    void ExpectSlidesAgreeWithList() const {
        for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) {
            const auto slide = sheet->Diapo.Item(k);
            if (slide->Value() == -1) continue;
            EXPECT_EQ(slide->ImageFullPath(), sheet->ImageFullPath(slide->Value())) << "slide " << k;
            EXPECT_EQ(slide->Selected(), sheet->Liste()->Selected(slide->Value())) << "slide " << k;
            const bool readable = slide->ImageFullPath().find("/broken") == std::string::npos;
            EXPECT_EQ(headless::NameOf(slide->Picture()), readable ? slide->ImageFullPath() : "file-substitute")
                << "slide " << k;
        }
    }

    std::string Heard() { return desktop.trace.Take({"host"}); }
    std::string Heard(std::initializer_list<std::string_view> topics) { return desktop.trace.Take(topics); }

    // Host handlers that run after the trace has been written. They are called with the slide's index or number.
    std::function<void(int16_t)> onAdded;
    std::function<void(int16_t, Picture&)> onBeforeSetPicture;
    std::function<void(std::string&, bool&)> onBeforeAdd;
    std::function<void()> onDisplayStart;
    std::function<void()> onDisplayEnd;
    std::function<void(int32_t)> onFeedBack;
    std::function<void(int32_t&)> onScroll;
    std::function<void()> onSorted;
    std::function<void(int32_t&)> onRemoved;
    std::function<void()> onMouseDown;
    std::function<void()> onMouseMove;
    std::function<void()> onMouseUp;
    std::function<void(int32_t&)> onBarMouse;
    std::function<void(std::string&)> onGetThumbPath;

private:
    static std::string NameOfFile(int32_t n) {
        const std::string digits = std::to_string(n);
        return "/p/" + std::string(digits.size() < 3 ? 3 - digits.size() : 0, '0') + digits + ".jpg";
    }
    void Say(const std::string& line) { desktop.trace.Add("host " + line); }
    static std::string Short(const std::string& name) { return name.substr(name.rfind('/') + 1); }

    void Listen() {
        auto& events = sheet->Events;
        events.DisplayStart.connect([this] {
            Say("DisplayStart");
            if (onDisplayStart) onDisplayStart();
        });
        events.DisplayEnd.connect([this] {
            Say("DisplayEnd");
            if (onDisplayEnd) onDisplayEnd();
        });
        events.BeforeAdd.connect([this](std::string& name, const std::string& extension, bool& cancel) {
            Say("BeforeAdd " + Short(name) + " " + extension);
            if (onBeforeAdd) onBeforeAdd(name, cancel);
        });
        events.Added.connect([this](int16_t index, const std::string& name) {
            Say("Added " + std::to_string(index) + " " + Short(name));
            if (onAdded) onAdded(index);
        });
        events.BeforeSetPicture.connect(
            [this](int16_t index, const std::string& name, Picture& picture, bool&, bool&, bool&, bool&, bool&) {
                Say("BeforeSetPicture " + std::to_string(index) + " " + Short(name));
                if (onBeforeSetPicture) onBeforeSetPicture(index, picture);
            });
        events.InvalidPicture.connect([this](int16_t index, const std::string& name) {
            Say("InvalidPicture " + std::to_string(index) + " " + Short(name));
        });
        events.Scroll.connect([this](int32_t value, int32_t& asValue) {
            Say("Scroll " + std::to_string(value) + " from " + std::to_string(asValue));
            if (onScroll) onScroll(asValue);
        });
        const auto mouse = [this](const std::string& name) {
            return [this, name](int16_t button, int16_t shift, float x, float y, int32_t& value) {
                Say(name + " " + std::to_string(button) + " " + std::to_string(shift) + " " +
                    std::to_string(ToInt32(x)) + "," + std::to_string(ToInt32(y)) + " at " + std::to_string(value));
                if (onBarMouse) onBarMouse(value);
            };
        };
        events.ScrollMouseDown.connect(mouse("ScrollMouseDown"));
        events.ScrollMouseUp.connect(mouse("ScrollMouseUp"));
        events.GetThumbPath.connect([this](const std::string& name, std::string& thumb) {
            Say("GetThumbPath " + Short(name));
            if (onGetThumbPath) onGetThumbPath(thumb);
        });
        events.TLClear.connect([this] { Say("TLClear"); });
        events.Removed.connect([this](int16_t index, int32_t& key) {
            Say("Removed " + std::to_string(index) + " key " + std::to_string(key));
            if (onRemoved) onRemoved(key);
        });
        events.TLRefresh.connect([this] { Say("TLRefresh"); });
        events.Sorted.connect([this] {
            Say("Sorted");
            if (onSorted) onSorted();
        });
        events.TraitementFeedBack.connect([this](int32_t value, int32_t max) {
            Say("TraitementFeedBack " + std::to_string(value) + "/" + std::to_string(max));
            if (onFeedBack) onFeedBack(value);
        });
        events.Error.connect(
            [this](int32_t number, const std::string&, const std::string&, int32_t, const std::string& valeur) {
                Say("Error " + std::to_string(number) + " " + valeur);
            });
        ListenToTheHand();
        sheet->PropertyChanged.connect([this](std::string_view key) { Say("PropertyChanged " + std::string(key)); });
    }

    void ListenToTheHand() {
        auto& events = sheet->Events;
        const auto mouse = [this](auto& event, const std::string& name, auto& handler) {
            event.connect([this, name, &handler](int16_t button, int16_t, float x, float y) {
                const auto spelled = [](float length) { return std::to_string(std::lround(length)); };
                Say(name + " " + std::to_string(button) + " at " + spelled(x) + "," + spelled(y));
                if (handler) handler();
            });
        };
        mouse(events.MouseDown, "MouseDown", onMouseDown);
        mouse(events.MouseMove, "MouseMove", onMouseMove);
        mouse(events.MouseUp, "MouseUp", onMouseUp);
        const auto number = [this](auto& event, const std::string& name) {
            event.connect([this, name](int16_t value) { Say(name + " " + std::to_string(value)); });
        };
        number(events.MouseEnter, "MouseEnter");
        number(events.MouseExit, "MouseExit");
        number(events.BackgroundClick, "BackgroundClick");
        number(events.BackgroundDblClick, "BackgroundDblClick");
        const auto click = [this](auto& event, const std::string& name) {
            event.connect([this, name](int16_t index, const Picture& picture, const std::string& file, int16_t button) {
                Say(name + " " + std::to_string(index) + " " + Short(headless::NameOf(picture)) + " " + Short(file) +
                    " button " + std::to_string(button));
            });
        };
        click(events.Click, "Click");
        click(events.DblClick, "DblClick");
        events.KeyDown.connect([this](int16_t& code, int16_t) { Say("KeyDown " + std::to_string(code)); });
        events.KeyPress.connect([this](int16_t& ascii) { Say("KeyPress " + std::to_string(ascii)); });
        events.KeyUp.connect([this](int16_t& code, int16_t) { Say("KeyUp " + std::to_string(code)); });
    }

    int32_t declared_ = 0;
};

}  // namespace vorlane

// TimeLineTest: a time line in a headless window, under a sheet that has items but shows none, with a host that writes
// what it hears into the desktop's trace.
//
// The strip is 300 by 40 pixels with a plain white ground, and a slide is 150 pixels and 5 seconds: 30 pixels a second.
#pragma once

#include "platform/headless/window.h"
#include "sheet/vorlane.h"
#include "tests/platform/temporaryfolder.h"
#include "timeline/etimeline.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace vorlane {

class TimeLineTest : public testing::Test {
protected:
    headless::Desktop desktop;
    TemporaryFolder folder;
    headless::Window sheetWindow{desktop, {0, 0, 345, 180}};
    Vorlane sheet{desktop.Roles(), sheetWindow.Ambient()};
    headless::Window window{desktop, {0, 200, 300, 240}};
    std::unique_ptr<eTimeLine> line;

    TimeLineTest() {
        sheetWindow.Host(sheet, PropertyBag{});
        Make(window.Ambient());
    }

    // A time line that has not started yet.
    void Make(const Ambient& ambient, int32_t systemFamily = Trelmic6::SystemFamily()) {
        line = std::make_unique<eTimeLine>(desktop.Roles(), ambient, nullptr, systemFamily);
        Listen();
    }

    // A bag for a plain white ground.
    static PropertyBag Plain() {
        PropertyBag bag;
        bag.SetValue("GradientColorStart", 0xFFFFFF);
        bag.SetValue("GradientColorEnd", 0xFFFFFF);
        return bag;
    }
    // The usual start, attached to the sheet.
    void Start(const PropertyBag& bag = Plain()) {
        line->AttachVorlane(&sheet);
        window.Host(*line, bag);
        desktop.trace.Clear();
    }

    // Gives the sheet that many items: item n has key 100 + n.
    void Items(int32_t count) {
        for (int32_t n = 0; n < count; ++n) {
            const std::string name = "/p/" + std::to_string(n) + ".jpg";
            desktop.pictures.Add(name, 60, 40);
            sheet.Add(name, "", 100 + n);
        }
    }
    std::string File(const std::string& name, double seconds) {
        const std::string path = folder.File(name);
        desktop.sounds.Add(path, seconds);
        return path;
    }
    // Adds a sound of that length to the slide of item n.
    void Music(int32_t n, double seconds, bool repeats = false) {
        line->Musiques()->Add(File("m" + std::to_string(n) + ".wav", seconds), 100 + n, -1, repeats);
    }
    void Comment(int32_t n, double seconds, bool repeats = false) {
        line->Comments()->Add(File("c" + std::to_string(n) + ".wav", seconds), 100 + n, -1, repeats);
    }
    static std::string Keys(const ClsSon& sounds) {
        std::string text;
        for (const tSon& son : sounds.NewEnum()) text += (text.empty() ? "" : " ") + std::to_string(son.DiapoKey);
        return text;
    }
    // "key:left+width" of each bar.
    static std::string Told(const BarList& list) {
        std::string text;
        for (const tBarreSon& bar : list) {
            text += (text.empty() ? "" : " ") + std::to_string(bar.Son.DiapoKey) + ":" +
                    std::to_string(static_cast<int>(bar.x)) + "+" + std::to_string(static_cast<int>(bar.W));
        }
        return text;
    }

    // What the last paint drew, one command a line behind a line feed; or only the lines that start with a word.
    std::string Drawn(const std::string& word = "") const {
        const std::string dump = line->Surface().dump();
        std::string text = "\n";
        for (size_t at = dump.find('\n') + 1; at < dump.size();) {
            const size_t end = dump.find('\n', at) + 1;
            if (dump.compare(at, word.size(), word) == 0) text += dump.substr(at, end - at);
            at = end;
        }
        return text;
    }
    // Whether action paints, which alone clears what is drawn.
    template <class Action>
    bool Paints(Action&& action) {
        line->Surface().SetPixel(1234, 5678, 0);
        action();
        return line->Surface().dump().find("SetPixel 1234,5678") == std::string::npos;
    }
    // How often action paints: each paint gives the window its shape.
    template <class Action>
    int PaintsIn(Action&& action) {
        desktop.trace.Clear();
        action();
        int count = 0;
        for (const std::string& said : desktop.trace.Lines()) count += said.rfind("region", 0) == 0 ? 1 : 0;
        return count;
    }

    std::string Heard() { return desktop.trace.Take({"host"}); }

private:
    void Say(const std::string& said) { desktop.trace.Add("host " + said); }

    void Listen() {
        TimeLineEvents& events = line->Events;
        events.Click.connect([this] { Say("Click"); });
        events.DblClick.connect([this] { Say("DblClick"); });
        events.RemovedSound.connect([this](int32_t type, int32_t key, int16_t index) {
            Say("RemovedSound " + std::to_string(type) + " key " + std::to_string(key) + " at " +
                std::to_string(index));
        });
        events.Error.connect(
            [this](int32_t number, const std::string&, const std::string&, int32_t, const std::string& valeur) {
                Say("Error " + std::to_string(number) + " [" + valeur + "]");
            });
        line->PropertyChanged.connect([this](std::string_view key) { Say("changed " + std::string(key)); });
    }
};

}  // namespace vorlane

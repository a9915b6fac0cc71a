// ClsSonTest: a collection of sounds with an owner that answers from tables and writes what it is asked.
#pragma once

#include "platform/headless/desktop.h"
#include "tests/platform/temporaryfolder.h"
#include "timeline/clsson.h"

#include <gtest/gtest.h>
#include <map>
#include <string>

namespace vorlane {

class ClsSonTest : public testing::Test {
protected:
    ClsSonTest() {
        auto& events = sounds.Events;
        events.csRepaint.connect([this] { Say("repaint"); });
        events.csGetRedraw.connect([this](bool& answer) {
            Say("redraw?");
            answer = redraw;
        });
        events.csGetNumDiapo.connect([this](int32_t key, int32_t& number) {
            number = numbers.count(key) != 0 ? numbers[key] : -1;
            Say("number of " + std::to_string(key) + ": " + std::to_string(number));
        });
        events.csGetDiapoIndex.connect([this](int32_t key, int16_t& index) {
            index = indices.count(key) != 0 ? indices[key] : int16_t{-1};
            Say("index of " + std::to_string(key) + ": " + std::to_string(index));
        });
        events.csRemoveSound.connect([this](int32_t key, int16_t index) {
            Say("removed " + std::to_string(key) + " at " + std::to_string(index));
        });
    }

    void Say(const std::string& line) { desktop.trace.Add("son " + line); }
    std::string Heard() { return desktop.trace.Take(); }

    std::string File(const std::string& name = "a.wav", double seconds = 10) {
        const std::string path = folder.File(name);
        desktop.sounds.Add(path, seconds);
        return path;
    }
    // Adds the sound of a slide that stands at a place of the sheet.
    void Put(int32_t key, int32_t number, const std::string& name = "a.wav") {
        numbers[key] = number;
        sounds.Add(File(name), key);
    }
    std::string Keys() const { return Keys(sounds); }
    static std::string Keys(const ClsSon& list) {
        std::string text;
        for (const tSon& son : list.NewEnum()) text += (text.empty() ? "" : " ") + std::to_string(son.DiapoKey);
        return text;
    }

    headless::Desktop desktop;
    TemporaryFolder folder;
    std::map<int32_t, int32_t> numbers;
    std::map<int32_t, int16_t> indices;
    bool redraw = false;
    ClsSon sounds{desktop.Roles()};
};

}  // namespace vorlane

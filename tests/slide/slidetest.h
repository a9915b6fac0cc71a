// The bench of the slide's tests: a slide alone on the headless desktop, everything that it reports in one trace, and
// its state as text.
#pragma once

#include "platform/headless/window.h"
#include "slide/ediapolight.h"

#include <gtest/gtest.h>
#include <string>

namespace vorlane::headless {

// A number without needless digits: "12", "12.5".
inline std::string Short(double number) {
    std::string text = std::to_string(number);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text;
}

inline std::string Place(const Control& control) {
    return Short(control.Left()) + "," + Short(control.Top()) + " " + Short(control.Width()) + "x" +
           Short(control.Height());
}

// Writes the slide's events to the trace, as "slide <event> ...", and its reports of properties, as "changed <key>".
inline void Listen(Trace& trace, eDiapoLight& slide) {
    const auto plain = [&trace](const char* name) {
        return [&trace, name] { trace.Add(std::string("slide ") + name); };
    };
    const auto number = [&trace](const char* name) {
        return [&trace, name](int32_t value) { trace.Add("slide " + std::string(name) + " " + std::to_string(value)); };
    };
    const auto flag = [&trace](const char* name) {
        return [&trace, name](bool value) { trace.Add("slide " + std::string(name) + (value ? " true" : " false")); };
    };
    const auto mouse = [&trace](const char* name) {
        return [&trace, name](int16_t button, int16_t shift, float x, float y) {
            trace.Add("slide " + std::string(name) + " " + std::to_string(button) + " " + std::to_string(shift) + " " +
                      Short(x) + "," + Short(y));
        };
    };
    auto& events = slide.Events;
    events.Click.connect(number("Click"));
    events.DblClick.connect(number("DblClick"));
    events.MouseDown.connect(mouse("MouseDown"));
    events.MouseMove.connect(mouse("MouseMove"));
    events.MouseUp.connect(mouse("MouseUp"));
    events.ZoomMouseDown.connect(mouse("ZoomMouseDown"));
    events.InfoMouseDown.connect(mouse("InfoMouseDown"));
    events.InfoMouseMove.connect(mouse("InfoMouseMove"));
    events.InfoMouseUp.connect(mouse("InfoMouseUp"));
    events.KeyDown.connect([&trace](int16_t& code, int16_t shift) {
        trace.Add("slide KeyDown " + std::to_string(code) + " " + std::to_string(shift));
    });
    events.KeyPress.connect([&trace](int16_t& ascii) { trace.Add("slide KeyPress " + std::to_string(ascii)); });
    events.KeyUp.connect([&trace](int16_t& code, int16_t shift) {
        trace.Add("slide KeyUp " + std::to_string(code) + " " + std::to_string(shift));
    });
    events.ClickPlay.connect(flag("ClickPlay"));
    events.ClickStop.connect(flag("ClickStop"));
    events.ClickText.connect(plain("ClickText"));
    events.InvalidPicture.connect(
        [&trace](const std::string& name) { trace.Add("slide InvalidPicture [" + name + "]"); });
    events.SetPicture.connect([&trace](DiapoPictureIndex index, vorlane::Picture&, bool invalid) {
        trace.Add("slide SetPicture " + std::to_string(static_cast<int>(index)) + (invalid ? " invalid" : ""));
    });
    events.SetKey.connect(number("SetKey"));
    events.Error.connect([&trace](int32_t code, const std::string& description, const std::string& source,
                                  int32_t system, const std::string& value) {
        trace.Add("slide Error " + std::to_string(code) + " [" + description + "] " + source + " " +
                  std::to_string(system) + " [" + value + "]");
    });
    slide.PropertyChanged.connect([&trace](std::string_view key) { trace.Add("changed " + std::string(key)); });
}

class SlideTest : public testing::Test {
protected:
    SlideTest() { Listen(desktop.trace, slide); }

    // The owner answers every request with a picture of its own, "owner<index>" of that size.
    void OwnAnswers(int32_t width = 32, int32_t height = 32) {
        slide.Events.SetPicture.connect([=](DiapoPictureIndex index, vorlane::Picture& picture, bool) {
            picture = FakePictures::Make("owner" + std::to_string(static_cast<int>(index)), width, height);
        });
    }

    // Whether action runs the layout, which alone clears what is drawn.
    template <class Action>
    bool LaysOut(Action&& action) {
        slide.Surface().SetPixel(1234, 5678, 0);
        action();
        return slide.Surface().dump().find("SetPixel 1234,5678") == std::string::npos;
    }

    std::string Slide() { return desktop.trace.Take({"slide"}); }
    std::string Changed() { return desktop.trace.Take({"changed"}); }

    static Picture Bitmap(int32_t width, int32_t height) { return FakePictures::Make("bitmap", width, height); }

    Desktop desktop;
    eDiapoLight slide{desktop.Roles(), Ambient{}};
};

// A slide of 160 x 140 with two lines of shadow and single frames. Its area takes pictures of 146 x 86 from 9, 10 on.
class LaidSlideTest : public SlideTest {
protected:
    LaidSlideTest() {
        slide.Start();
        slide.Move(0, 0, 160, 140);
        slide.SetBorderDouble(false);
        slide.SetShadowWidth(2);
        slide.Refresh();
        desktop.trace.Clear();
    }

    // What is drawn after a layout, one command a line, behind a line feed.
    std::string Drawn() {
        slide.Refresh();
        const std::string dump = slide.Surface().dump();
        return dump.substr(dump.find('\n'));
    }

    std::string LoadsAndEvents() { return desktop.trace.Take({"load", "resize", "slide"}); }
    std::string Shown() const { return NameOf(slide.Picture()); }
};

}  // namespace vorlane::headless

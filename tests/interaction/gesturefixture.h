// GestureTest: a sheet under the scripted user's hand. Slides are pressed near their upper edge, the ground
// in the margin. A slide's state is told by one letter: "." not selected, "s" selected, "C" selected and current, "!"
// where slide and item disagree or the ground is none that fits.
#pragma once

#include "tests/sheet/sheetfixture.h"

namespace vorlane {

class GestureTest : public SheetTest {
protected:
    static constexpr int16_t kNoKeys = 0;
    static constexpr float kGroundX = 2;  // in the margin at the left
    static constexpr float kGroundY = 2;

    // A point of slide k near its upper edge, which shows of the third row too, and beside the corners.
    Point InSlide(int32_t k) const {
        const auto slide = sheet->Diapo.Item(k);
        return {ToInt32(slide->Left() + slide->Width() / 2), ToInt32(slide->Top() + 10)};
    }

    void Press(int32_t k, int16_t keys = kNoKeys, int16_t button = headless::kLeftButton) {
        const Point place = InSlide(k);
        desktop.clock.Advance(1000);  // so that two presses make no double click
        window.Press(static_cast<float>(place.X), static_cast<float>(place.Y), button, keys);
    }
    void Release(int32_t k, int16_t keys = kNoKeys, int16_t button = headless::kLeftButton) {
        const Point place = InSlide(k);
        window.Release(static_cast<float>(place.X), static_cast<float>(place.Y), button, keys);
    }
    void Click(int32_t k, int16_t keys = kNoKeys, int16_t button = headless::kLeftButton) {
        Press(k, keys, button);
        Release(k, keys, button);
    }

    char StateOf(int32_t k) const {
        const auto slide = sheet->Diapo.Item(k);
        if (slide->Value() < 0) return slide->Selected() ? '!' : '-';
        if (slide->Selected() != sheet->Liste()->Selected(slide->Value())) return '!';
        if (!slide->Selected()) return slide->BackColor() == window.Ambient().BackColor ? '.' : '!';
        if (slide->BackColor() == sheet->BackColorCurrent()) return 'C';
        return slide->BackColor() == kSelectedColor ? 's' : '!';
    }
    // Of all slides, in the order of the pool.
    std::string States() const {
        std::string text;
        for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) text += StateOf(k);
        return text;
    }

    std::string SelectedItems() const {
        std::string text;
        for (const int32_t item : sheet->SelectedTableau()) text += (text.empty() ? "" : " ") + std::to_string(item);
        return text;
    }

    static constexpr OLE_COLOR kSelectedColor = 7321083;
};

}  // namespace vorlane

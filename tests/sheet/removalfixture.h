// RemovalTest: a sheet that loses items.
#pragma once

#include "tests/sheet/sheetfixture.h"

#include <algorithm>
#include <initializer_list>

namespace vorlane {

class RemovalTest : public SheetTest {
protected:
    void ShowSideways(int32_t items) {
        PropertyBag bag;
        bag.SetValue("ScrollDirection", int64_t{1});
        Start(bag);
        AddItems(0, items - 1);
        sheet->StartLecture();
        desktop.trace.Clear();
    }
    void ScrollTo(int32_t value) {
        sheet->VScroll.SetValue(value);
        desktop.trace.Clear();
    }
    void ShowFrom(int32_t item) {
        sheet->StartLecture("", sheet->Key(item));
        desktop.trace.Clear();
    }
    void Select(std::initializer_list<int32_t> items) {
        for (const int32_t item : items) sheet->Liste()->SetSelected(item, true);
        ShowFrom(sheet->VScroll.Value());
    }
    // The pictures that the slides show, by their numbers.
    std::string Shown() const {
        std::string text;
        for (int32_t k = 0; k < sheet->Diapo.Count(); ++k) {
            const std::string path = sheet->Diapo.Item(k)->ImageFullPath();
            const std::string number = path.empty() ? "." : std::to_string(std::stoi(path.substr(3, 3)));
            text += (k == 0 ? "" : " ") + number;
        }
        return text;
    }
    void ExpectBarAtSlideZero() { EXPECT_EQ(sheet->VScroll.Value(), sheet->Diapo.Item(0)->Value()); }
    void ExpectNoError() {
        const std::string heard = desktop.trace.Text({"host"});
        const size_t error = heard.find("host Error");
        EXPECT_EQ(error, std::string::npos) << heard.substr(std::min(error, heard.size()), 120);
    }
    // Without a bar, all items are shown.
    void ExpectAllWithinReach() {
        if (sheet->VScroll.Visible() || sheet->Count() == 0) return;
        EXPECT_EQ(sheet->Diapo.Item(0)->Value(), 0);
        EXPECT_EQ(sheet->Diapo.Item(sheet->Diapo.Count() - 1)->Value(), sheet->Count() - 1);
    }
    static std::function<void(int32_t&)> Once(std::function<void()> action) {
        return [action, done = std::make_shared<bool>(false)](int32_t&) {
            if (!std::exchange(*done, true)) action();
        };
    }
};

}  // namespace vorlane

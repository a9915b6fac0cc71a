// What a time line hears and does, in order, while the user moves, sorts and takes away slides that have sounds.
#include "tests/interaction/dragfixture.h"
#include "timeline/etimeline.h"

namespace vorlane {
namespace {

// A strip under seven slides: item 1 has a music and a comment, item 4 a music.
class SheetTraceTest : public DragTest {
protected:
    void ShowWithSounds() {
        ShowDraggable(7);
        sheet->Events.Removed.connect([this](int16_t index, int32_t key) {
            desktop.trace.Add("removed " + std::to_string(key) + " at " + std::to_string(index));
        });
        line = std::make_unique<eTimeLine>(desktop.Roles(), stripWindow.Ambient());
        line->AttachVorlane(sheet.get());
        stripWindow.Host(*line, PropertyBag{});
        const std::string file = RealFile("a.wav");
        desktop.sounds.Add(file, 4);
        line->Musiques()->Add(file, 1001);
        line->Musiques()->Add(file, 1004);
        line->Comments()->Add(file, 1001);
        line->SetRedraw(true);
        ListenTo("music", *line->Musiques());
        ListenTo("comment", *line->Comments());
        line->Events.RemovedSound.connect([this](int32_t type, int32_t key, int16_t) {
            Say("RemovedSound " + std::to_string(type) + " " + std::to_string(key));
        });
        desktop.trace.Clear();
    }
    std::string Told() { return desktop.trace.Take({"ole", "removed", "strip", "region"}); }
    std::string Sounds() const {
        std::string text;
        for (const auto& sounds : {line->Musiques(), line->Comments()}) {
            for (const tSon& son : sounds->NewEnum()) text += std::to_string(son.DiapoKey) + " ";
            text += "| ";
        }
        return text;
    }

    headless::Window stripWindow{desktop, {100, 400, 400, 440}};
    std::unique_ptr<eTimeLine> line;

private:
    void Say(const std::string& said) { desktop.trace.Add("strip " + said); }

    void ListenTo(const std::string& kind, ClsSon& sounds) {
        auto& events = sounds.Events;
        events.csGetNumDiapo.connect([this, kind](int32_t key, int32_t& number) {
            Say(kind + " number of " + std::to_string(key) + ": " + std::to_string(number));
        });
        events.csGetRedraw.connect([this, kind](bool&) { Say(kind + " redraw?"); });
        events.csRepaint.connect([this, kind] { Say(kind + " repainted"); });
        events.csGetDiapoIndex.connect(
            [this, kind](int32_t key, int16_t&) { Say(kind + " index of " + std::to_string(key)); });
    }
};

TEST_F(SheetTraceTest, AMove) {
    ShowWithSounds();
    DragSlide(4, [&](UserDrag& drag) { DropOn(drag, 0, 0.2F); });
    EXPECT_EQ(Order(), "4 0 1 2 3 5 6");
    EXPECT_EQ(Sounds(), "1004 1001 | 1001 | ");
    EXPECT_EQ(Told(),
              "ole BeforeStartDrag 1\n"
              "ole StartDrag 3\n"
              "ole BeforeDropStart 1\n"
              "ole SortChanged\n"
              "ole DragDrop 2 25,42\n"
              "ole CompleteDrag 2\n"
              "strip music number of 1001: 2\n"
              "strip music number of 1004: 0\n"
              "strip music number of 1001: 2\n"
              "strip comment number of 1001: 2\n"
              "region 2 rect 0,0,300,40 redraw\n");
}

TEST_F(SheetTraceTest, ADragThatEndsNowhere) {
    ShowWithSounds();
    DragSlide(4, [](UserDrag& drag) { drag.Escape(); });
    EXPECT_EQ(Told(),
              "ole BeforeStartDrag 1\n"
              "ole StartDrag 3\n"
              "ole CompleteDrag 0\n"
              "strip music number of 1001: 1\n"
              "strip music number of 1004: 4\n"
              "strip music number of 1001: 1\n"
              "strip comment number of 1001: 1\n"
              "region 2 rect 0,0,300,40 redraw\n");
}

TEST_F(SheetTraceTest, ASort) {
    ShowWithSounds();
    for (int32_t n = 0; n < 7; ++n) sheet->LstInterne.SetList(n, std::to_string(9 - n) + "\t" + File(n));
    sheet->SetSortedSens(SortSensType::ssAscending);
    desktop.trace.Clear();
    sheet->Sort(1);
    EXPECT_EQ(Order(), "6 5 4 3 2 1 0");
    EXPECT_EQ(Sounds(), "1004 1001 | 1001 | ");
    EXPECT_EQ(Told(),
              "ole Sorted\n"
              "strip music number of 1001: 5\n"
              "strip music number of 1004: 2\n"
              "strip music number of 1001: 5\n"
              "strip comment number of 1001: 5\n"
              "region 2 rect 0,0,300,40 redraw\n");
}

// The last of the paints is that which the sheet itself asks for.
TEST_F(SheetTraceTest, ARemoval) {
    ShowWithSounds();
    sheet->Remove(1);
    EXPECT_EQ(Sounds(), "1004 | | ");
    EXPECT_EQ(Told(),
              "removed 1001 at 1\n"
              "strip music redraw?\n"
              "region 2 rect 0,0,300,40 redraw\n"
              "strip music repainted\n"
              "strip comment redraw?\n"
              "region 2 rect 0,0,300,40 redraw\n"
              "strip comment repainted\n"
              "region 2 rect 0,0,300,40 redraw\n");
    sheet->Remove(0);
    EXPECT_EQ(Told(),
              "removed 1000 at 0\n"
              "region 2 rect 0,0,300,40 redraw\n");
}

TEST_F(SheetTraceTest, ARemovalOfTheSelectedSlides) {
    ShowWithSounds();
    sheet->SetSelected(1, true);
    sheet->SetSelected(4, true);
    line->SetRedraw(false);
    desktop.trace.Clear();
    sheet->RemoveAllSelected();
    EXPECT_EQ(Sounds(), "| | ");
    EXPECT_EQ(Told(),
              "removed 1004 at -1\n"
              "strip music redraw?\n"
              "removed 1001 at -1\n"
              "strip music redraw?\n"
              "strip comment redraw?\n"
              "region 2 rect 0,0,300,40 redraw\n");
}

// --- The end ---

TEST_F(SheetTraceTest, TheCollectionsGoInTheirOrderAheadOfSheetAndBars) {
    ShowWithSounds();
    std::string gone;
    const auto watched = [&](const std::string& kind) {
        return std::shared_ptr<ClsSon>(new ClsSon(desktop.Roles()), [&, kind](ClsSon* sounds) {
            gone += kind + (line->Comments() ? " with comments" : "") +
                    (line->MusicBars().empty() ? "" : " with bars") +
                    (line->PositionOf(1001) < 0 ? "" : " with sheet") + "\n";
            delete sounds;
        });
    };
    line->SetMusiques(watched("musics"));
    line->SetComments(watched("comments"));
    line->Musiques()->Add(folder.At("a.wav"), 1000);
    ASSERT_FALSE(line->MusicBars().empty());
    line->Terminate();
    EXPECT_EQ(gone, "musics with comments with bars with sheet\ncomments with bars with sheet\n");
    EXPECT_TRUE(line->MusicBars().empty());
    EXPECT_EQ(line->PositionOf(1001), -1);
}

}  // namespace
}  // namespace vorlane

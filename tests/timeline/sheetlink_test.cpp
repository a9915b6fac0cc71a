#include "tests/platform/expectfailure.h"
#include "timelinetest.h"

namespace vorlane {
namespace {

class SheetLinkTest : public TimeLineTest {
protected:
    SheetLinkTest() { Items(12); }

    void SheetKey(int16_t code, int16_t shift = 0) { sheet.Events.KeyDown(code, shift); }
    void ShowSheet() {
        sheet.StartLecture();
        desktop.trace.Clear();
    }
    std::string Sounds() const { return Keys(*line->Musiques()) + " | " + Keys(*line->Comments()); }
};

// --- Redraw ---

TEST_F(SheetLinkTest, RedrawIsFalseAtTheStartSoFillingPaintsNothing) {
    Start();
    EXPECT_FALSE(line->Redraw());
    EXPECT_EQ(PaintsIn([&] { Music(1, 2); }), 0);
    EXPECT_EQ(PaintsIn([&] { line->SetRedraw(true); }), 1);
    EXPECT_EQ(PaintsIn([&] { Music(2, 2); }), 1);
    EXPECT_EQ(PaintsIn([&] { line->Clear(); }), 2) << "once for each collection";
}

TEST_F(SheetLinkTest, RedrawSetToFalseOrToItsValuePaintsNothing) {
    Start();
    EXPECT_EQ(PaintsIn([&] { line->SetRedraw(false); }), 0);
    EXPECT_EQ(Heard(), "");
    line->SetRedraw(true);
    EXPECT_EQ(PaintsIn([&] { line->SetRedraw(true); }), 0);
    EXPECT_EQ(PaintsIn([&] { line->SetRedraw(false); }), 0);
    EXPECT_EQ(Heard(), "host changed Redraw\n");
}

TEST_F(SheetLinkTest, InADesignerARepaintOfTheCollectionsPaintsNothing) {
    Ambient designer = window.Ambient();
    designer.UserMode = false;
    Make(designer);
    Start();
    line->SetRedraw(true);
    EXPECT_EQ(PaintsIn([&] { Music(1, 2); }), 0);
}

// --- What the sheet tells ---

TEST_F(SheetLinkTest, ARemovedSlideLosesItsSoundsInBothCollections) {
    Start();
    ShowSheet();
    Music(1, 2);
    Music(2, 2);
    Comment(1, 2);
    sheet.Remove(1);
    EXPECT_EQ(Sounds(), "102 | ");
}

TEST_F(SheetLinkTest, WithRedrawFalseRemovedRemovesTheSoundsAndTheBarsGoAtTheNextPaint) {
    Start();
    Music(0, 2);
    line->Paint();
    int32_t key = 100;
    EXPECT_EQ(PaintsIn([&] { sheet.Events.Removed(0, key); }), 0);
    EXPECT_EQ(Sounds(), " | ");
    EXPECT_EQ(Told(line->MusicBars()), "100:0+60");
    EXPECT_EQ(PaintsIn([&] { sheet.Events.TLRefresh(); }), 1);
    EXPECT_EQ(Told(line->MusicBars()), "");
}

TEST_F(SheetLinkTest, WithRedrawTrueRemovedPaintsForEachSoundThatWent) {
    Start();
    Music(0, 2);
    Comment(0, 2);
    line->SetRedraw(true);
    int32_t key = 100;
    EXPECT_EQ(PaintsIn([&] { sheet.Events.Removed(0, key); }), 2);
    EXPECT_EQ(PaintsIn([&] { sheet.Events.Removed(0, key); }), 0);
}

TEST_F(SheetLinkTest, CollectionsThatChangeRowsKnowTheSlidesStill) {
    Start();
    const auto musics = line->Musiques();
    const auto comments = line->Comments();
    line->SetMusiques(comments);
    line->SetComments(musics);
    Music(2, 2);
    Music(0, 2);
    EXPECT_EQ(Sounds(), "100 102 | ");
}

TEST_F(SheetLinkTest, WithoutACollectionTheOtherOneIsKept) {
    Start();
    Comment(2, 2);
    Comment(1, 2);
    line->SetMusiques(nullptr);
    sheet.Events.Sorted();
    int32_t key = 101;
    sheet.Events.Removed(0, key);
    EXPECT_EQ(line->Comments()->Count(), 1);
    int32_t errors = 0;
    const auto heard = line->Events.Error.connect([&errors](auto&&...) { ++errors; });
    line->NextSound(100, 2);
    line->PreviousSound(103, 2);
    EXPECT_EQ(errors, 2);
}

TEST_F(SheetLinkTest, ASortInBetweenStopsNoRemovalByName) {
    Start();
    Music(1, 2);
    Music(2, 2);
    const auto heard =
        line->Musiques()->Events.csGetDiapoIndex.connect([this](int32_t, int16_t&) { line->Musiques()->Sort(); });
    const std::string name = line->Musiques()->ItemFromPos(1).Nom;
    line->Musiques()->RemoveFromName(name);
    for (const tSon& son : line->Musiques()->NewEnum()) EXPECT_NE(son.Nom, name);
}

TEST_F(SheetLinkTest, ASortOnTheSheetSortsTheSounds) {
    Start();
    Music(1, 2);
    Music(2, 2);
    Comment(0, 2);
    Comment(3, 2);
    // The last item comes to the front, as a move of the user's does it.
    const auto move = [&](int32_t from, int32_t key) {
        sheet.LstInterne.RemoveItem(from);
        sheet.LstInterne.AddItem("/p/moved.jpg", 0);
        sheet.LstInterne.SetItemData(0, key);
    };
    move(2, 102);
    EXPECT_EQ(PaintsIn([&] { sheet.Events.Sorted(); }), 1);
    EXPECT_EQ(Sounds(), "102 101 | 100 103");
    move(3, 103);
    int32_t effect = 2;
    EXPECT_EQ(PaintsIn([&] { sheet.Events.OLECompleteDrag(effect); }), 1);
    EXPECT_EQ(Sounds(), "102 101 | 103 100");
    EXPECT_EQ(Told(line->MusicBars()), "102:150+60");
    EXPECT_EQ(Told(line->CommentBars()), "103:0+60");
}

TEST_F(SheetLinkTest, AfterSortedASoundOfASlideThatLeftIsDropped) {
    Start();
    Music(1, 2);
    Music(2, 2);
    sheet.LstInterne.RemoveItem(1);
    sheet.Events.Sorted();
    EXPECT_EQ(Sounds(), "102 | ");
    EXPECT_EQ(Heard(), "") << "and nothing tells of it";
}

TEST_F(SheetLinkTest, AHostThatListensIsAskedAtEachStepOfASort) {
    Start();
    for (const int32_t n : {1, 2, 3}) Music(n, 2);
    std::string asked;
    line->Musiques()->Events.csGetNumDiapo.connect(
        [&](int32_t key, int32_t& number) { asked += std::to_string(key) + ":" + std::to_string(number) + " "; });
    line->Musiques()->Sort();
    EXPECT_EQ(asked, "101:1 102:2 101:1 103:3 101:1 102:2 ");
}

TEST_F(SheetLinkTest, ARealSortOfTheSheetMovesTheBars) {
    Start();
    sheet.SetSorted(true);
    sheet.LstInterne.Clear();
    sheet.Add("/p/a.jpg", "b", 1);
    sheet.Add("/p/b.jpg", "a", 2);
    line->Musiques()->Add(File("m.wav", 2), 1);
    line->Musiques()->Add(File("n.wav", 2), 2);
    line->Paint();
    EXPECT_EQ(Told(line->MusicBars()), "1:0+60 2:150+60");
    sheet.Sort(1);
    EXPECT_EQ(Told(line->MusicBars()), "2:0+60 1:150+60");
}

TEST_F(SheetLinkTest, ADropFromOutsideRefreshes) {
    Start();
    EXPECT_EQ(PaintsIn([&] { sheet.Events.AfterDropAdd(3); }), 1);
}

TEST_F(SheetLinkTest, AClearedSheetLeavesTheSounds) {
    Start();
    ShowSheet();
    Music(1, 2);
    EXPECT_EQ(PaintsIn([&] { sheet.Clear(); }), 0);
    EXPECT_EQ(Sounds(), "101 | ");
}

TEST_F(SheetLinkTest, AnotherSheetReplacesTheFirstAndPaintsNothing) {
    Start();
    Vorlane other{desktop.Roles(), sheetWindow.Ambient()};
    other.Add("/p/x.jpg", "", 500);
    EXPECT_EQ(PaintsIn([&] { line->AttachVorlane(&other); }), 0);
    EXPECT_EQ(PaintsIn([&] { sheet.Events.TLRefresh(); }), 0);
    EXPECT_EQ(PaintsIn([&] { other.Events.TLRefresh(); }), 1);
    line->AttachVorlane(&sheet);
}

// --- Keys ---

TEST_F(SheetLinkTest, EachFunctionKeyRunsItsCommandWhateverShiftIs) {
    Start();
    for (const int32_t n : {0, 3}) Music(n, 1);
    for (const int32_t n : {6, 9}) Comment(n, 1);
    const auto jump = [&](int16_t code, int32_t from, int16_t shift = 0) {
        sheet.StartLecture({}, 100 + from);
        for (int16_t k = 0; k < sheet.CountAffiché(); ++k) sheet.SetSelected(k, false);
        sheet.SetSelected(sheet.GetIndexFromKey(100 + from), true);
        SheetKey(code, shift);
        return sheet.Diapos.Item(0)->Key();
    };
    EXPECT_EQ(jump(113, 3), 100) << "F2, the previous sound";
    EXPECT_EQ(jump(114, 3), 100) << "F3, the previous music";
    EXPECT_EQ(jump(115, 7), 106) << "F4, the previous comment";
    EXPECT_EQ(jump(116, 0, 7), 106) << "F5, the next sound";
    EXPECT_EQ(jump(117, 0), 103) << "F6, the next music";
    EXPECT_EQ(jump(118, 0), 106) << "F7, the next comment";
    EXPECT_EQ(jump(112, 0), 100);
    EXPECT_EQ(jump(119, 0), 100);
}

TEST_F(SheetLinkTest, AHostMayHandTheKeysOfTheStripOver) {
    Start();
    Music(6, 1);
    sheet.StartLecture();
    sheet.SetSelected(0, true);
    EXPECT_FALSE(line->KeyCommand(112));
    EXPECT_FALSE(line->KeyCommand(119));
    EXPECT_TRUE(line->KeyCommand(117));
    EXPECT_EQ(sheet.Diapos.Item(0)->Key(), 106);
    line->AttachVorlane(nullptr);
    EXPECT_TRUE(line->KeyCommand(117));
    EXPECT_EQ(Heard(), "");
}

TEST_F(SheetLinkTest, TheStripKnowsWhereASlideStandsAndWhenItStarts) {
    Start();
    EXPECT_EQ(line->PositionOf(103), 3);
    EXPECT_EQ(line->StartOf(103), 15);
    EXPECT_EQ(line->PositionOf(99), -1);
    line->AttachVorlane(nullptr);
    EXPECT_EQ(line->PositionOf(103), -1);
    EXPECT_FAILURE(line->StartOf(103), ObjectNotSet());
}

TEST_F(SheetLinkTest, TheKeysDoNothingWhenNoSlideIsCurrent) {
    Start();
    ShowSheet();
    Music(6, 1);
    SheetKey(117);
    EXPECT_EQ(sheet.Diapos.Item(0)->Key(), 100);
    EXPECT_EQ(Heard(), "");
}

// --- The collections ---

TEST_F(SheetLinkTest, RemoveFromNameTellsTheHostOfEachSlideThatIsShown) {
    Start();
    ShowSheet();
    const std::string file = File("voix.wav", 2);
    for (const int32_t n : {1, 2, 11}) line->Comments()->Add(file, 100 + n);
    line->Musiques()->Add(file, 101);
    line->Comments()->RemoveFromName(file);
    EXPECT_EQ(Heard(), "host RemovedSound 1 key 101 at 1\nhost RemovedSound 1 key 102 at 2\n");
    EXPECT_EQ(Sounds(), "101 | ");
    line->Musiques()->RemoveFromName(file);
    EXPECT_EQ(Heard(), "host RemovedSound 0 key 101 at 1\n");
}

TEST_F(SheetLinkTest, WithoutASheetACollectionWorksAlone) {
    Start();
    line->AttachVorlane(nullptr);
    Music(5, 2);
    Music(1, 2);
    EXPECT_EQ(Sounds(), "105 101 | ");
    line->Musiques()->RemoveFromName(folder.At("m5.wav"));
    EXPECT_EQ(Sounds(), "101 | ");
    line->Musiques()->Sort();
    EXPECT_EQ(Sounds(), " | ") << "no slide has a place";
    EXPECT_EQ(Heard(), "");
}

TEST_F(SheetLinkTest, AReplacedCollectionIsFollowedAndTheOldOneIsLetGo) {
    Start();
    const auto old = line->Musiques();
    const auto fresh = std::make_shared<ClsSon>(desktop.Roles());
    line->SetRedraw(true);
    line->SetMusiques(fresh);
    EXPECT_EQ(line->Musiques(), fresh);
    EXPECT_EQ(PaintsIn([&] { fresh->Add(File("a.wav", 2), 101); }), 1);
    EXPECT_EQ(PaintsIn([&] { old->Add(File("b.wav", 2), 101); }), 0);
    EXPECT_EQ(Told(line->MusicBars()), "101:150+60");
}

TEST_F(SheetLinkTest, SoundsKnowTheirKind) {
    Start();
    Music(1, 2);
    Comment(1, 2);
    EXPECT_EQ(line->Musiques()->Item(101)->TypeSon, 0);
    EXPECT_EQ(line->Comments()->Item(101)->TypeSon, 1);
}

// --- The end ---

TEST_F(SheetLinkTest, TerminateLetsGoOfEverything) {
    Start();
    Music(1, 2);
    line->Paint();
    const std::weak_ptr<ClsSon> musics = line->Musiques();
    const std::shared_ptr<ClsSon> comments = line->Comments();
    line->Terminate();
    EXPECT_TRUE(musics.expired());
    EXPECT_EQ(line->Musiques(), nullptr);
    EXPECT_EQ(line->Comments(), nullptr);
    EXPECT_TRUE(line->MusicBars().empty());
    comments->Add(File("a.wav", 1), 101);
    sheet.Events.TLRefresh();
    sheet.Events.Sorted();
    EXPECT_FAILURE(line->Clear(), ObjectNotSet());
    line->Paint();
    line->Terminate();
    EXPECT_EQ(Heard(), "");
}

TEST_F(SheetLinkTest, ClicksOnTheStripAreToldToTheHost) {
    Start();
    window.Click(10, 20);
    window.DoubleClick(10, 20);
    EXPECT_EQ(Heard(), "host Click\nhost Click\nhost DblClick\n");
}

}  // namespace
}  // namespace vorlane

// Files, folders and texts from outside.
#include "tests/interaction/dragfixture.h"

#include <filesystem>

namespace vorlane {
namespace {

using testing::HasSubstr;
using testing::Not;

// --- While it is over the sheet ---

TEST_F(DragTest, TheHostIsAskedWhenADragFromOutsideEntersTheGround) {
    ShowDraggable(7);
    UserDrag drag(desktop, Files({RealFile("x.jpg"), RealFile("y.jpg"), "/nowhere.jpg"}));
    drag.Over(window, kGroundX, kGroundY);
    EXPECT_THAT(Told(), testing::StartsWith("ole BeforeStartDrag 2\n"));
    EXPECT_EQ(drag.Effect(), 1);
}

TEST_F(DragTest, ADragFromOutsideIsToldToTheHostInPlacesOfTheSheet) {
    ShowDraggable(7);
    UserDrag drag(desktop, Files({RealFile("x.jpg")}));
    drag.Over(window, 131, 123);
    EXPECT_EQ(Told(), "ole DragOver 1 131,123 0\nole DragOver 1 131,123 2\n");
}

TEST_F(DragTest, AnOwnDragIsNotToldToTheHostWhileItIsOverTheSheet) {
    ShowDraggable(7);
    DragSlide(1, [&](UserDrag& drag) { Over(drag, 4, 0.2F); });
    EXPECT_THAT(Told(), Not(HasSubstr("DragOver")));
}

TEST_F(DragTest, AHostThatCancelsADragFromOutsideKeepsItOffTheSheetAndIsAskedAgainNextTime) {
    ShowDraggable(7);
    bool refuse = true;
    onBeforeStart = [&](std::string&, bool& cancel) { cancel = refuse; };
    {
        UserDrag drag(desktop, Files({RealFile("x.jpg")}));
        drag.Over(window, kGroundX, kGroundY);
        EXPECT_EQ(drag.Effect(), 0);
        Over(drag, 1, 0.2F);
        EXPECT_EQ(drag.Effect(), 0);
        EXPECT_EQ(Mark(), "hidden");
    }
    refuse = false;
    UserDrag drag(desktop, Files({RealFile("x.jpg")}));
    drag.Over(window, kGroundX, kGroundY);
    EXPECT_EQ(drag.Effect(), 1);
}

TEST_F(DragTest, ADragThatTheHostHasCancelledKeepsNoLaterOneOffTheSlides) {
    ShowDraggable(7);
    onBeforeStart = [](std::string&, bool& cancel) { cancel = true; };
    DragSlide(1, {});
    {
        UserDrag drag(desktop, Files({RealFile("x.jpg")}));
        Over(drag, 4, 0.2F);
        EXPECT_EQ(drag.Effect(), 1) << "after one from here";
        drag.Over(window, kGroundX, kGroundY);
        EXPECT_EQ(drag.Effect(), 0);
        drag.Over(window, -20, 40);
    }
    UserDrag drag(desktop, Files({RealFile("x.jpg")}));
    Over(drag, 4, 0.2F);
    EXPECT_EQ(drag.Effect(), 1) << "after one from outside";
}

TEST_F(DragTest, AHostThatFailsWhenADragFromOutsideEntersIsReportedWithTheGroundsName) {
    ShowDraggable(7);
    onBeforeStart = [](std::string&, bool&) { throw failures::TypeMismatch(); };
    UserDrag drag(desktop, Files({RealFile("x.jpg")}));
    drag.Over(window, kGroundX, kGroundY);
    EXPECT_THAT(Heard(), HasSubstr("host Error 13 Vorlane UserControl_OLEDragOver DpCnt=7"));
}

TEST_F(DragTest, DataOfNoUseHasNoEffect) {
    ShowDraggable(7);
    UserDrag drag(desktop, DataObject{});
    Over(drag, 1, 0.2F);
    EXPECT_EQ(drag.Effect(), 0);
    drag.Over(window, kGroundX, kGroundY);
    EXPECT_EQ(drag.Effect(), 0);
    EXPECT_EQ(Mark(), "hidden");
}

TEST_F(DragTest, EscapeDuringADragFromOutsideResets) {
    ShowDraggable(7);
    Click(1);
    UserDrag drag(desktop, Files({RealFile("x.jpg")}));
    Over(drag, 4, 0.2F);
    drag.Escape();
    EXPECT_EQ(Lefts(0, 5), "5 111 217 5 111 217");
    EXPECT_EQ(Mark(), "hidden");
    EXPECT_EQ(sheet->CountSelected(), 0);
}

TEST_F(DragTest, EscapeDuringAnOwnDragIsLeftToThePlatform) {
    ShowDraggable(7);
    DragSlide(1, [&](UserDrag& drag) {
        desktop.keyboard.Set(27, true);
        Over(drag, 4, 0.2F);
        EXPECT_EQ(drag.Effect(), 2);
        EXPECT_EQ(sheet->CountSelected(), 1);
        desktop.keyboard.Set(27, false);
    });
}

TEST_F(DragTest, WithASortInForceADragFromOutsideIsTakenWithoutAnyMark) {
    ShowDraggable(7);
    sheet->SetSortedSens(SortSensType::ssAscending);
    UserDrag drag(desktop, Files({RealFile("x.jpg")}));
    Over(drag, 4, 0.2F);
    EXPECT_EQ(drag.Effect(), 1);
    drag.Over(window, kGroundX, kGroundY);
    EXPECT_EQ(drag.Effect(), 1);
    EXPECT_EQ(Mark(), "hidden");
    EXPECT_EQ(Lefts(0, 5), "5 111 217 5 111 217");
}

TEST_F(DragTest, TheFilesOfADragFromOutsideAreCountedOnceWhileItStaysOverTheSheet) {
    ShowDraggable(7);
    std::filesystem::create_directories(folder.WithSeparator() + "album");
    RealFile("album/a.jpg");
    UserDrag drag(desktop, Files({folder.WithSeparator() + "album"}));
    const auto enter = [&] {
        Over(drag, 1, 0.2F);
        Told();
        drag.Over(window, kGroundX, kGroundY);
        return Told();
    };
    EXPECT_THAT(enter(), HasSubstr("BeforeStartDrag 1\n"));
    RealFile("album/b.jpg");
    EXPECT_THAT(enter(), HasSubstr("BeforeStartDrag 1\n")) << "it has not left";
    drag.Over(window, -20, 40);
    EXPECT_THAT(enter(), HasSubstr("BeforeStartDrag 2\n"));
}

// --- Files ---

TEST_F(DragTest, FilesFromOutsideGoInAtTheMarkOneAfterTheOther) {
    ShowDraggable(3);
    UserDrag drag(desktop, Files({RealFile("x.jpg"), RealFile("y.jpg")}));
    Over(drag, 1, 0.2F);
    Told();
    drag.Drop();
    EXPECT_EQ(Names(), "000 x y 001 002");
    EXPECT_EQ(Told(),
              "ole BeforeDropStart 2\n"
              "ole NewFileAdded x.jpg -1\n"
              "ole SortChanged\n"
              "ole NewFileAdded y.jpg -1\n"
              "ole SortChanged\n"
              "ole AfterDropAdd 2\n"
              "ole DragDrop 1 131,42\n");
    EXPECT_EQ(sheet->Key(1), 1);
    EXPECT_EQ(Slides(), "0 1 2 3 4");
    ExpectSlidesAgreeWithList();
}

TEST_F(DragTest, AFileTakesTheKeyThatItBringsUnlessTheHostGivesAnother) {
    ShowDraggable(1);
    onNewFile = [](const std::string& name, int32_t& key, bool&) {
        if (name.ends_with("y.jpg")) key = 500;
    };
    UserDrag drag(desktop, Files({RealFile("x.jpg") + "|42", RealFile("y.jpg") + "|43"}));
    DropOn(drag, 0, 0.2F);
    EXPECT_EQ(Names(), "x y 000");
    EXPECT_EQ(sheet->Key(0), 42);
    EXPECT_EQ(sheet->Key(1), 500);
}

TEST_F(DragTest, TheHostCanRefuseOneFileAlone) {
    ShowDraggable(1);
    onNewFile = [](const std::string& name, int32_t&, bool& cancel) { cancel = name.ends_with("x.jpg"); };
    UserDrag drag(desktop, Files({RealFile("x.jpg"), RealFile("y.jpg")}));
    DropOn(drag, 0, 0.2F);
    EXPECT_EQ(Names(), "y 000");
    EXPECT_THAT(Told(), HasSubstr("AfterDropAdd 1\n"));
}

TEST_F(DragTest, AHostThatShortensTheListAtAFileGetsTheRestAtItsEnd) {
    ShowDraggable(6);
    std::filesystem::create_directories(folder.WithSeparator() + "album");
    RealFile("album/b.jpg");
    onNewFile = [this](const std::string& name, int32_t&, bool&) {
        if (name.ends_with("x.jpg")) sheet->Remove(0);
    };
    UserDrag drag(desktop, Files({RealFile("x.jpg"), folder.WithSeparator() + "album", RealFile("y.jpg")}));
    DropOn(drag, 5, 0.8F);
    EXPECT_EQ(Names(), "001 002 003 004 005 x b y");
    EXPECT_THAT(Told(), Not(HasSubstr("Error")));
    ExpectSlidesAgreeWithList();
}

TEST_F(DragTest, FilesThatAreMissingOrFitNoPatternAreSkippedSilently) {
    ShowDraggable(1);
    sheet->SetPattern("*.jpg");
    UserDrag drag(desktop,
                  Files({"/nowhere/x.jpg", RealFile("notes.txt"), RealFile("noextension"), RealFile("y.jpg")}));
    DropOn(drag, 0, 0.2F);
    EXPECT_EQ(Names(), "y 000");
    EXPECT_THAT(Told(), HasSubstr("AfterDropAdd 1\n"));
}

TEST_F(DragTest, AFolderBringsItsFiles) {
    ShowDraggable(2);
    std::filesystem::create_directories(folder.WithSeparator() + "album");
    RealFile("album/a.jpg");
    RealFile("album/b.jpg");
    RealFile("album/c.jpg");
    const std::string last = RealFile("z.jpg");
    UserDrag drag(desktop, Files({folder.WithSeparator() + "album", last}));
    EXPECT_EQ(sheet->CountObject(nullptr), 0);
    DropOn(drag, 1, 0.2F);
    EXPECT_EQ(Names(), "000 a b c z 001") << "in the folder's order";
    EXPECT_THAT(Told(), HasSubstr("AfterDropAdd 4\n"));
}

TEST_F(DragTest, EachFileOfAFolderThatTakesAPlaceIsToldAsOneOfItsOwn) {
    ShowDraggable(1);
    std::filesystem::create_directories(folder.WithSeparator() + "album");
    for (const char* name : {"album/a.jpg", "album/b.jpg", "album/c.jpg"}) RealFile(name);
    onNewFile = [](const std::string& name, int32_t&, bool& cancel) { cancel = name.ends_with("b.jpg"); };
    {
        UserDrag drag(desktop, Files({folder.WithSeparator() + "album"}));
        Over(drag, 0, 0.2F);
        Told();
        drag.Drop();
    }
    EXPECT_EQ(Told(),
              "ole BeforeDropStart 1\n"
              "ole NewFileAdded a.jpg -1\n"
              "ole SortChanged\n"
              "ole NewFileAdded b.jpg 0\n"
              "ole NewFileAdded c.jpg 0\n"
              "ole SortChanged\n"
              "ole AfterDropAdd 2\n"
              "ole DragDrop 1 25,42\n");
    sheet->SetSortedSens(SortSensType::ssAscending);
    UserDrag drag(desktop, Files({folder.WithSeparator() + "album"}));
    DropOn(drag, 0, 0.2F);
    EXPECT_THAT(Told(), Not(HasSubstr("SortChanged"))) << "a sort gives them their places";
}

TEST_F(DragTest, AHostThatFailsAtAFileOfAFolderEndsThatFolderWithAnError) {
    ShowDraggable(2);
    std::filesystem::create_directories(folder.WithSeparator() + "album");
    RealFile("album/a.jpg");
    RealFile("album/b.jpg");
    const std::string last = RealFile("z.jpg");
    onNewFile = [](const std::string& name, int32_t&, bool&) {
        if (name.ends_with("b.jpg")) throw failures::TypeMismatch();
    };
    UserDrag drag(desktop, Files({folder.WithSeparator() + "album", last}));
    DropOn(drag, 1, 0.2F);
    EXPECT_THAT(Heard(),
                HasSubstr("host Error 13 Vorlane AddFolder DpCnt=2 - " + folder.WithSeparator() + "album - 1\n"));
    EXPECT_EQ(Names(), "000 z a 001") << "what has come in stays";
}

TEST_F(DragTest, WhatHasComeInBeforeAHostFailsAtAFileIsShown) {
    ShowDraggable(2);
    onNewFile = [](const std::string& name, int32_t&, bool&) {
        if (name.ends_with("y.jpg")) throw failures::TypeMismatch();
    };
    UserDrag drag(desktop, Files({RealFile("w.jpg"), RealFile("x.jpg"), RealFile("y.jpg"), RealFile("z.jpg")}));
    Over(drag, 1, 0.2F);
    Told();
    drag.Drop();
    EXPECT_THAT(Told(), testing::StartsWith("ole BeforeDropStart 4\n"
                                            "ole NewFileAdded w.jpg -1\n"
                                            "ole SortChanged\n"
                                            "ole NewFileAdded x.jpg -1\n"
                                            "ole SortChanged\n"
                                            "ole NewFileAdded y.jpg -1\n"
                                            "ole Error 13 Vorlane Diapo_OLEDragDrop DpCnt=4"));
    EXPECT_EQ(Names(), "000 w x 001");
    EXPECT_EQ(Slides(), "0 1 2 3");
    ExpectSlidesAgreeWithList();
}

TEST_F(DragTest, WhatHasComeInBeforeAHostFailsAtAFileIsSorted) {
    ShowDraggable(2);
    sheet->SetSortedSens(SortSensType::ssAscending);
    onNewFile = [](const std::string& name, int32_t&, bool&) {
        if (name.ends_with("y.jpg")) throw failures::TypeMismatch();
    };
    UserDrag drag(desktop, Files({RealFile("x.jpg"), RealFile("a.jpg"), RealFile("y.jpg")}));
    DropOn(drag, 0, 0.2F);
    EXPECT_EQ(Names(), "000 001 a x");
    EXPECT_EQ(Slides(), "0 1 2 3");
    EXPECT_THAT(Told(), HasSubstr("ole Sorted\nole Error 13 Vorlane Diapo_OLEDragDrop"));
    ExpectSlidesAgreeWithList();
}

TEST_F(DragTest, CountingTellsFilesAndTheFilesOfFolders) {
    ShowDraggable(1);
    std::filesystem::create_directories(folder.WithSeparator() + "album");
    RealFile("album/a.jpg");
    RealFile("album/b.jpg");
    const std::string file = RealFile("c.jpg");
    const DataObject files = Files({file, folder.WithSeparator() + "album", "/nowhere", file + "|9"});
    const int32_t yields = desktop.clock.Yields();
    EXPECT_EQ(sheet->CountObject(&files), 4);
    EXPECT_EQ(desktop.clock.Yields(), yields) << "in one go";
    const DataObject text = Text(file + "\r\n" + folder.WithSeparator() + "album\r\n\r\n" + file);
    EXPECT_EQ(sheet->CountObject(&text), 3);
    const DataObject nothing;
    EXPECT_EQ(sheet->CountObject(&nothing), 0);
}

TEST_F(DragTest, AnEmptySheetTakesADropAsItsFirstItems) {
    ShowDraggable(0);
    UserDrag drag(desktop, Files({RealFile("x.jpg"), RealFile("y.jpg")}));
    drag.Drop(window, 150, 90);
    EXPECT_EQ(Names(), "x y");
    EXPECT_EQ(Slides(), "0 1");
    ExpectSlidesAgreeWithList();
}

TEST_F(DragTest, ACancelBeforeADropFromOutsideChangesNothing) {
    ShowDraggable(2);
    onBeforeDrop = [](bool& cancel) { cancel = true; };
    UserDrag drag(desktop, Files({RealFile("x.jpg")}));
    DropOn(drag, 1, 0.2F);
    EXPECT_EQ(Names(), "000 001");
    EXPECT_EQ(Mark(), "hidden");
    EXPECT_THAT(Told(), Not(HasSubstr("AfterDropAdd")));
}

TEST_F(DragTest, ARowOpensAnewForTheDragAfterADropThatWasNotTaken) {
    ShowDraggable(7);
    std::string opened;
    {
        UserDrag drag(desktop, Files({RealFile("x.jpg")}));
        onBeforeDrop = [](bool& cancel) { cancel = true; };
        Over(drag, 4, 0.2F);
        opened = Lefts(3, 5);
        drag.Drop();
        EXPECT_EQ(Lefts(3, 5), "5 111 217");
    }
    {
        UserDrag drag(desktop, Files({RealFile("x.jpg")}));
        Over(drag, 4, 0.2F);
        EXPECT_EQ(Lefts(3, 5), opened);
        sheet->SetOLEDropMode(1);
        drag.Drop(window, kGroundX, 120);
        EXPECT_EQ(Lefts(3, 5), "5 111 217");
    }
    UserDrag drag(desktop, Files({RealFile("x.jpg")}));
    Over(drag, 4, 0.2F);
    EXPECT_EQ(Lefts(3, 5), opened);
}

TEST_F(DragTest, WithASortInForceADropAddsAndSortsAgain) {
    ShowDraggable(3);
    sheet->SetSortedSens(SortSensType::ssAscending);
    UserDrag drag(desktop, Files({RealFile("z.jpg"), RealFile("a.jpg")}));
    DropOn(drag, 0, 0.2F);
    EXPECT_EQ(Names(), "000 001 002 a z");
    EXPECT_THAT(Told(), HasSubstr("ole Sorted\nole AfterDropAdd 2\nole DragDrop 1"));
    ExpectSlidesAgreeWithList();
}

// --- Texts ---

TEST_F(DragTest, ATextBringsThePathsOfItsLines) {
    ShowDraggable(1);
    const std::string x = RealFile("x.jpg");
    const std::string y = RealFile("y.jpg");
    UserDrag drag(desktop, Text(x + "\r\n" + y + "\r\n\r\n" + x));
    DropOn(drag, 0, 0.2F);
    EXPECT_EQ(Names(), "x y 000");
    EXPECT_THAT(Told(), HasSubstr("ole BeforeDropStart 4\n"));
}

TEST_F(DragTest, ATextDragWithAnEmptyFirstLineAddsNothingAndStillTellsThat) {
    ShowDraggable(1);
    UserDrag drag(desktop, Text("\r\n" + RealFile("x.jpg")));
    DropOn(drag, 0, 0.2F);
    EXPECT_EQ(Names(), "000");
    EXPECT_THAT(Told(), HasSubstr("ole BeforeDropStart 2\nole AfterDropAdd 0\nole DragDrop 1"));
}

TEST_F(DragTest, InATextABarIsAPartOfThePath) {
    ShowDraggable(1);
    const std::string path = RealFile("a|7.jpg");
    UserDrag drag(desktop, Text(path));
    DropOn(drag, 0, 0.2F);
    EXPECT_EQ(sheet->ImageFullPath(0), path);
}

// --- Who takes no drops ---

TEST_F(DragTest, AFileListTakesNoDropsAndOneAllTheSameIsAnError) {
    ShowDraggable(1);
    RealFile("a.jpg");
    sheet->InitListe(ListeModeType::lmFileList, nullptr, folder.WithSeparator(), "*.jpg");
    sheet->StartLecture();
    UserDrag drag(desktop, Files({RealFile("x.jpg")}));
    Over(drag, 0, 0.2F);
    EXPECT_EQ(drag.Effect(), 0);
    drag.Over(window, kGroundX, kGroundY);
    EXPECT_EQ(drag.Effect(), 0);
    desktop.trace.Clear();
    DataObject data = Files({RealFile("x.jpg")});
    int32_t effect = 1;
    window.Router().DragDrop(data, effect, 1, 0, 50, 40);
    EXPECT_EQ(Told(), "ole DragError\n");
}

TEST_F(DragTest, ASheetThatLeavesDropsToItsHostRaisesThemOnly) {
    ShowDraggable(3);
    sheet->SetOLEDropMode(1);
    UserDrag drag(desktop, Files({RealFile("x.jpg")}));
    Over(drag, 1, 0.2F);
    Told();
    drag.Drop();
    EXPECT_EQ(Told(), "ole DragDrop 1 131,42\n");
    EXPECT_EQ(Names(), "000 001 002");
    EXPECT_EQ(Mark(), "hidden");
    EXPECT_EQ(Lefts(0, 2), "5 111 217");
}

}  // namespace
}  // namespace vorlane

// Renaming in place, with real files in a folder of the test's own: Zebre.jpg, Yack.jpg and Xylo.jpg.
#include "interaction/msgboxobject.h"
#include "tests/interaction/gesturefixture.h"
#include "tests/platform/temporaryfolder.h"
#include "tests/sheet/vectorlistbox.h"

#include <fstream>

namespace vorlane {
namespace {

class DialogueBox final : public MsgBoxObject {
public:
    explicit DialogueBox(std::string type = "DialogueBox") : type_(std::move(type)) {}
    std::string TypeName() const override { return type_; }
    void Action(const std::string& text, const std::string& title, const std::string& subTitle,
                int32_t flags) override {
        shown += text + " [" + title + "] [" + subTitle + "] " + std::to_string(flags) + "\n";
    }
    std::string shown;

private:
    std::string type_;
};

class RenameTest : public GestureTest {
protected:
    RenameTest() {
        auto& events = sheet->Events;
        events.BeforeEdit.connect([this](bool& cancel, const std::string& name) {
            desktop.trace.Add("host BeforeEdit " + name);
            cancel = refuseEdit;
        });
        events.AfterEdit.connect([this](const std::string& now, const std::string& before, bool canceled) {
            desktop.trace.Add("host AfterEdit [" + Local(now) + "] [" + Local(before) + "]" +
                              (canceled ? " canceled" : ""));
        });
        events.RenameError.connect([this](int32_t type, const std::string& now, const std::string& before,
                                          std::string& message, bool& cancelMessage) {
            desktop.trace.Add("host RenameError " + std::to_string(type) + " " + Local(now) + " " + Local(before) +
                              " [" + message + "]" + (cancelMessage ? " cancel" : ""));
            message = ownMessage;
            cancelMessage = true;
        });
        Start();
        int32_t key = 500;
        for (const char* name : {"Zebre", "Yack", "Xylo"}) {
            const std::string path = folder.File(std::string(name) + ".jpg");
            desktop.pictures.Add(path, 60, 40);
            sheet->Add(path, name, key++);
        }
        sheet->SetSortedSens(SortSensType::ssNone);
        sheet->StartLecture();
        desktop.trace.Clear();
    }

    std::string Path(const std::string& name) const { return folder.WithSeparator() + name; }
    std::string Local(const std::string& path) const {
        return path.rfind(folder.WithSeparator(), 0) == 0 ? path.substr(folder.WithSeparator().size()) : path;
    }
    static bool Exists(const std::string& path) { return std::filesystem::exists(path); }

    // Opens the box on slide 0 and replaces its text.
    void Type(const std::string& name, int16_t slot = 0) {
        sheet->StartEdit(slot);
        sheet->Txt.SetText(name);
        window.Router().SetFocus(&sheet->Txt);
        desktop.trace.Clear();
    }
    void Enter() { window.Key(13, 13); }
    void Escape() { window.Key(27, 27); }
    std::string Messages() { return desktop.trace.Take({"msgbox"}); }
    void ExpectNothingRenamed(const std::string& text) {
        EXPECT_TRUE(Exists(Path("Zebre.jpg")));
        EXPECT_EQ(sheet->ImageFullPath(0), Path("Zebre.jpg"));
        EXPECT_EQ(sheet->Diapo.Item(0)->ImageFullPath(), Path("Zebre.jpg"));
        EXPECT_TRUE(sheet->Txt.Visible());
        EXPECT_EQ(sheet->Txt.Text(), text);
    }

    TemporaryFolder folder;
    bool refuseEdit = false;
    std::string ownMessage;
};

// --- Opening ---

TEST_F(RenameTest, TheBoxLiesOverTheNameWithItsTextSelected) {
    int32_t focused = 0;
    sheet->Txt.FocusRequested.connect([&] { ++focused; });
    sheet->StartEdit(1);
    EXPECT_EQ(Heard(), "host BeforeEdit Yack\n");
    const auto slide = sheet->Diapo.Item(1);
    EXPECT_EQ(sheet->Txt.Text(), "Yack");
    EXPECT_EQ(sheet->Txt.Left(), slide->Left() + slide->LblTop.Left());
    EXPECT_EQ(sheet->Txt.Top(), slide->Top() + slide->LblTop.Top());
    EXPECT_EQ(sheet->Txt.Width(), slide->LblTop.Width());
    EXPECT_EQ(sheet->Txt.Height(), slide->LblTop.Height());
    EXPECT_TRUE(sheet->Txt.Visible());
    EXPECT_EQ(sheet->Txt.Tag(), "1");
    EXPECT_EQ(sheet->Txt.SelStart(), 0);
    EXPECT_EQ(sheet->Txt.SelLength(), 4);
    EXPECT_EQ(focused, 1);
}

TEST_F(RenameTest, AHostThatRefusesLeavesTheBoxClosedWithTheNewText) {
    refuseEdit = true;
    sheet->StartEdit(1);
    EXPECT_FALSE(sheet->Txt.Visible());
    EXPECT_EQ(sheet->Txt.Text(), "Yack");
    EXPECT_EQ(sheet->Txt.Tag(), "");
}

TEST_F(RenameTest, ItemsOfAFileListAreNotRenamed) {
    sheet->InitListe(ListeModeType::lmFileList);
    Heard();
    sheet->StartEdit(0);
    EXPECT_EQ(Heard(), "");
    EXPECT_FALSE(sheet->Txt.Visible());
}

TEST_F(RenameTest, ASlideThatIsNotThereIsReported) {
    sheet->StartEdit(99);
    EXPECT_EQ(Heard(), "host Error 340 Vorlane StartEdit DpCnt=3 - 99\n");
}

TEST_F(RenameTest, TheBoxTakesNoCharacterThatAFileNameCannotHold) {
    Type("Zebre");
    int16_t key = '/';
    window.Router().KeyPress(key);
    EXPECT_EQ(key, 0);
    key = 'a';
    window.Router().KeyPress(key);
    EXPECT_EQ(key, 'a');
    key = 13;
    window.Router().KeyPress(key);
    EXPECT_EQ(key, 0);
}

// --- Renaming ---

TEST_F(RenameTest, EnterRenamesTheFileTheItemAndTheSlide) {
    Type("Aube");
    Enter();
    EXPECT_EQ(Heard(), "host AfterEdit [Aube.jpg] [Zebre.jpg]\nhost KeyUp 13\n");
    EXPECT_TRUE(Exists(Path("Aube.jpg")));
    EXPECT_FALSE(Exists(Path("Zebre.jpg")));
    EXPECT_EQ(sheet->ImageFullPath(0), Path("Aube.jpg"));
    EXPECT_EQ(sheet->Key(0), 500);
    EXPECT_EQ(sheet->Diapo.Item(0)->ImageFullPath(), Path("Aube.jpg"));
    EXPECT_EQ(sheet->Diapo.Item(0)->LblTop.Caption(), "Aube.jpg");
    EXPECT_FALSE(sheet->Txt.Visible());
    EXPECT_EQ(sheet->Txt.Tag(), "");
}

TEST_F(RenameTest, TheSortDataThatHoldsTheNameChangesWithIt) {
    Type("Aube");
    Enter();
    const std::string text = sheet->Liste()->List(0);
    EXPECT_EQ(text.find("Zebre"), std::string::npos) << text;
    EXPECT_EQ(text.find("Aube"), 0U) << text;
}

TEST_F(RenameTest, WithASortInForceTheListIsSortedAnew) {
    sheet->SetSortedSens(SortSensType::ssAscending);
    sheet->Sort(1);
    EXPECT_EQ(sheet->ImageFullPath(2), Path("Zebre.jpg"));
    Type("Aube", 2);
    Enter();
    EXPECT_EQ(sheet->ImageFullPath(0), Path("Aube.jpg"));
    EXPECT_EQ(sheet->Key(0), 500);
    EXPECT_EQ(sheet->Diapo.Item(0)->ImageFullPath(), Path("Aube.jpg"));
}

TEST_F(RenameTest, AFileWithoutExtensionIsRenamedLikeAnyOther) {
    const std::string path = folder.File("Wagon");
    desktop.pictures.Add(path, 60, 40);
    sheet->Add(path, "", 600);
    sheet->StartLecture();
    Type("Ville", 3);
    Enter();
    EXPECT_EQ(Heard(), "host AfterEdit [Ville] [Wagon]\nhost KeyUp 13\n");
    EXPECT_TRUE(Exists(Path("Ville")));
    EXPECT_EQ(sheet->ImageFullPath(3), Path("Ville"));
    EXPECT_EQ(sheet->Diapo.Item(3)->ImageFullPath(), Path("Ville."));
}

TEST_F(RenameTest, AFileWithoutExtensionMayGetAPoint) {
    const std::string path = folder.File("Wagon");
    desktop.pictures.Add(path, 60, 40);
    sheet->Add(path, "", 600);
    sheet->StartLecture();
    Type("Ville.2024", 3);
    Enter();
    EXPECT_TRUE(Exists(Path("Ville.2024")));
    EXPECT_EQ(sheet->ImageFullPath(3), Path("Ville.2024"));
    EXPECT_EQ(sheet->Diapo.Item(3)->ImageFullPath(), Path("Ville.2024"));
}

TEST_F(RenameTest, TheSortDataFollowANameOfAnotherExtension) {
    const std::string path = folder.File("Wagon");
    desktop.pictures.Add(path, 60, 40);
    sheet->Add(path, "Wagon", 600);
    sheet->StartLecture();
    Type("Wagon 2.jpg", 3);
    Enter();
    EXPECT_EQ(sheet->ImageFullPath(3), Path("Wagon 2.jpg"));
    EXPECT_EQ(sheet->Liste()->List(3), "Wagon 2" + std::string(1, kSepSortWithData) + Path("Wagon 2.jpg"));
}

TEST_F(RenameTest, ANameLeftUnchangedClosesTheBoxWithoutAnEvent) {
    Type("Zebre");
    Enter();
    EXPECT_EQ(Heard(), "host KeyUp 13\n");
    EXPECT_FALSE(sheet->Txt.Visible());
    EXPECT_TRUE(Exists(Path("Zebre.jpg")));
}

TEST_F(RenameTest, AnEmptiedTextClosesTheBoxAsCancelledAndKeepsTheFile) {
    Type("");
    Enter();
    EXPECT_EQ(Heard(), "host AfterEdit [] [] canceled\nhost KeyUp 13\n");
    EXPECT_FALSE(sheet->Txt.Visible());
    EXPECT_TRUE(Exists(Path("Zebre.jpg")));
}

TEST_F(RenameTest, EscapeDiscardsTheTypedName) {
    Type("Aube");
    Escape();
    EXPECT_EQ(Heard(), "host AfterEdit [] [] canceled\nhost KeyUp 27\n");
    EXPECT_FALSE(sheet->Txt.Visible());
    EXPECT_TRUE(Exists(Path("Zebre.jpg")));
}

TEST_F(RenameTest, EndEditWithNothingOpenReturnsAtOnce) {
    sheet->EndEdit();
    EXPECT_EQ(Heard(), "");
    sheet->Txt.SetTag("0");
    sheet->EndEdit();
    EXPECT_EQ(Heard(), "");
    sheet->Txt.SetVisible(true);
    sheet->Txt.SetTag("zero");
    sheet->EndEdit();
    EXPECT_EQ(Heard(), "");
    EXPECT_TRUE(sheet->Txt.Visible());
}

TEST_F(RenameTest, ABoxOverASlideThatHasGoneStaysAsItIs) {
    Type("Aube", 2);
    sheet->Clear();
    Heard();
    sheet->EndEdit();
    EXPECT_EQ(Heard(), "");
    EXPECT_TRUE(sheet->Txt.Visible());
    EXPECT_TRUE(Exists(Path("Xylo.jpg")));
}

TEST_F(RenameTest, AnEndInsideItsOwnEventsIsPassedOver) {
    sheet->Events.AfterEdit.connect([this](const std::string&, const std::string&, bool) { sheet->EndEdit(); });
    Type("Aube");
    Escape();
    EXPECT_EQ(Heard(), "host AfterEdit [] [] canceled\nhost KeyUp 27\n");
    EXPECT_FALSE(sheet->Txt.Visible());
}

// --- Presses ---

TEST_F(RenameTest, APressOnASlideDiscardsTheTypedName) {
    Type("Aube");
    Click(1);
    EXPECT_FALSE(sheet->Txt.Visible());
    EXPECT_TRUE(Exists(Path("Zebre.jpg")));
}

TEST_F(RenameTest, APressOnTheBackgroundKeepsTheTypedName) {
    Type("Aube");
    window.Press(kGroundX, kGroundY);
    window.Release(kGroundX, kGroundY);
    EXPECT_FALSE(sheet->Txt.Visible());
    EXPECT_TRUE(Exists(Path("Aube.jpg")));
}

TEST_F(RenameTest, APressOnTheZoomCornerOrTheInfoButtonDiscardsTheTypedName) {
    Type("Aube");
    sheet->Diapo.Item(1)->CornerResize.Input.MouseDown(2, 0, 0, 0);
    EXPECT_EQ(Heard(), "host AfterEdit [] [] canceled\n");
    Type("Aube");
    sheet->Diapo.Item(1)->ImgInfo.Input.MouseDown(1, 0, 0, 0);
    EXPECT_EQ(Heard(), "host AfterEdit [] [] canceled\n");
    EXPECT_TRUE(Exists(Path("Zebre.jpg")));
}

// --- Refusals ---

constexpr const char* kTaken =
    "msgbox 16 [Vorlane] Impossible de renommer le fichier, un autre fichier portant ce nom existe déjà.\n";

TEST_F(RenameTest, ANameThatIsTakenIsRefusedAndTheBoxStays) {
    Type("Yack");
    int32_t focused = 0;
    sheet->Txt.FocusRequested.connect([&] { ++focused; });
    Enter();
    EXPECT_EQ(Messages(), kTaken);
    EXPECT_EQ(focused, 1);
    ExpectNothingRenamed("Yack");
    EXPECT_TRUE(Exists(Path("Yack.jpg")));
}

TEST_F(RenameTest, TheHostHearsOfARefusalAndMayReplaceItsTextButNotPreventIt) {
    ownMessage = "Déjà pris.";
    Type("Yack");
    bool cancel = false;
    sheet->EndEdit(cancel);
    EXPECT_EQ(desktop.trace.Take({"host", "msgbox"}),
              "host RenameError 0 Yack.jpg Zebre.jpg []\nmsgbox 16 [Vorlane] Déjà pris.\n");
    EXPECT_TRUE(cancel);
    ExpectNothingRenamed("Yack");
}

TEST_F(RenameTest, ADialogueBoxOfTheHostShowsTheMessageInPlaceOfTheMessageBox) {
    DialogueBox box;
    Type("Yack");
    bool cancel = false;
    sheet->EndEdit(cancel, &box);
    EXPECT_EQ(Messages(), "");
    EXPECT_EQ(box.shown,
              "Impossible de renommer le fichier, un autre fichier portant ce nom existe déjà. [Vorlane] [Vorlane] "
              "16\n");
}

TEST_F(RenameTest, AnyOtherObjectShowsNothing) {
    DialogueBox box("Form1");
    Type("Yack");
    bool cancel = false;
    sheet->EndEdit(cancel, &box);
    EXPECT_EQ(Messages(), "");
    EXPECT_EQ(box.shown, "");
    ExpectNothingRenamed("Yack");
}

TEST_F(RenameTest, ARenamingThatOnlyChangesCaseIsRefusedAsTaken) {
    Type("zEBRE");
    Enter();
    EXPECT_EQ(Messages(), kTaken);
    ExpectNothingRenamed("zEBRE");
}

std::string Failed(const std::string& typed, int32_t number) {
    return "msgbox 16 [Renommer un fichier] Impossible de renommer le fichier Zebre en " + typed +
           ".\r\nVérifiez que le fichier ne soit pas utilisé par une autre application.\r\nErreur numéro : " +
           std::to_string(number) + "\n";
}

TEST_F(RenameTest, ANameThatIsNoFileNameIsRefusedBeforeTheDiskIsTouched) {
    for (const std::string typed : {"../Aube", "sous/Aube", "..", "Aube ", "Aube.", "nul", "a|b"}) {
        Type(typed);
        Enter();
        EXPECT_EQ(Messages(), Failed(typed, 52)) << typed;
        ExpectNothingRenamed(typed);
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.WithSeparator()), {}), 3);
}

TEST_F(RenameTest, AnOverlongNameIsRefused) {
    const std::string typed(252, 'u');  // four more for the extension
    Type(typed);
    Enter();
    EXPECT_EQ(Messages(), Failed(typed, 52));
    ExpectNothingRenamed(typed);
}

TEST_F(RenameTest, AFileThatHasGoneIsToldWithItsNumber) {
    std::filesystem::remove(Path("Zebre.jpg"));
    Type("Aube");
    Enter();
    EXPECT_EQ(Messages(), Failed("Aube", 53));
    EXPECT_EQ(sheet->ImageFullPath(0), Path("Zebre.jpg"));
    EXPECT_TRUE(sheet->Txt.Visible());
    EXPECT_EQ(Heard(), "");
}

TEST_F(RenameTest, AFolderAtTheNewNameIsNotReplaced) {
    std::filesystem::create_directory(Path("Aube.jpg"));
    Type("Aube");
    Enter();
    EXPECT_EQ(Messages(), Failed("Aube", 58));
    ExpectNothingRenamed("Aube");
}

TEST_F(RenameTest, ALinkThatLeadsNowhereIsNotReplaced) {
    std::filesystem::create_symlink(Path("nowhere"), Path("Aube.jpg"));
    Type("Aube");
    Enter();
    EXPECT_EQ(Messages(), Failed("Aube", 58));
    ExpectNothingRenamed("Aube");
}

// The name is replaced wherever the path holds it, so the new path is in another folder.
TEST_F(RenameTest, AFileInAFolderThatHoldsItsNameStaysWhereItIs) {
    std::filesystem::create_directory(Path("Quai"));
    std::filesystem::create_directory(Path("Aube"));
    const std::string path = folder.File("Quai/Quai.jpg");
    sheet->Add(path, "", 700);
    sheet->StartLecture();
    Type("Aube", 3);
    Enter();
    EXPECT_NE(Messages().find("Erreur numéro : 76"), std::string::npos);
    EXPECT_TRUE(Exists(path));
    EXPECT_FALSE(Exists(Path("Aube/Aube.jpg")));
}

TEST_F(RenameTest, AHandlerThatFailsIsToldLikeAFailedRename) {
    sheet->Events.RenameError.connect(
        [](int32_t, const std::string&, const std::string&, std::string&, bool&) { throw failures::InvalidCall(); });
    Type("Yack");
    Enter();
    EXPECT_EQ(Messages(), Failed("Yack", 5));
    ExpectNothingRenamed("Yack");
}

TEST_F(RenameTest, WhenTheSlideCannotFollowFileItemAndSlideAreAsTheyWere) {
    const std::string item = sheet->Liste()->List(0);
    Type("Aube");
    sheet->Diapo.Item(0)->LblTop.Changed.connect([] { throw failures::InvalidCall(); });
    Enter();
    EXPECT_EQ(Messages(), Failed("Aube", 5));
    ExpectNothingRenamed("Aube");
    EXPECT_FALSE(Exists(Path("Aube.jpg")));
    EXPECT_EQ(sheet->Liste()->List(0), item);
    EXPECT_EQ(sheet->Diapo.Item(0)->LblTop.Caption(), "Zebre.jpg");
}

TEST_F(RenameTest, WhenTheItemCannotFollowFileItemAndSlideAreAsTheyWere) {
    VectorListBox list(500);
    sheet->InitListe(ListeModeType::lmList, &list);
    sheet->Add(Path("Zebre.jpg"), "Zebre", 500);
    sheet->StartLecture();
    const std::string item = list.List(0);
    Type("Aube");
    list.failsBehindWrites = true;
    Enter();
    EXPECT_EQ(Messages(), Failed("Aube", 5));
    ExpectNothingRenamed("Aube");
    EXPECT_FALSE(Exists(Path("Aube.jpg")));
    EXPECT_EQ(list.List(0), item);
    list.failsBehindWrites = false;
    Enter();
    EXPECT_TRUE(Exists(Path("Aube.jpg")));
    EXPECT_EQ(sheet->ImageFullPath(0), Path("Aube.jpg"));
    sheet->InitListe(ListeModeType::lmList);
}

TEST_F(RenameTest, TheBoxGoesAlsoWhenAHandlerOfTheEndFails) {
    sheet->Events.AfterEdit.connect(
        [](const std::string&, const std::string&, bool) { throw failures::InvalidCall(); });
    Type("Aube");
    sheet->EndEdit();
    EXPECT_EQ(Heard(), "host AfterEdit [Aube.jpg] [Zebre.jpg]\nhost Error 5 Vorlane EndEdit DpCnt=3 - 0\n");
    EXPECT_FALSE(sheet->Txt.Visible());
    EXPECT_EQ(sheet->Txt.Tag(), "");
    EXPECT_TRUE(Exists(Path("Aube.jpg")));
    Type("Bise");
    bool cancel = true;
    sheet->EndEdit(cancel);
    EXPECT_EQ(Heard(), "host AfterEdit [] [] canceled\nhost Error 5 Vorlane EndEdit DpCnt=3 - -1\n");
    EXPECT_FALSE(sheet->Txt.Visible());
}

// --- RenameDiapo ---

TEST_F(RenameTest, RenameDiapoChangesItemAndSlideAndTouchesNoFile) {
    sheet->RenameDiapo(1, Path("Yack.jpg"), Path("Aube.jpg"));
    EXPECT_EQ(sheet->ImageFullPath(1), Path("Aube.jpg"));
    EXPECT_EQ(sheet->Diapo.Item(1)->ImageFullPath(), Path("Aube.jpg"));
    EXPECT_TRUE(Exists(Path("Yack.jpg")));
}

TEST_F(RenameTest, RenameDiapoOfAnItemThatNoSlideShowsChangesTheItemAlone) {
    for (int32_t n = 0; n < 20; ++n) sheet->Add(File(n), "", 1000 + n);
    sheet->StartLecture();
    sheet->RenameDiapo(20, File(17), "/p/neuf.jpg");
    EXPECT_EQ(sheet->ImageFullPath(20), "/p/neuf.jpg");
}

TEST_F(RenameTest, RenameDiapoOfASlideThatIsNotThereChangesNothing) {
    EXPECT_FALSE(sheet->RenameDiapo(1, Path("Yack.jpg"), Path("Aube.jpg"), 99));
    EXPECT_EQ(sheet->ImageFullPath(1), Path("Yack.jpg"));
    EXPECT_THAT(Heard(), testing::HasSubstr("RenameDiapo"));
}

TEST_F(RenameTest, ASheetReadOnceMoreDuringAnEditRenamesTheSameItem) {
    Type("Aube", 1);
    PropertyBag bag;
    sheet->WriteProperties(bag);
    bag.SetValue("BorderSize", int64_t{2});
    sheet->Restart(bag);
    desktop.clock.Advance(200);
    EXPECT_TRUE(sheet->Txt.Visible());
    Enter();
    EXPECT_TRUE(Exists(Path("Aube.jpg")));
    EXPECT_EQ(sheet->ImageFullPath(1), Path("Aube.jpg"));
    EXPECT_EQ(sheet->Diapo.Item(1)->ImageFullPath(), Path("Aube.jpg"));
    EXPECT_FALSE(sheet->Txt.Visible());
    EXPECT_EQ(Slides(), "0 1 2");
}

TEST_F(RenameTest, AnEditOfASlideWhoseItemHasGoneIsCanceled) {
    Type("Aube");
    sheet->Clear();
    Heard();
    Enter();
    EXPECT_THAT(Heard(), testing::StartsWith("host AfterEdit [] [] canceled\n"));
    EXPECT_FALSE(sheet->Txt.Visible());
    EXPECT_TRUE(Exists(Path("Zebre.jpg")));
}

TEST_F(RenameTest, AnEditIsCanceledOnceAFileListIsBound) {
    Type("Aube");
    sheet->FileInterne.Read(folder.Path(), "*.*");
    sheet->InitListe(ListeModeType::lmFileList);
    sheet->StartLecture();
    ASSERT_EQ(sheet->Diapo.Item(0)->ImageFullPath(), Path("Xylo.jpg"));
    Heard();
    sheet->EndEdit();
    EXPECT_EQ(Heard(), "host AfterEdit [] [] canceled\n");
    EXPECT_FALSE(sheet->Txt.Visible());
    EXPECT_TRUE(Exists(Path("Xylo.jpg")));
}

}  // namespace
}  // namespace vorlane

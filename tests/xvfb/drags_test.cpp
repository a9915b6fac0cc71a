// Real drags: within a sheet, between sheets, to and from programs that know nothing of sheets.
#include "platform/qt/formwidget.h"
#include "tests/xvfb/gesture.h"
#include "tests/xvfb/program.h"
#include "tests/xvfb/sheets.h"

#include <memory>
#include <vector>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

namespace vorlane {
namespace {

using test::Gesture;
using test::Program;
using test::User;

constexpr QRect kHere(60, 60, 460, 420);
constexpr QRect kThere(700, 60, 460, 420);

class DragUnderX : public testing::Test {
protected:
    DragUnderX() {
        test::SetUp(*sheet, kHere, Files({"a", "b", "c", "d", "e", "f", "g"}));
        EXPECT_TRUE(QTest::qWaitForWindowExposed(sheet.get()));
        EXPECT_TRUE(User::Until([&] { return sheet->pos() == kHere.topLeft(); }));
        QObject::connect(sheet.get(), &VorlaneWidget::OnOLECompleteDrag, [this](const int* effect) { done = *effect; });
    }
    ~DragUnderX() override { User::PointAt({2, 2}); }

    QStringList Files(const QStringList& names) const {
        QStringList files;
        for (const QString& name : names) {
            files += folder.filePath(name + ".png");
            QImage picture(3, 2, QImage::Format_RGB32);
            picture.fill(Qt::red);
            EXPECT_TRUE(picture.save(files.back()));
        }
        return files;
    }
    static QString ItemsOf(const VorlaneWidget& shown) { return test::ItemsOf(shown); }
    QStringList FilesInFolder() const { return QDir(folder.path()).entryList(QDir::Files); }

    // A place in a slide, from 0 to 1 of its width, at its middle height.
    static QPoint In(const VorlaneWidget& shown, int slide, double part) {
        const QRectF rect = shown.DiapoRect(slide);
        return shown.mapToGlobal(QPointF(rect.left() + rect.width() * part, rect.center().y()).toPoint());
    }
    QPoint In(int slide, double part) const { return In(*sheet, slide, part); }
    const Control& Mark() const { return sheet->sheet().ImgDrag; }
    // The window that follows the pointer.
    static const QWidget* Ghost() {
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && dynamic_cast<const FormWidget*>(window) != nullptr) return window;
        }
        return nullptr;
    }
    static bool Drags() { return Ghost() != nullptr; }
    bool MarkStandsBefore(int item) const { return Mark().Visible() && sheet->DropPlace() == item; }
    // Presses on a slide and draws it away until it is dragged.
    Gesture Dragging(int slide) const {
        Gesture gesture;
        const QPoint from = In(slide, 0.4);
        gesture.PointAt(from).Press().GoTo(from + QPoint(12, 8)).Until(Drags, "the ghost");
        return gesture;
    }

    QTemporaryDir folder;
    std::unique_ptr<VorlaneWidget> sheet = std::make_unique<VorlaneWidget>();
    int done = -1;  // what has come of the last drag
};

// --- Within a sheet ---

TEST_F(DragUnderX, ASlideMovesToTheMarkInTheOpenedRow) {
    bool opened = false;
    bool arrow = false;
    QPoint ghostAtFirst;
    EXPECT_TRUE(Dragging(0)
                    .Do([&] { ghostAtFirst = Ghost()->pos() - QCursor::pos(); })
                    .GoTo(In(4, 0.2))
                    .Until([&] { return MarkStandsBefore(4); }, "the mark")
                    .Do([&] {
                        const auto slide = sheet->sheet().Diapo.Item(4);
                        opened = slide->Left() > slide->Col();
                        arrow = !QGuiApplication::overrideCursor()->pixmap().isNull();
                    })
                    .Until([&] { return Ghost()->pos() - QCursor::pos() == ghostAtFirst; }, "the ghost at the pointer")
                    .Release()
                    .Play());
    EXPECT_TRUE(User::Until([&] { return done >= 0; }));
    EXPECT_TRUE(opened);
    EXPECT_TRUE(arrow);
    EXPECT_EQ(done, 2);
    EXPECT_EQ(ItemsOf(*sheet), "b 1001, c 1002, d 1003, a 1000, e 1004, f 1005, g 1006");
    EXPECT_EQ(sheet->SelectedTableau(), QList<int>{3});
    EXPECT_EQ(Ghost(), nullptr);
    EXPECT_FALSE(Mark().Visible());
    EXPECT_EQ(FilesInFolder().size(), 7);
}

// Other programs get no address of such a slide.
TEST_F(DragUnderX, ASlideWithARelativePathMovesWithTheOthers) {
    sheet->Add("nowhere/h.png", {}, 1007);
    sheet->StartLecture();
    for (const int slide : {1, 7}) sheet->SetSelected(slide, true);
    EXPECT_TRUE(Dragging(1).GoTo(In(4, 0.2)).Until([&] { return MarkStandsBefore(4); }, "the mark").Release().Play());
    EXPECT_TRUE(User::Until([&] { return done >= 0; }));
    EXPECT_EQ(ItemsOf(*sheet), "a 1000, c 1002, d 1003, b 1001, h 1007, e 1004, f 1005, g 1006");
}

TEST_F(DragUnderX, ASlideMovesBehindTheLastOne) {
    EXPECT_TRUE(Dragging(1).GoTo(In(6, 0.8)).Until([&] { return MarkStandsBefore(7); }, "the mark").Release().Play());
    EXPECT_TRUE(User::Until([&] { return done >= 0; }));
    EXPECT_EQ(ItemsOf(*sheet), "a 1000, c 1002, d 1003, e 1004, f 1005, g 1006, b 1001");
}

TEST_F(DragUnderX, EscapeLeavesTheSlideWhereItWas) {
    EXPECT_TRUE(Dragging(0)
                    .GoTo(In(4, 0.2))
                    .Until([&] { return MarkStandsBefore(4); }, "the mark")
                    .Key("Escape")
                    .Until([&] { return done >= 0; }, "the end")
                    .Release()
                    .Play());
    EXPECT_EQ(done, 0);
    EXPECT_EQ(ItemsOf(*sheet), "a 1000, b 1001, c 1002, d 1003, e 1004, f 1005, g 1006");
    EXPECT_EQ(Ghost(), nullptr);
    EXPECT_FALSE(Mark().Visible());
    const auto slide = sheet->sheet().Diapo.Item(4);
    EXPECT_EQ(slide->Left(), slide->Col());
}

TEST_F(DragUnderX, ASortKeepsTheSlidesWhereTheyAre) {
    sheet->SetSortedSens(ui::SortSens::ssAscending);
    EXPECT_TRUE(Dragging(0).GoTo(In(4, 0.2)).Release().Play());
    EXPECT_TRUE(User::Until([&] { return done >= 0; }));
    EXPECT_EQ(done, 0);
    EXPECT_EQ(ItemsOf(*sheet), "a 1000, b 1001, c 1002, d 1003, e 1004, f 1005, g 1006");
}

TEST_F(DragUnderX, ADragAtTheEdgeScrollsOn) {
    for (const QString& file : Files({"h", "i", "j", "k", "l", "m", "n", "o", "p", "q", "r", "s"})) sheet->Add(file);
    sheet->StartLecture();
    const QPoint bottom = sheet->mapToGlobal(QPoint(150, sheet->height() - 2));
    EXPECT_TRUE(Dragging(0)
                    .GoTo(bottom)
                    .Until([&] { return sheet->Value(0) > 0; }, "the scroll")
                    .Key("Escape")
                    .Until([&] { return done >= 0; }, "the end")
                    .Release()
                    .Play());
}

TEST_F(DragUnderX, ASheetThatEndsInItsOwnDragTakesTheDragWithIt) {
    EXPECT_TRUE(Dragging(0)
                    .GoTo(In(4, 0.2))
                    .Until([&] { return MarkStandsBefore(4); }, "the mark")
                    .Do([&] { sheet.reset(); })
                    .Release()
                    .Play());
    EXPECT_TRUE(User::Until([] { return Ghost() == nullptr; }));
    EXPECT_EQ(done, -1);
    sheet = std::make_unique<VorlaneWidget>();
    test::SetUp(*sheet, kHere, Files({"a", "b", "c", "d"}));
    EXPECT_TRUE(QTest::qWaitForWindowExposed(sheet.get()));
    EXPECT_TRUE(Dragging(0).GoTo(In(2, 0.2)).Until([&] { return MarkStandsBefore(2); }, "the mark").Release().Play());
    EXPECT_TRUE(User::Until([&] { return ItemsOf(*sheet) == "b 1001, a 1000, c 1002, d 1003"; }));
}

TEST_F(DragUnderX, AHostsOwnPictureIsThePointerWhereItWantsNoneOfTheSystems) {
    bool systems = false;
    QObject::connect(sheet.get(), &VorlaneWidget::OnOLEGiveFeedback,
                     [&](const int* effect, bool* defaultCursors) { *defaultCursors = systems || *effect == 0; });
    int held = 0;  // for how long it is there
    QPixmap hand(12, 12);
    hand.fill(Qt::blue);
    sheet->SetMouseIcon(hand);
    sheet->SetMousePointer(99);
    const auto pointer = [] { return QGuiApplication::overrideCursor()->pixmap().toImage(); };
    const auto isHand = [&] { return pointer().size() == QSize(24, 24) && pointer().pixelColor(13, 13) == Qt::blue; };
    EXPECT_TRUE(Dragging(0)
                    .GoTo(In(4, 0.2))
                    .Until([&] { return MarkStandsBefore(4); }, "the mark")
                    .Until([&] { return (held = isHand() ? held + 1 : 0) > 30; }, "the hand, and nothing else")
                    .Do([&] { systems = true; })
                    .GoTo(kHere.bottomRight() + QPoint(80, 80))
                    .Until([&] { return !isHand(); }, "the system's pointer")
                    .GoTo(In(4, 0.2))
                    .Until([&] { return MarkStandsBefore(4) && !isHand(); }, "the arrow")
                    .Key("Escape")
                    .Until([&] { return done >= 0; }, "the end")
                    .Release()
                    .Play());
}

// --- Between sheets ---

TEST_F(DragUnderX, SlidesGoToAnotherSheetOfTheProgramWithTheirKeys) {
    VorlaneWidget other;
    test::SetUp(other, kThere, Files({"x", "y"}));
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&other));
    EXPECT_TRUE(Dragging(2)
                    .GoTo(In(other, 1, 0.2))
                    .Until([&] { return other.sheet().ImgDrag.Visible() && other.DropPlace() == 1; }, "the mark")
                    .Release()
                    .Play());
    EXPECT_TRUE(User::Until([&] { return done >= 0; }));
    EXPECT_EQ(done, 1);
    EXPECT_EQ(ItemsOf(other), "x 1000, c 1002, y 1001");
    EXPECT_EQ(sheet->Count(), 7);
}

TEST_F(DragUnderX, AHostMovesSlidesToAnotherSheetOfTheProgram) {
    VorlaneWidget other;
    test::SetUp(other, kThere, Files({"x", "y"}));
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&other));
    std::vector<int> dragged;
    QObject::connect(sheet.get(), &VorlaneWidget::OnOLEStartDrag, [&] {
        for (const int item : sheet->SelectedTableau()) dragged.push_back(sheet->Key(item));
    });
    QObject::connect(&other, &VorlaneWidget::OnOLEDragOver,
                     [](DataObject*, int* effect, int, int, double, double, int) { *effect = kDropMoves; });
    QObject::connect(&other, &VorlaneWidget::OnOLEDragDrop,
                     [](DataObject*, int* effect, int, int, double, double) { *effect = kDropMoves; });
    QObject::connect(sheet.get(), &VorlaneWidget::OnOLECompleteDrag, [&](const int* effect) {
        if (*effect != kDropMoves) return;
        for (const int key : dragged) sheet->Remove(sheet->GetIndexFromKey(key));
    });
    EXPECT_TRUE(Dragging(2)
                    .GoTo(In(other, 1, 0.2))
                    .Until([&] { return other.sheet().ImgDrag.Visible() && other.DropPlace() == 1; }, "the mark")
                    .Release()
                    .Play());
    EXPECT_TRUE(User::Until([&] { return done >= 0; }));
    EXPECT_EQ(done, 2);
    EXPECT_EQ(ItemsOf(other), "x 1000, c 1002, y 1001");
    EXPECT_EQ(ItemsOf(*sheet), "a 1000, b 1001, d 1003, e 1004, f 1005, g 1006");
    EXPECT_EQ(FilesInFolder().size(), 9);
}

TEST_F(DragUnderX, SlidesGoToASheetOfAnotherProgramWithTheirKeys) {
    Program other(test::kSheetPart, kThere, Files({"x", "y"}));
    sheet->SetSelectionMultiple(true);
    sheet->SetSelected(3, true);
    sheet->SetSelected(2, true);
    const qsizetype known = other.Lines().size();
    EXPECT_TRUE(Dragging(2)
                    .GoTo(kThere.topLeft() + QPoint(30, 60))
                    .Until([&] { return other.Lines().mid(known).contains("over"); }, "the other sheet")
                    .Release()
                    .Until([&] { return other.Told("c 1002, d 1003, x 1000, y 1001"); }, "the slides")
                    .Play())
        << other.Lines().join('\n').toStdString();
    EXPECT_TRUE(User::Until([&] { return done >= 0; }));
    EXPECT_EQ(done, 1);
}

TEST_F(DragUnderX, SlidesComeFromASheetOfAnotherProgramWithTheirKeys) {
    Program other(test::kSheetPart, kThere, Files({"x", "y"}));
    const QPoint from = kThere.topLeft() + QPoint(60, 60);
    Gesture gesture;
    EXPECT_TRUE(gesture.PointAt(from)
                    .Press()
                    .GoTo(from + QPoint(-12, 8))
                    .Until([&] { return other.Told("drags"); }, "the drag")
                    .GoTo(In(4, 0.2))
                    .Until([&] { return MarkStandsBefore(4); }, "the mark")
                    .Release()
                    .Until([&] { return other.Told("dragged 1"); }, "the end")
                    .Play())
        << other.Lines().join('\n').toStdString();
    EXPECT_EQ(ItemsOf(*sheet), "a 1000, b 1001, c 1002, d 1003, x 1000, e 1004, f 1005, g 1006");
}

// --- Other programs ---

TEST_F(DragUnderX, OtherProgramsAreOfferedCopiesOfTheFilesAlone) {
    Program other(test::kForeignPart, kThere, {});
    EXPECT_TRUE(Dragging(2)
                    .GoTo(kThere.center())
                    .Until([&] { return other.Told("over"); }, "the other program")
                    .Release()
                    .Until([&] { return other.Told("got copy c.png"); }, "the file")
                    .Play())
        << other.Lines().join('\n').toStdString();
    EXPECT_TRUE(other.Told("offered copy"));
    EXPECT_TRUE(User::Until([&] { return done >= 0; }));
    EXPECT_EQ(done, 1);
    EXPECT_EQ(sheet->Count(), 7);
    EXPECT_EQ(FilesInFolder().size(), 7);
}

TEST_F(DragUnderX, FilesOfAnotherProgramComeInAtTheMark) {
    Program other(test::kForeignPart, kThere, Files({"x", "y"}));
    int offered = 0;
    QObject::connect(sheet.get(), &VorlaneWidget::OnOLEBeforeDropStart, [&](int count) { offered = count; });
    Gesture gesture;
    EXPECT_TRUE(gesture.PointAt(kThere.center())
                    .Press()
                    .GoTo(kThere.center() - QPoint(20, 0))
                    .Until([&] { return other.Told("drags"); }, "the drag")
                    .GoTo(In(1, 0.8))
                    .Until([&] { return MarkStandsBefore(2); }, "the mark")
                    .Release()
                    .Until([&] { return other.Told("dragged copy"); }, "the end")
                    .Play())
        << other.Lines().join('\n').toStdString();
    EXPECT_EQ(offered, 2);
    ASSERT_EQ(sheet->Count(), 9);
    EXPECT_EQ(QFileInfo(sheet->ImageFullPath(2)).fileName(), "x.png");
    EXPECT_EQ(QFileInfo(sheet->ImageFullPath(3)).fileName(), "y.png");
}

TEST_F(DragUnderX, ADragFromOutsideThatEndsElsewhereLeavesNoTrace) {
    Program other(test::kForeignPart, kThere, Files({"x"}));
    Gesture gesture;
    EXPECT_TRUE(gesture.PointAt(kThere.center())
                    .Press()
                    .GoTo(kThere.center() - QPoint(20, 0))
                    .Until([&] { return other.Told("drags"); }, "the drag")
                    .GoTo(In(1, 0.8))
                    .Until([&] { return MarkStandsBefore(2); }, "the mark")
                    .GoTo({600, 600})
                    .Until([&] { return !Mark().Visible(); }, "the mark's end")
                    .Release()
                    .Until([&] { return other.Told("dragged nothing"); }, "the end")
                    .Play())
        << other.Lines().join('\n').toStdString();
    EXPECT_EQ(sheet->Count(), 7);
    const auto slide = sheet->sheet().Diapo.Item(1);
    EXPECT_EQ(slide->Left(), slide->Col());
}

}  // namespace
}  // namespace vorlane

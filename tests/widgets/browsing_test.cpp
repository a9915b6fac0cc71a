// What browsing a sheet costs, as numbers.
#include "platform/qt/qtdesktop.h"
#include "sheet/vorlane.h"
#include "tests/widgets/mouse.h"
#include "widgets/vorlanewidget.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QScrollBar>

namespace vorlane {
namespace {

// All slides of one height show one slider.
constexpr int kSlider = 1;

struct Costs {
    int filled = 0;       // slides that asked for a picture
    int64_t looks = 0;    // drawn anew
    int64_t replays = 0;  // of recordings
    int64_t scaled = 0;   // pictures
    qsizetype widgets = 0;
    bool operator==(const Costs&) const = default;
};

class BrowsingTest : public testing::Test {
protected:
    BrowsingTest() {
        widget.resize(700, 500);
        widget.DiapoSizeChange(true, 120, 110);
        for (int i = 0; i < 12; ++i) thumbs.push_back(test::Plain(90, 60, QColor::fromHsv(i * 30, 255, 200)));
        QObject::connect(&widget, &VorlaneWidget::OnBeforeSetPicture, &widget,
                         [this](int, const QString& name, SlideContent* content) {
                             ++filled;
                             const int number = name.section('/', -1).section('.', 0, 0).toInt();
                             content->Picture = thumbs[number % thumbs.size()];
                         });
        widget.show();
        for (int i = 0; i < 10000; ++i) widget.Add(QStringLiteral("/nowhere/%1.jpg").arg(i));
        widget.StartLecture();
        Settle();
        row = Bar().singleStep();
        pool = widget.CountDiapo();
    }

    QScrollBar& Bar() { return *widget.findChild<QScrollBar*>(); }
    static void Settle() { QCoreApplication::processEvents(); }

    Costs Now() {
        const QtDesktop& desktop = widget.Desktop();
        return {filled, desktop.looks.Drawn(), desktop.replays.Drawn(), desktop.scaled.Renders(),
                widget.children().size()};
    }
    // What a gesture costs until it is painted. A slow machine would paint in the middle of it, too.
    template <class Gesture>
    Costs CostsOf(Gesture&& gesture) {
        const Costs before = Now();
        widget.setUpdatesEnabled(false);
        gesture();
        widget.setUpdatesEnabled(true);
        Settle();
        const Costs after = Now();
        return {after.filled - before.filled, after.looks - before.looks, after.replays - before.replays,
                after.scaled - before.scaled, after.widgets - before.widgets};
    }
    Costs Go(int value) {
        return CostsOf([&] { Bar().setValue(value); });
    }

    std::vector<QImage> thumbs;
    int filled = 0;
    VorlaneWidget widget;
    int row = 0;
    int pool = 0;
};

TEST_F(BrowsingTest, ARowStepDrawsTheNewRowAlone) {
    ASSERT_EQ(row, 5);
    ASSERT_GE(pool, 20);
    for (int step = 1; step < 8; ++step) EXPECT_EQ(Go(step * row), (Costs{row, row, 0, 0, 0})) << step;
}

TEST_F(BrowsingTest, ARowStepBackOverWhatWasSeenDrawsNothing) {
    Go(row);
    EXPECT_EQ(Go(0), (Costs{row, 0, 0, 0, 0}));
}

TEST_F(BrowsingTest, AJumpDrawsEachNewSlideOnce) {
    EXPECT_EQ(Go(100 * row), (Costs{pool, pool, 0, 0, 0}));
    EXPECT_EQ(Go(0), (Costs{pool, 0, 0, 0, 0}));
}

TEST_F(BrowsingTest, TheSlidesOfOneShapeShareOneRecording) {
    EXPECT_EQ(CostsOf([&] { widget.Desktop().replays.Clear(), widget.Desktop().looks.Clear(), widget.update(); }),
              (Costs{0, pool + kSlider, 1, 0, 0}));
}

TEST_F(BrowsingTest, SlidesThatMoveApartAreNotDrawnAgain) {
    EXPECT_EQ(CostsOf([&] { widget.resize(720, 500); }), (Costs{0, 0, 0, 0, 0}));
}

TEST_F(BrowsingTest, ASelectedSlideAloneIsDrawnAgain) {
    const Costs costs = CostsOf([&] { widget.SetSelected(3, true); });
    EXPECT_EQ(costs.looks, 1);
    EXPECT_EQ(costs.filled, 0);
    EXPECT_EQ(CostsOf([&] { widget.SetSelected(3, false); }).looks, 0);
}

// A step that keeps the user waiting is painted on the way, too, but not more often than a screen shows it.
TEST_F(BrowsingTest, ARowStepIsPaintedOnce) {
    constexpr qint64 kFrame = 8;  // milliseconds
    int painted = 0;
    class Counter : public QObject {
    public:
        explicit Counter(int& count) : count_(count) {}
        bool eventFilter(QObject*, QEvent* event) override {
            count_ += event->type() == QEvent::Paint;
            return false;
        }

    private:
        int& count_;
    } counter(painted);
    widget.installEventFilter(&counter);
    QElapsedTimer time;
    time.start();
    Bar().setValue(row);
    Settle();
    EXPECT_GE(painted, 1);
    EXPECT_LE(painted, 2 + time.elapsed() / kFrame);  // one for a frame that had begun before
}

}  // namespace
}  // namespace vorlane

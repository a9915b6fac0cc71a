// The wait window during long work on a show.
#include "editor/show.h"
#include "tests/editor/windowfixture.h"

namespace vorlane::editor {
namespace {

class WaitNoticeTest : public WindowFixture {
protected:
    WaitNoticeTest() {
        EXPECT_TRUE(OpenPictures("ab"));
        QObject::connect(&window_->slides(), &Show::longWorkBegins, window_.get(), [this] {
            ++works_;
            open_ = window_->sheet().IsWaitOpen();
        });
    }
    void Append(int count) {
        for (int i = 0; i < count; ++i)
            window_->slides().append({QStringLiteral("/nowhere/%1.jpg").arg(i), QString::number(i)});
    }

    int works_ = 0;
    bool open_ = false;
};

TEST_F(WaitNoticeTest, ASortOfManyItemsHasTheUserWait) {
    Append(100000);
    window_->slides().sort({SortBy::Hand, false});
    EXPECT_EQ(works_, 0);
    window_->slides().sort({SortBy::Name, true});
    EXPECT_EQ(works_, 1);
    EXPECT_TRUE(open_);
    EXPECT_FALSE(window_->sheet().IsWaitOpen());
    window_->slides().undo();
    EXPECT_EQ(works_, 2);
    EXPECT_FALSE(window_->sheet().IsWaitOpen());
}

TEST_F(WaitNoticeTest, AFewItemsAreSortedWithout) {
    Action("Ordre décroissant").trigger();
    EXPECT_EQ(Letters(), "ba");
    EXPECT_EQ(works_, 0);
}

}  // namespace
}  // namespace vorlane::editor

#include "widgets/vorlanelist.h"

#include "widgets/vorlanewidget.h"

#include <gtest/gtest.h>

namespace vorlane {
namespace {

class VorlaneListTest : public testing::Test {
protected:
    VorlaneListTest() {
        QObject::connect(&widget, &VorlaneWidget::OnError, &widget,
                         [this](int, const QString& description) { errors.push_back(description); });
        widget.resize(500, 300);
        for (const char* name : {"/a", "/b", "/c", "/d"}) list.AddItem(QStringLiteral("\t") + name, next++);
        widget.show();
        widget.StartLecture();
    }
    QString Texts() const {
        QString texts;
        for (int i = 0; i < list.ListCount(); ++i) texts += list.List(i).section('/', 1);
        return texts;
    }

    VorlaneWidget widget;
    VorlaneList list = widget.Liste();
    int next = 10;
    QStringList errors;
};

TEST_F(VorlaneListTest, AddsAtTheEndAndInFrontOfAnItem) {
    EXPECT_TRUE(list.AddItem("x\t/x", 77, 1));
    EXPECT_EQ(Texts(), "axbcd");
    EXPECT_EQ(list.List(1), "x\t/x");
    EXPECT_EQ(list.ItemData(1), 77);
    EXPECT_EQ(list.ItemData(2), 11);
    EXPECT_EQ(widget.ImageFullPath(1), "/x");
}

TEST_F(VorlaneListTest, GivesAnItemAnotherText) {
    list.SetSelected(1, true);
    list.SetList(1, "x\t/x");
    EXPECT_EQ(Texts(), "axcd");
    EXPECT_EQ(list.ItemData(1), 11);
    EXPECT_TRUE(list.Selected(1));
    list.SetList(9, "x\t/y");
    EXPECT_EQ(Texts(), "axcd");
}

TEST_F(VorlaneListTest, RemovesAndClears) {
    list.RemoveItem(2);
    EXPECT_EQ(Texts(), "abd");
    list.Clear();
    EXPECT_EQ(list.ListCount(), 0);
}

TEST_F(VorlaneListTest, TellsWhatIsSelected) {
    list.SetSelected(3, true);
    list.SetSelected(1, true);
    EXPECT_EQ(list.SelItems(), (std::vector{1, 3}));
    EXPECT_TRUE(list.Selected(3));
    EXPECT_FALSE(list.Selected(0));
}

TEST_F(VorlaneListTest, AnIndexOutsideChangesNothing) {
    for (const int index : {-1, 4, 1000}) {
        EXPECT_EQ(list.List(index), "");
        EXPECT_EQ(list.ItemData(index), 0);
        EXPECT_FALSE(list.Selected(index));
        list.SetSelected(index, true);
        list.RemoveItem(index);
    }
    EXPECT_FALSE(list.AddItem("/x", 1, 5));
    EXPECT_FALSE(list.AddItem("/x", 1, -2));
    EXPECT_EQ(Texts(), "abcd");
    EXPECT_TRUE(list.SelItems().empty());
    VorlaneList none(nullptr);
    EXPECT_FALSE(none.AddItem("/x", 1));
    EXPECT_EQ(none.ListCount(), 0);
}

TEST_F(VorlaneListTest, TheSheetTellsWhichItemASlideShowsAndWhere) {
    EXPECT_EQ(widget.Value(0), 0);
    EXPECT_EQ(widget.Value(3), 3);
    EXPECT_EQ(widget.DiapoRect(0).width(), widget.DiapoWidth());
    EXPECT_GT(widget.DiapoRect(1).left(), widget.DiapoRect(0).right());
    EXPECT_EQ(widget.Value(99), -1);
    EXPECT_EQ(errors.size(), 1);
}

TEST_F(VorlaneListTest, ItemsAreRemovedBySlideAndBySelection) {
    QStringList removed;
    QObject::connect(&widget, &VorlaneWidget::OnRemoved,
                     [&](int index, int* key) { removed.push_back(QStringLiteral("%1:%2").arg(index).arg(*key)); });
    int refreshes = 0;
    QObject::connect(&widget, &VorlaneWidget::OnTLRefresh, [&] { ++refreshes; });
    widget.Remove(1);
    EXPECT_EQ(Texts(), "acd");
    list.SetSelected(0, true);
    list.SetSelected(2, true);
    widget.RemoveAllSelected();
    EXPECT_EQ(Texts(), "c");
    EXPECT_EQ(removed, QStringList({"1:11", "-1:13", "-1:10"}));
    EXPECT_EQ(refreshes, 2);
    EXPECT_TRUE(errors.isEmpty());
}

}  // namespace
}  // namespace vorlane

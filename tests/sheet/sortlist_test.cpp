#include "plainlist.h"
#include "platform/memorylistbox.h"
#include "sheet/itemtext.h"
#include "sheet/listsort.h"

#include <gtest/gtest.h>
#include <random>

namespace vorlane {
namespace {

constexpr std::string_view kData(&kSepSortWithData, 1);
constexpr std::string_view kArg(&kSepSortArg, 1);

using plain::PlainList;
using plain::Row;
using Rows = std::vector<Row>;

Rows Items(const ListBox& list) {
    Rows rows;
    for (int32_t i = 0; i < list.ListCount(); ++i) rows.push_back({list.List(i), list.Selected(i), list.ItemData(i)});
    return rows;
}

void Fill(ListBox& list, const Rows& rows) {
    for (const Row& row : rows) {
        list.AddItem(row.Text);
        list.SetSelected(list.NewIndex(), row.Selected);
        list.SetItemData(list.NewIndex(), row.ItemData);
    }
}

Rows RandomRows(std::mt19937& random, size_t count) {
    Rows rows;
    for (size_t i = 0; i < count; ++i) {
        const std::string key = random() % 3 == 0 ? std::to_string(random() % 20) : std::string(random() % 9, 'a');
        const std::string text = key + '\v' + std::to_string(random() % 500) + "é" + (random() % 40 == 0 ? "" : "\t/f");
        rows.push_back({text, random() % 4 == 0, static_cast<int32_t>(random())});
    }
    return rows;
}

template <class List>
void ExpectAsPlain(List& list, const Rows& rows, bool ascending, uint8_t criterion) {
    plain::Sort expected{rows, static_cast<int32_t>(rows.size() / 2)};
    int32_t anchor = expected.Anchor;
    Fill(list, rows);
    SortList(list, ascending, criterion, kData, anchor);
    expected.Run(ascending, criterion, kData, kArg);
    ASSERT_EQ(Items(list), expected.Rows);
    ASSERT_EQ(anchor, expected.Anchor);
}

TEST(SortList, LeavesTheLibrarysOwnListAsThePlainSortDoes) {
    std::mt19937 random(1);
    for (int round = 0; round < 200; ++round) {
        MemoryListBox list(1);
        ExpectAsPlain(list, RandomRows(random, random() % 300), round % 2 == 0, static_cast<uint8_t>(random() % 4));
        if (HasFatalFailure()) return;
    }
    MemoryListBox list(1);
    ExpectAsPlain(list, RandomRows(random, 5000), true, 2);
}

TEST(SortList, LeavesAHostsListAsThePlainSortDoes) {
    std::mt19937 random(2);
    for (int round = 0; round < 100; ++round) {
        PlainList list;
        ExpectAsPlain(list, RandomRows(random, random() % 300), round % 2 == 0, static_cast<uint8_t>(random() % 4));
        if (HasFatalFailure()) return;
    }
}

TEST(SortList, SelectionsAndKeysMoveWithTheirItems) {
    MemoryListBox list(1);
    Fill(list, {{"c\t/1", true, 10}, {"b\t/2", false, 20}, {"a\t/3", true, 30}});
    int32_t anchor = 0;
    SortList(list, true, 1, kData, anchor);
    EXPECT_EQ(Items(list), (Rows{{"a\t/3", true, 30}, {"b\t/2", false, 20}, {"c\t/1", true, 10}}));
    EXPECT_EQ(list.SelCount(), 2);
    EXPECT_EQ(list.FindItemData(10), 2);
    EXPECT_EQ(anchor, 2);
}

TEST(SortList, EmptiesAndRefillsSoThatNoItemIsTheCurrentOne) {
    MemoryListBox list(1);
    Fill(list, {{"a\t/1"}, {"b\t/2"}});
    list.SetListIndex(1);
    list.AddItem("0\t/3", 0);
    int32_t anchor = -1;
    SortList(list, true, 1, kData, anchor);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(list.NewIndex(), 2);
}

TEST(SortList, AListOfOneItemIsLeftAsItIs) {
    PlainList list;
    Fill(list, {{"a\t/1", true, 5}});
    int32_t anchor = 0;
    SortList(list, true, 1, kData, anchor);
    EXPECT_EQ(list.Clears, 0);
    EXPECT_EQ(list.Reads, 0);
    EXPECT_EQ(Items(list), (Rows{{"a\t/1", true, 5}}));
}

TEST(SortList, AHostsListIsReadOnceAndRewrittenOnceAlsoWhenNothingMoves) {
    PlainList list;
    Fill(list, {{"a\t/1"}, {"b\t/2"}, {"c\t/3"}});
    int32_t anchor = -1;
    SortList(list, true, 1, kData, anchor);
    EXPECT_EQ(list.Reads, 3);
    EXPECT_EQ(list.Clears, 1);
    EXPECT_EQ(list.Items.size(), 3U);
}

TEST(SortList, AHostsListTellsWhereItPutsAnItem) {
    PlainList list;
    Fill(list, {{"c\t", true, 10}, {"b\t", false, 20}, {"a\t", true, 30}});
    list.AddsAtFront = true;
    int32_t anchor = -1;
    SortList(list, true, 1, kData, anchor);
    EXPECT_EQ(Items(list), (Rows{{"c\t", true, 10}, {"b\t", false, 20}, {"a\t", true, 30}}));
}

TEST(SortList, WhatAHostsListCannotTellIsEmpty) {
    PlainList list;
    Fill(list, {{"c\t", true, 10}, {"b\t", true, 20}, {"a\t", true, 30}});
    list.Unreadable = {1};
    int32_t anchor = 0;
    SortList(list, true, 2, kData, anchor);
    list.Unreadable.clear();
    EXPECT_EQ(Items(list), (Rows{{"c\t", true, 10}, {"", false, 0}, {"a\t", true, 30}}));
}

TEST(SortList, AnItemThatAHostsListRefusesIsLeftOut) {
    PlainList list;
    Fill(list, {{"c\t", false, 10}, {"b\t", true, 20}, {"a\t", false, 30}});
    list.Unwanted = {"b\t"};
    int32_t anchor = 0;
    SortList(list, true, 1, kData, anchor);
    // Its selection and key go to the item added last, for that is still the newest one.
    EXPECT_EQ(Items(list), (Rows{{"a\t", true, 20}, {"c\t", false, 10}}));
    EXPECT_EQ(anchor, 2);
}

TEST(SortList, AHostsListThatCannotBeEmptiedKeepsItsOrder) {
    PlainList list;
    const Rows rows{{"c\t", true, 10}, {"b\t", false, 20}, {"a\t", true, 30}};
    Fill(list, rows);
    list.ClearsHow = PlainList::Clearing::Fails;
    int32_t anchor = 0;
    SortList(list, true, 1, kData, anchor);
    EXPECT_EQ(Items(list), rows);
    EXPECT_EQ(anchor, 0);
}

TEST(SortList, AHostsListThatFailsWhileItIsEmptiedLosesNothing) {
    PlainList list;
    Fill(list, {{"c\t", true, 10}, {"b\t", false, 20}, {"a\t", true, 30}});
    list.ClearsHow = PlainList::Clearing::FailsHalfway;
    int32_t anchor = 0;
    SortList(list, true, 1, kData, anchor);
    EXPECT_EQ(Items(list), (Rows{{"c\t", true, 10}, {"a\t", true, 30}, {"b\t", false, 20}, {"c\t", true, 10}}));
}

TEST(SortList, AListThatFailsAltogetherIsNoFailure) {
    PlainList list;
    list.Dead = true;
    int32_t anchor = 7;
    EXPECT_NO_THROW(SortList(list, true, 1, kData, anchor));
    EXPECT_EQ(anchor, 7);
    EXPECT_EQ(list.Clears, 0);
}

}  // namespace
}  // namespace vorlane

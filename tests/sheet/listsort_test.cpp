#include "sheet/listsort.h"

#include "plainsort.h"
#include "sheet/itemtext.h"

#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <sstream>

namespace vorlane {
namespace {

constexpr std::string_view kData(&kSepSortWithData, 1);
constexpr std::string_view kArg(&kSepSortArg, 1);

using Texts = std::vector<std::string>;

KeyPlace Criterion(uint8_t n) {
    return {n, kData, kArg};
}

SortedOrder Sorted(const Texts& texts, bool ascending, uint8_t criterion, int32_t anchor = -1) {
    const std::vector<std::string_view> views(texts.begin(), texts.end());
    return SortOrder(views, ascending, Criterion(criterion), anchor);
}

// Texts in their new order, joined.
std::string Joined(const Texts& texts, const SortedOrder& order) {
    std::ostringstream joined;
    for (const int32_t row : order.Rows) joined << texts[static_cast<size_t>(row)] << '|';
    return joined.str();
}

Texts WithNames(const Texts& keys) {
    Texts texts;
    for (const std::string& key : keys) texts.push_back(key + kSepSortWithData + "/f");
    return texts;
}

std::string Ascending(const Texts& keys) {
    const SortedOrder order = Sorted(WithNames(keys), true, 1);
    return Joined(keys, order);
}

// The plain sort's rows, by the row that ends at each place, which the item data tells.
void ExpectAsPlain(const Texts& texts, bool ascending, uint8_t criterion, int32_t anchor) {
    plain::Sort expected;
    expected.Anchor = anchor;
    for (const std::string& text : texts) {
        expected.Rows.push_back({text, false, static_cast<int32_t>(expected.Rows.size())});
    }
    expected.Run(ascending, criterion, kData, kArg);
    const SortedOrder order = Sorted(texts, ascending, criterion, anchor);
    std::vector<int32_t> rows;
    for (const plain::Row& row : expected.Rows) rows.push_back(row.ItemData);
    ASSERT_EQ(order.Rows, rows) << texts.size() << " rows, criterion " << int{criterion};
    ASSERT_EQ(order.Anchor, expected.Anchor);
}

// Makes lists of a kind.
class Lists {
public:
    explicit Lists(unsigned seed) : random_(seed) {}

    size_t UpTo(size_t n) { return std::uniform_int_distribution<size_t>(0, n)(random_); }
    bool OneIn(size_t n) { return UpTo(n - 1) == 0; }
    const std::string& AnyOf(const Texts& texts) { return texts[UpTo(texts.size() - 1)]; }

    Texts Make(size_t count, const std::function<std::string()>& text) {
        Texts texts;
        for (size_t i = 0; i < count; ++i) texts.push_back(text());
        return texts;
    }

    std::string Word(size_t longest, const std::string& letters) {
        std::string word;
        for (size_t n = UpTo(longest); n > 0; --n) word += letters[UpTo(letters.size() - 1)];
        return word;
    }
    std::string Number() { return std::to_string(static_cast<int64_t>(UpTo(40)) - 20); }
    std::string OddNumber() {
        static const Texts odd{"1.5", "2.5", " 3 ", "+3",         "-0",         "1e1",         "10",     "0.5e1",
                               "5.",  ".5",  "1,5", "2147483647", "2147483648", "-2147483649", "9e9999", "1e-9999"};
        return AnyOf(odd);
    }
    std::string OddText() {
        static const Texts odd{"",
                               "a",
                               "A",
                               "b",
                               "É",
                               "é",
                               "e",
                               "img_1",
                               "IMG_1",
                               "img_10",
                               "img_1 ",
                               "\xFF\xFE",
                               "ÿ",
                               "\u20AC",
                               "12a",
                               "abcdef",
                               "abcdefg",
                               "abcdefgh",
                               "abcdefghijklmn",
                               "abcdefghijklmno",
                               "7 mars",
                               "~",
                               "a\x01",
                               std::string("a\0", 2),
                               std::string("a\0b", 3)};
        return AnyOf(odd);
    }
    std::string Mixed() { return OneIn(3) ? Number() : OneIn(2) ? OddNumber() : OddText(); }

private:
    std::mt19937 random_;
};

struct Kind {
    const char* Name;
    std::function<std::string(Lists&)> Text;
};

const Kind kKinds[] = {
    {"names", [](Lists& l) { return l.Word(30, "abcABC_.019") + "\t/f"; }},
    {"few keys", [](Lists& l) { return l.Word(2, "ab") + "\t/f"; }},
    {"two keys", [](Lists& l) { return l.Word(1, "x") + "\t/f"; }},
    {"long keys", [](Lists& l) { return std::string(7 * l.UpTo(2) + 20, 'p') + l.Word(3, "pq") + "\t/f"; }},
    {"numbers", [](Lists& l) { return l.Number() + "\t/f"; }},
    {"mixed", [](Lists& l) { return l.Mixed() + "\t/f"; }},
    {"fields", [](Lists& l) { return l.Mixed() + '\v' + l.Mixed() + '\v' + l.Mixed() + "\t/f"; }},
    {"fewer fields", [](Lists& l) { return l.Mixed() + (l.OneIn(2) ? "" : '\v' + l.Mixed()) + "\t/f\t/g"; }},
    {"some without", [](Lists& l) { return l.Mixed() + (l.OneIn(9) ? "" : "\t/f"); }},
    {"most without", [](Lists& l) { return l.Mixed() + '\v' + l.Mixed() + (l.OneIn(3) ? "\t/f" : ""); }},
};

TEST(SortOrder, IsThatOfThePlainSortOnRandomLists) {
    Lists lists(1);
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.Name);
        for (int round = 0; round < 300; ++round) {
            const size_t count = lists.OneIn(3) ? lists.UpTo(12) : lists.UpTo(300);
            const Texts texts = lists.Make(count, [&] { return kind.Text(lists); });
            const auto criterion = static_cast<uint8_t>(lists.OneIn(2) ? 1 : lists.UpTo(4));
            const auto anchor = static_cast<int32_t>(lists.UpTo(count + 1)) - 1;
            ExpectAsPlain(texts, lists.OneIn(2), criterion, anchor);
            if (HasFatalFailure()) return;
        }
    }
}

TEST(SortOrder, IsThatOfThePlainSortOnLongLists) {
    Lists lists(2);
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.Name);
        for (const size_t count : {2048U, 3001U}) {
            const Texts texts = lists.Make(count, [&] { return kind.Text(lists); });
            ExpectAsPlain(texts, lists.OneIn(2), 1, static_cast<int32_t>(lists.UpTo(count - 1)));
            if (HasFatalFailure()) return;
        }
    }
}

TEST(SortOrder, IsThatOfThePlainSortWhereAFewKeysAreEqual) {
    Lists lists(3);
    for (int round = 0; round < 200; ++round) {
        const size_t count = 2 + lists.UpTo(300);
        Texts texts = lists.Make(count, [&] { return lists.Word(30, "abcdefgh") + "\t/f"; });
        for (int i = 0; i < 3; ++i) texts[lists.UpTo(count - 1)] = lists.AnyOf(texts);
        ExpectAsPlain(texts, lists.OneIn(2), 1, 0);
        if (HasFatalFailure()) return;
    }
}

TEST(SortOrder, ANumberIsBelowAnyText) {
    EXPECT_EQ(Ascending({"!", "9", "", "10", "-1"}), "-1|9|10||!|");
}

TEST(SortOrder, NumbersOrderAsNumbersAndAreEqualWhenRoundedSo) {
    EXPECT_EQ(Ascending({"10", "9", "1e1", " 8 "}), " 8 |9|10|1e1|");
    EXPECT_EQ(Ascending({"2.5", "2", "1.5"}), "2.5|2|1.5|");
}

TEST(SortOrder, ANumberThatOverflowsIsAText) {
    EXPECT_EQ(Ascending({"2147483648", "3", "a", "2147483647"}), "3|2147483647|2147483648|a|");
}

TEST(SortOrder, TextsOrderByCharacterCodeInSmallLetters) {
    EXPECT_EQ(Ascending({"é", "Z", "_", "a", "É1"}), "_|a|Z|é|É1|");
}

TEST(SortOrder, AShorterTextIsBelowOneThatGoesOn) {
    const std::string zero("abcdefg\0", 8);
    EXPECT_EQ(Ascending({zero, "abcdefgh", "abcdefg", "abcdef"}), "abcdef|abcdefg|" + zero + "|abcdefgh|");
}

TEST(SortOrder, EqualKeysMayChangePlacesAcrossAGap) {
    // Gap 2 takes the first b behind the second one.
    EXPECT_EQ(Ascending({"b", "B", "a", "c"}), "a|B|b|c|");
}

TEST(SortOrder, EqualKeysAloneAreNeverSwapped) {
    EXPECT_EQ(Ascending({"a", "A", "a ", "A "}), "a|A|a |A |");
}

TEST(SortOrder, ACriterionBeyondTheFieldsSwapsNothing) {
    const Texts texts = WithNames({"c\vz", "b\vy", "a\vx"});
    for (const int criterion : {0, 3, 255}) {
        const SortedOrder order = Sorted(texts, true, static_cast<uint8_t>(criterion), 1);
        EXPECT_EQ(order.Rows, (std::vector<int32_t>{0, 1, 2}));
        EXPECT_EQ(order.Anchor, 1);
    }
}

TEST(SortOrder, AnEmptyFieldIsBelowAnyOtherText) {
    const Texts texts = WithNames({"1\vz", "2\v", "3\va", "4\v5"});
    EXPECT_EQ(Sorted(texts, true, 2).Rows, (std::vector<int32_t>{3, 1, 2, 0}));
}

TEST(SortOrder, OnlyWhatStandsInFrontOfTheFirstSeparatorHoldsCriteria) {
    const Texts texts{"b\t/x\vz\t", "a\t/y\va\t"};
    EXPECT_EQ(Sorted(texts, true, 1).Rows, (std::vector<int32_t>{1, 0}));
    EXPECT_EQ(Sorted(texts, true, 2).Rows, (std::vector<int32_t>{0, 1}));
}

TEST(SortOrder, DescendingIsTheOtherWayAndKeepsEqualKeysUnswapped) {
    const Texts keys{"a", "b", "A", "B"};
    EXPECT_EQ(Joined(keys, Sorted(WithNames(keys), false, 1)), "b|B|a|A|");
}

TEST(SortOrder, TheAnchorFollowsItsRow) {
    const Texts texts = WithNames({"d", "c", "b", "a"});
    EXPECT_EQ(Sorted(texts, true, 1, 0).Anchor, 3);
    EXPECT_EQ(Sorted(texts, true, 1, 2).Anchor, 1);
}

TEST(SortOrder, AnAnchorThatNamesNoRowStays) {
    const Texts texts = WithNames({"b", "a"});
    EXPECT_EQ(Sorted(texts, true, 1, -1).Anchor, -1);
    EXPECT_EQ(Sorted(texts, true, 1, 2).Anchor, 2);
}

TEST(SortOrder, LessThanTwoRowsStayAsTheyAre) {
    EXPECT_TRUE(Sorted({}, true, 1).Rows.empty());
    EXPECT_EQ(Sorted({"no separator"}, true, 1).Rows, std::vector<int32_t>{0});
}

TEST(SortOrder, ARowWithoutSeparatorIsComparedWithThePreviousKeyOfItsSide) {
    // b and a are swapped; then the row without a key, below b, is compared with a, the last key of its side.
    EXPECT_EQ(Joined({"b", "a", "none"}, Sorted({"b\t", "a\t", "none"}, true, 1)), "a|none|b|");
    ExpectAsPlain({"b\t", "a\t", "none"}, true, 1, 2);
    // The first comparison has no previous key: the empty text, which is above a number and below any other text.
    EXPECT_EQ(Sorted({"none", "7\t"}, true, 1).Rows, (std::vector<int32_t>{1, 0}));
    EXPECT_EQ(Sorted({"none", "a\t"}, true, 1).Rows, (std::vector<int32_t>{0, 1}));
}

TEST(SortOrder, RowsWithoutSeparatorStayWhenNoRowHasOne) {
    EXPECT_EQ(Sorted({"c", "b", "a"}, true, 1).Rows, (std::vector<int32_t>{0, 1, 2}));
}

TEST(SortOrder, ARowWithoutSeparatorHasAnEmptyFurtherCriterion) {
    EXPECT_EQ(Sorted({"b\vz\t", "a\vy", "c\v5\t"}, true, 2).Rows, (std::vector<int32_t>{2, 1, 0}));
}

TEST(SortOrder, AnEmptySeparatorStandsNowhere) {
    const std::vector<std::string_view> texts{"b\t", "a\t"};
    EXPECT_EQ(SortOrder(texts, true, {1, "", kArg}, -1).Rows, (std::vector<int32_t>{0, 1}));
}

TEST(SortOrder, SeparatorsMayBeLonger) {
    const std::vector<std::string_view> texts{"1--b::x", "2--a::y"};
    EXPECT_EQ(SortOrder(texts, true, {2, "::", "--"}, -1).Rows, (std::vector<int32_t>{1, 0}));
}

}  // namespace
}  // namespace vorlane

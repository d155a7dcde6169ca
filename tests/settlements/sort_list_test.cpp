#include "settlements/sort_list.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <string>
#include <vector>

using namespace wayscribe;

namespace {

// A one-column list whose row references index a vector of texts, counting
// how often a cell text is asked for.
struct TextList {
    std::vector<std::string> texts;
    int asked = 0;
    ReportTable table;

    explicit TextList(std::vector<std::string> cells, SortKind kind = SortKind::Number)
        : texts(std::move(cells)), table({{"Value", 600, ColumnAlignment::Right, kind}},
                                         [this](std::uint32_t ref, int, std::string &out) {
                                             ++asked;
                                             out += texts[ref];
                                         })
    {
        for (std::uint32_t i = 0; i < texts.size(); ++i)
            table.addRow(i);
    }

    std::vector<std::string> shown() const
    {
        std::vector<std::string> cells;
        for (std::size_t row = 0; row < table.rowCount(); ++row)
            cells.push_back(table.cellText(row, 1));
        return cells;
    }
};

using Texts = std::vector<std::string>;

} // namespace

TEST(SortKeys, NumbersBecomeFixedWidthTextsInNumericOrder)
{
    EXPECT_EQ(sortKey("1234.5", SortKind::Number), "00000000000000001234.5000000000");
    EXPECT_EQ(sortKey("-5", SortKind::Number), "&99999999999999999994.9999999999");
    EXPECT_EQ(sortKey(" 1e3 ", SortKind::Number), sortKey("1000", SortKind::Number));
    EXPECT_EQ(sortKey("+.5", SortKind::Number), sortKey("0.5", SortKind::Number));
    EXPECT_EQ(sortKey("-0", SortKind::Number), sortKey("0", SortKind::Number))
        << "minus zero is not negative";
    EXPECT_EQ(Invert_Digits("a-12.9"), "a 87.0");
}

TEST(SortKeys, TextsThatAreNotWholeNumbersHaveNoKey)
{
    for (const char *text : {"", "   ", "abc", "1,000", "12abc", "-", ".", "1e", "1e999", "1 2", "\t5"})
        EXPECT_EQ(sortKey(text, SortKind::Number), "") << '"' << text << '"';
}

TEST(SortList, DescribedOrders)
{
    constexpr SortKind number = SortKind::Number, text = SortKind::Text;
    struct Case {
        SortKind kind;
        bool ascending;
        Texts texts, expected;
    };
    const Texts words = {"cherry", "b", "apple", "Banana", "B", "\xC9t\xE9", "\xE9t\xE9"};
    const Case cases[] = {
        {number, true, {"10", "9", "100"}, {"9", "10", "100"}},
        {text, true, {"10", "9", "100"}, {"10", "100", "9"}},
        // Non-numbers first, then negatives, then the rest.
        {number, true, {"12", "abc", "-3", "0"}, {"abc", "-3", "0", "12"}},
        {number, false, {"12", "abc", "-3", "0"}, {"12", "0", "-3", "abc"}},
        {number, true, {"-10", "-9", "-100", "-9.5"}, {"-100", "-10", "-9.5", "-9"}},
        {number, true, {"0.5", "1.75", "-0.25", "0.25", "-0.5"}, {"-0.5", "-0.25", "0.25", "0.5", "1.75"}},
        // Ten decimals are kept: a difference in the eleventh is a tie, and
        // ties keep their order.
        {number, true, {"0.00000000001", "0", "0.0000000001"}, {"0.00000000001", "0", "0.0000000001"}},
        // Twenty integer digits: 1e20 needs 21 and then sorts by its first digit.
        {number, true, {"9e19", "1e20", "12345678901234567890"}, {"1e20", "12345678901234567890", "9e19"}},
        // Text order ignores case, and equal keys keep their order both ways.
        {text, true, words, {"apple", "b", "B", "Banana", "cherry", "\xC9t\xE9", "\xE9t\xE9"}},
        {text, false, words, {"\xC9t\xE9", "\xE9t\xE9", "cherry", "Banana", "b", "B", "apple"}},
    };
    for (const Case &c : cases) {
        TextList list(c.texts, c.kind);
        Sort_List(list.table, 1, c.kind, c.ascending);
        EXPECT_EQ(list.shown(), c.expected) << c.texts[0] << (c.ascending ? " ascending" : " descending");
    }
}

TEST(SortList, EachKeyIsComputedOncePerSort)
{
    std::vector<std::string> texts;
    for (int i = 0; i < 1000; ++i)
        texts.push_back(std::to_string((i * 7919) % 1000));
    TextList list(texts);
    list.asked = 0;
    Sort_List(list.table, 1, SortKind::Number, true);
    EXPECT_EQ(list.asked, 1000);
    for (std::size_t row = 1; row < list.table.rowCount(); ++row)
        ASSERT_LT(std::stoi(list.table.cellText(row - 1, 1)), std::stoi(list.table.cellText(row, 1)));
}

TEST(SortList, TagsStayWithTheirCells)
{
    TextList list({"12", "abc", "-3", "0"});
    list.table.setTag(0, 1, "twelve");
    list.table.setTag(2, 1, "minus three");
    Sort_List(list.table, 1, SortKind::Number, true);
    EXPECT_EQ(list.shown(), (Texts{"abc", "-3", "0", "12"}));
    EXPECT_EQ(list.table.tag(0, 1), "");
    EXPECT_EQ(list.table.tag(1, 1), "minus three");
    EXPECT_EQ(list.table.tag(2, 1), "");
    EXPECT_EQ(list.table.tag(3, 1), "twelve");
}

TEST(SortList, AColumnOutOfRangeChangesNothing)
{
    TextList list({"2", "1"});
    EXPECT_TRUE(Sort_List(list.table, 0, SortKind::Number, true).empty());
    EXPECT_TRUE(Sort_List(list.table, 2, SortKind::Number, true).empty());
    EXPECT_TRUE(sortByHeaderClick(list.table, 2).empty());
    EXPECT_EQ(list.shown(), (Texts{"2", "1"}));
    EXPECT_FALSE(list.table.sortOrder());
}

TEST(HeaderClick, EachColumnKeepsItsOwnDirection)
{
    // Column 1 as text, column 2 as a number of the same cell.
    const std::vector<std::string> names = {"b", "c", "a"};
    ReportTable table({{"Name", 2700, ColumnAlignment::Left, SortKind::Text},
                       {"Number", 800, ColumnAlignment::Right, SortKind::Number}},
                      [&](std::uint32_t ref, int column, std::string &out) {
                          out += column == 1 ? names[ref] : std::to_string(10 - ref);
                      });
    for (std::uint32_t i = 0; i < names.size(); ++i)
        table.addRow(i);
    auto firstColumn = [&] {
        std::string cells;
        for (std::size_t row = 0; row < table.rowCount(); ++row)
            cells += table.cellText(row, 1);
        return cells;
    };

    sortByHeaderClick(table, 1);
    EXPECT_EQ(firstColumn(), "abc");
    sortByHeaderClick(table, 1);
    EXPECT_EQ(firstColumn(), "cba");
    sortByHeaderClick(table, 2); // numbers 8, 9, 10
    EXPECT_EQ(firstColumn(), "acb");
    EXPECT_TRUE(table.directionFlag(2));
    EXPECT_FALSE(table.directionFlag(1)) << "another column's click leaves this flag alone";
    sortByHeaderClick(table, 1);
    EXPECT_EQ(firstColumn(), "abc");
    EXPECT_TRUE(table.directionFlag(1));
}

TEST(SortedList, AddedRowsArePlacedInOrderUntilSortingStops)
{
    TextList list({"10", "9", "100"});
    list.table.setTag(2, 1, "hundred");
    Sort_List(list.table, 1, SortKind::Number, true);
    list.texts.push_back("50");
    EXPECT_EQ(list.table.addRow(3), 2u);
    list.texts.push_back("10.0"); // equal to "10": goes after it
    EXPECT_EQ(list.table.addRow(4), 2u);
    EXPECT_EQ(list.shown(), (Texts{"9", "10", "10.0", "50", "100"}));
    EXPECT_EQ(list.table.tag(4, 1), "hundred");

    Sort_List(list.table, 1, SortKind::Number, false);
    list.texts.push_back("20");
    list.table.addRow(5);
    EXPECT_EQ(list.shown(), (Texts{"100", "50", "20", "10", "10.0", "9"}));

    list.table.stopSorting();
    list.texts.push_back("1000");
    EXPECT_EQ(list.table.addRow(6), 6u);

    list.table.clear();
    EXPECT_EQ(list.table.rowCount(), 0u);
    EXPECT_TRUE(list.table.sortOrder() == std::nullopt);
}

// The faithful simple reference: a stable sort that compares the keys of
// the two cells at every comparison.
TEST(SortList, MatchesAStableSortOfTheKeys)
{
    std::uint32_t seed = 12345;
    auto next = [&seed](std::uint32_t n) {
        seed = seed * 1664525u + 1013904223u;
        return (seed >> 8) % n;
    };
    const std::string pieces[] = {
        "0", "7", "-", ".", "e", " ", "a", "A", "\xE9", "Long shared beginning ", std::string(1, '\0')};
    std::vector<std::string> texts;
    for (int i = 0; i < 3000; ++i) {
        std::string text;
        for (std::uint32_t n = next(12); n > 0; --n)
            text += pieces[next(std::size(pieces))];
        texts.push_back(text);
    }
    for (SortKind kind : {SortKind::Text, SortKind::Number})
        for (bool ascending : {true, false}) {
            TextList list(texts, kind);
            std::vector<std::string> expected = texts;
            std::stable_sort(expected.begin(), expected.end(),
                             [&](const std::string &a, const std::string &b) {
                                 return ascending ? sortKey(a, kind) < sortKey(b, kind)
                                                  : sortKey(b, kind) < sortKey(a, kind);
                             });
            Sort_List(list.table, 1, kind, ascending);
            ASSERT_EQ(list.shown(), expected)
                << "kind " << static_cast<int>(kind) << ", ascending " << ascending;
        }
}

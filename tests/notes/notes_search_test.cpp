#include "model/world.h"
#include "notes/notes_search.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;

namespace {

using Strings = std::vector<std::string>;

class NotesSearch : public ::testing::Test {
protected:
    std::unique_ptr<World> world = std::make_unique<World>();
    ReportTable table = notesListTable(*world);

    void note(int x, int y, const std::string &text) { world->sector(x, y).note = text; }

    Strings fill(const NotesFilter &filter)
    {
        const bool rows = fillNotesList(table, *world, filter);
        EXPECT_EQ(rows, table.rowCount() > 0);
        Strings out;
        for (std::size_t r = 0; r < table.rowCount(); ++r)
            out.push_back(table.cellText(r, 1));
        return out;
    }
    Strings search(const std::string &text, PlusMeans plus = PlusMeans::And)
    {
        return fill({false, true, text, plus});
    }
};

} // namespace

TEST(SearchTerms, SplitAtEveryPlusTrimmedAndInLowerCase)
{
    EXPECT_EQ(searchTerms("Dungeon + Level + 10"), Strings({"dungeon", "level", "10"}));
    EXPECT_EQ(searchTerms("Old Mine"), Strings{}); // searched for as a whole
    EXPECT_EQ(searchTerms("a +  + B"), Strings({"a", "", "b"}));
    EXPECT_EQ(searchTerms("a+"), Strings({"a", ""}));
    EXPECT_EQ(searchTerms("+"), Strings({"", ""}));
    // Only blanks are trimmed; Windows-1252 letters fold too.
    EXPECT_EQ(searchTerms("\tX\t+ \xC9t\xC9 "), Strings({"\tx\t", "\xE9t\xE9"}));
}

TEST_F(NotesSearch, RowsComeRowByRowWithTheNoteAsStoredAndBlankLedCoordinates)
{
    note(200, 1, "east");
    note(1, 2, "  second row\r\nline two  ");
    note(5, 1, "west");
    note(7, 7, ""); // no note
    EXPECT_EQ(fill({}), Strings({"west", "east", "  second row\r\nline two  "}));
    EXPECT_EQ(table.cellText(0, 2), " 5");
    EXPECT_EQ(table.cellText(0, 3), " 1");
    EXPECT_EQ(table.cellText(1, 2), " 200");
    EXPECT_EQ(noteRowX(table.reference(2)), 1);
    EXPECT_EQ(noteRowY(table.reference(2)), 2);
}

TEST_F(NotesSearch, SettlementFilterLeavesOutNotesOfSettlementSectors)
{
    note(1, 1, "town note");
    world->sector(1, 1).settlementName = "Oakvale";
    note(2, 1, "field note");
    EXPECT_EQ(fill({true, false, "", PlusMeans::And}), Strings({"field note"}));
    EXPECT_EQ(fill({false, false, "ignored without the check", PlusMeans::And}),
              Strings({"town note", "field note"}));
}

TEST_F(NotesSearch, PlainSearchIgnoresCaseAndAnEmptyTextListsEverything)
{
    note(1, 1, "DUNGEON: Old Mine. 3+ levels.");
    note(2, 1, "Caf\xC9 by the road");
    note(3, 1, "nothing");
    EXPECT_EQ(search("old MINE"), Strings({"DUNGEON: Old Mine. 3+ levels."}));
    EXPECT_EQ(search("caf\xE9"), Strings({"Caf\xC9 by the road"}));
    EXPECT_EQ(search(" old"), Strings({"DUNGEON: Old Mine. 3+ levels."})); // not trimmed
    EXPECT_EQ(search("").size(), 3u);
    EXPECT_TRUE(search("absent").empty());
    EXPECT_EQ(table.rowCount(), 0u);
}

TEST_F(NotesSearch, AndNeedsEveryTermOrListsOnceForEachTermFound)
{
    note(1, 1, "Dungeon level 10");
    note(2, 1, "dungeon entrance");
    note(3, 1, "level ground");
    EXPECT_EQ(search("Dungeon + Level + 10"), Strings({"Dungeon level 10"}));
    EXPECT_EQ(search("dungeon+level", PlusMeans::Or),
              Strings({"Dungeon level 10", "Dungeon level 10", "dungeon entrance", "level ground"}));
    // An empty term between two "+" is in every note.
    EXPECT_EQ(search("level +  + ground"), Strings({"level ground"}));
    EXPECT_EQ(search("xyz + +", PlusMeans::Or).size(), 6u);
}

TEST_F(NotesSearch, TwentyTermsAreSearchedTheTwentyFirstIsNot)
{
    std::string text = "a";
    for (int i = 2; i <= 20; ++i)
        text += "+a";
    note(1, 1, "a");
    EXPECT_EQ(search(text + "+zzz"), Strings({"a"}));
    EXPECT_EQ(search(text + "+zzz", PlusMeans::Or).size(), 20u);
}

#include "model/change_history.h"
#include "model/program_state.h"
#include "model/world.h"
#include "notes/note_edit.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;

namespace {

class NoteEditing : public ::testing::Test {
protected:
    std::unique_ptr<World> world = std::make_unique<World>();
    DocumentState document;
    ChangeHistory history{*world, document};
    std::string &note() { return world->sector(7, 150).note; }
};

} // namespace

TEST_F(NoteEditing, OpensOnTheTrimmedNoteAndKnowsDungeonNotesExactly)
{
    note() = "  DUNGEON: Crypt \r\n ";
    NoteEdit edit(*world, history, 7, 150);
    EXPECT_EQ(edit.caption(), "Notes for 7, 150:");
    EXPECT_EQ(edit.boxText(), "DUNGEON: Crypt \r\n");
    EXPECT_FALSE(edit.isDungeon()); // the note itself begins with blanks
    note() = "DUNGEON: Crypt";
    EXPECT_TRUE(NoteEdit(*world, history, 7, 150).isDungeon());
    note() = "dungeon: Crypt";
    EXPECT_FALSE(NoteEdit(*world, history, 7, 150).isDungeon());
}

TEST_F(NoteEditing, OkayMarksTheMapChangedOnlyWhenTheBoxDiffersFromTheOpenedNote)
{
    note() = "same";
    NoteEdit edit(*world, history, 7, 150);
    edit.ok("same", document);
    EXPECT_EQ(document.mapChanged, 0);
    EXPECT_FALSE(history.canUndo()); // nothing changed, no step
    edit.ok(" new text ", document);
    EXPECT_EQ(document.mapChanged, 1);
    EXPECT_EQ(note(), "new text");
}

TEST_F(NoteEditing, StoringIsOneUndoStepAndLeavesTheFlagAlone)
{
    note() = "old";
    NoteEdit edit(*world, history, 7, 150);
    edit.store("   "); // blanks only: the note goes
    EXPECT_EQ(note(), "");
    EXPECT_EQ(document.mapChanged, 0);
    edit.store(""); // the same again: no second step
    history.undo();
    EXPECT_EQ(note(), "old");
    EXPECT_FALSE(history.canUndo());
    EXPECT_EQ(edit.storedNote(), "old");
}

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace wayscribe {

class World;
class ChangeHistory;
struct Selections;

// A sector note that marks a dungeon entrance begins with exactly this text
// (the test is case-sensitive).
bool isDungeonNote(std::string_view note);

// What a dungeon note says: "DUNGEON: Old Mine. 3+ levels." names the
// dungeon Old Mine with 3 known levels.
struct DungeonNote {
    std::string name; // from the 9th character to the first ".", blanks trimmed
    int levels = 0;   // the value of the two characters after the ".", 0 without them
};
DungeonNote readDungeonNote(std::string_view note);

// The dungeon a note names: the last dungeon of that name, compared without
// regard to case, keeping its own level count; otherwise the lowest free
// slot, which gets the name and the note's level count. 0 when every slot is
// taken by another dungeon. Writes the world only when it takes a free slot.
int findOrCreateDungeon(World &world, const DungeonNote &note);

// "Go to Dungeon" of the note editor for the sector (x, y): nothing (no
// value) unless its note is a dungeon note and no dungeon window is open;
// otherwise the dungeon is found or created as one undo step, SelDungeon is
// set to it and returned, for the caller to show.
std::optional<int> selectDungeonOfNote(World &world, Selections &selection, ChangeHistory &history, int x,
                                       int y);

} // namespace wayscribe

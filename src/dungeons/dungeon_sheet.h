#pragma once

#include <string>
#include <string_view>

namespace wayscribe {

class World;
class ChangeHistory;
struct Selections;

struct EntrancePosition {
    int x = 0, y = 0;
};

// Where a dungeon's entrance is: the last sector, rows from the top and
// each row from the left, whose note contains the name (case-sensitive);
// 0, 0 when there is none.
EntrancePosition dungeonPosition(const World &world, std::string_view name);

// The dungeon window's rules for the dungeon SelDungeon: the level it
// shows, its level buttons and typed numbers, and what it stores. The room
// data box belongs to the shown level: every change of level and the close
// store the box first, each as one undo step. The map text and the name
// are shown only, never stored.
class DungeonSheet {
public:
    // Opens on the deepest level that has a map (1 when none has) and marks
    // the dungeon window open.
    DungeonSheet(World &world, Selections &selection, ChangeHistory &history);

    int dungeon() const { return dungeon_; }
    int currentLevel() const { return level_; }
    const std::string &name() const;
    int knownLevels() const;
    const std::string &levelMap() const;
    const std::string &roomData() const;
    EntrancePosition position() const { return position_; }

    // One level deeper, only above the known levels; one towards the
    // surface, only below level 1. True when the level changed.
    bool levelDown(const std::string &roomText);
    bool levelUp(const std::string &roomText);
    // A number typed into the current-level box: levels 1..10 are shown,
    // whatever the known levels. True when the box should be rewritten with
    // the level; other texts change nothing.
    bool typeLevel(std::string_view typed, const std::string &roomText);
    // A number typed into the known-levels box: 1..10 is stored at once.
    void typeKnownLevels(std::string_view typed);
    // The window closes: the known-levels box is stored when it holds
    // 0..10, and the room data; the dungeon window is no longer open.
    void close(std::string_view levelsText, const std::string &roomText);

private:
    void showLevel(int level, const std::string &roomText);
    void storeRoomData(const std::string &roomText);

    World &world_;
    Selections &selection_;
    ChangeHistory &history_;
    int dungeon_;
    int level_ = 1;
    EntrancePosition position_;
};

} // namespace wayscribe

#pragma once

namespace wayscribe {
class World;
}

namespace wayscribe::fuzz {

// The one map of this process, emptied as New does. Reused from run to run:
// a fresh map would cost every run the allocation of all its tables, which
// makes the fuzzers a hundred times slower. The QuestOR name indexes, which
// New leaves alone, are no part of what it empties.
World &emptiedMap();

// A small fixed map, built into an empty world: a few known sectors with notes, four
// settlements whose shops sell journeys to each other (one of them priced
// 0, one leading to no settlement), and a dungeon. Everything lies in the
// first rows, the part of a map file that fuzz inputs reach.
void buildSmallMap(World &world);

} // namespace wayscribe::fuzz

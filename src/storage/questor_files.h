#pragma once

// The two files of a QuestOR map, read one after the other by readQuestorMap.

#include "model/input_file.h"
#include "storage/questor_import.h"

#include <string>

namespace wayscribe {

class World;
struct ProgramState;
class Platform;

// What the map file's token stream tells the reader of the names file: how
// many names each of its sections holds.
struct QuestorTokenCounts {
    int settlements = 0;
    int shops = 0;
    int specialItems = 0;

    bool hasSpecialItems() const { return specialItems > 0; }
};

// The two files' kinds, limited as map files and turn reports are: a file
// beyond that would be read whole into memory for nothing.
inline constexpr InputKind kQuestorMapFile{"a QuestOR map file", std::uint64_t(256) << 20};
inline constexpr InputKind kQuestorNamesFile{"a QuestOR names file", std::uint64_t(256) << 20};

// The whole file; false with a reason when it cannot be opened or read, or
// is no ordinary file of that kind.
bool readQuestorFile(const std::string &path, const InputKind &kind, std::string &bytes, QuestorError &error);

// The .mp1 file's terrain and token stream. `changed` tells whether anything
// was written, also when the file stops early.
bool readQuestorMapFile(const std::string &path, World &world, Platform &platform, QuestorTokenCounts &counts,
                        bool &changed, QuestorError &error);

// The .mp2 file's notes and names.
bool readQuestorNamesFile(const std::string &path, World &world, ProgramState &state, Platform &platform,
                          const QuestorTokenCounts &counts, QuestorError &error);

} // namespace wayscribe

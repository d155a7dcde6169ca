#pragma once

#include "import/paragraph_accumulator.h"
#include "model/world.h"

#include <string>

namespace wayscribe {

struct ProgramState;
class Platform;
class ReportReader;

// The read modes of the reading loop. Any mode but Lines reads fields.
inline constexpr int kReadLines = 0;
inline constexpr int kPartySectionSeen = 1; // hide text not yet looked for
inline constexpr int kHideCaptured = 2;     // hide text found, not yet stored
inline constexpr int kHideHandled = 3;

// A dungeon named in the report's prose, placed relative to the party.
struct DungeonSighting {
    bool seen = false;
    std::string name;
    long offsetX = 0;
    long offsetY = 0;
    long levels = 0;
};

struct SectorPosition {
    long x = 0;
    long y = 0;
};

// The sector tables have a row and a column 0, never shown and never saved;
// a party that was not seen on a settlement cell stands at 0,0, and what is
// placed from it lands there.
inline bool inSectorTable(const SectorPosition &p)
{
    return p.x >= 0 && p.x <= kMapSize && p.y >= 0 && p.y <= kMapSize;
}

// What the importer keeps while it reads one report; cleared for every file.
struct ReportState {
    std::string text; // the line or field last read
    int readMode = kReadLines;
    ParagraphAccumulator paragraph;
    bool bannerSeen = false;
    bool standingOrdersReached = false;
    bool dungeonLocated = false;
    bool specialSectionEntered = false;
    bool mapSeen = false;
    bool aborted = false;
    bool initialExplorationsSeen = false;

    long mapStartX = 0;
    long mapStartY = 0;
    SectorPosition party; // the last party cell standing on a settlement
    SectorPosition city;
    SectorPosition village;
    SectorPosition town;
    std::string hideText;

    DungeonSighting scouted;
    DungeonSighting located;

    // The in-dungeon map section.
    std::string dungeonName;
    long dungeonLevel = 0;
    std::string levelMap;
    std::string roomData;

    // The shop lines.
    long shopNumber = 0;
    std::string shopName;
    int itemCount = 0;
};

// The two ways a report is imported: on its own, or as one of a folder.
struct ImportSettings {
    bool batch = false;
};

// Everything one report's import works on.
struct ReportImport {
    World &world;
    ProgramState &state;
    Platform &platform;
    ReportReader &in;
    ReportState &report;
    ImportSettings settings;
};

} // namespace wayscribe

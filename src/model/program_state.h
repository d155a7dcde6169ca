#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace wayscribe {

// The tile set a new options file starts with, and the one the program falls
// back to when the chosen set cannot be loaded.
inline constexpr const char *kDefaultTileSet = "kjc_set1";

inline constexpr int kMaxRecentMaps = 8;
inline constexpr int kMaxZoom = 4;
inline constexpr int kDefaultAutosaveMinutes = 5;

// What this program adds to the older options, in a section of its own.
struct DesktopOptions {
    int zoom = 1;                                  // 1..kMaxZoom screen pixels per tile pixel
    int autosaveMinutes = kDefaultAutosaveMinutes; // 0: no autosave
    std::vector<std::string> recentMaps;           // newest first, at most kMaxRecentMaps
};

// The player's preferences, kept in the options file between runs.
struct Options {
    bool importMap = true;      // OptImportMap
    bool importShops = true;    // OptImportShops
    bool importHides = true;    // OptImportHides
    bool importDungeons = true; // OptImportDungeons
    bool extra = true;          // OptExtra: dungeon and special markers
    bool loadLock = false;      // OptLoadLock
    bool lmol = false;          // OptLMOL: reopen the last map at start-up
    std::string wmol;           // OptWMOL: the map last loaded or saved
    std::int16_t xLeft = 0;     // OptXLeft
    std::int16_t yTop = 0;      // OptYTop
    std::string lastImp;        // OptLastImp
    std::string lastFile;       // OptLastFile
    std::string graphicsSetName = kDefaultTileSet;
    DesktopOptions desktop;
};

// The map as a file: where it lives, which game it belongs to, whether it
// has unsaved changes, and whether a file job or the lock holds it.
struct DocumentState {
    std::string mapFileName;
    std::uint8_t gameNumber = 0;
    std::uint8_t mapChanged = 0;
    std::uint8_t fileBusy = 0;
    std::uint8_t mapLocked = 0;
};

// The part of the world the map picture shows, and the flags of its redraw.
struct ViewState {
    std::int16_t fullRedraw = 0;
    std::int16_t scrollBusy = 0;
    std::int16_t viewLeft = 0; // the top-left visible sector is (viewLeft + 1, viewTop + 1)
    std::int16_t viewTop = 0;
    std::int16_t viewCols = 0; // whole sectors visible across and down
    std::int16_t viewRows = 0;
};

// What the person last picked, handed from window to window.
struct Selections {
    std::uint8_t selX = 0;
    std::uint8_t selY = 0;
    std::uint8_t selSettlement = 0;
    std::int16_t selNumber = 0;
    std::int16_t selShop = 0;
    std::int16_t selDungeon = 0;
    std::int16_t brushTerrain = 1;    // BrushTerrain: the palette's terrain code, Unknown at start-up
    std::string notesSearchText;      // NotesSearchText: the notes database's search box, kept until exit
    std::uint8_t dungeonFormOpen = 0; // DungeonFormOpen: 1 while the dungeon window is open
};

inline constexpr int kMaxPathEntries = 100;

// The mount items of the Edit menu, numbered as the column of the movement
// cost table each one chooses. Exactly one of them is checked.
enum class Mount : std::uint8_t { Arabians = 1, Mules = 2, Drafts = 3, Flying = 4 };

// The movement point counter: its switches, the path clicked out on the map
// and what the path costs.
struct MovementState {
    std::uint8_t moveCounterOn = 0; // MoveCounterOn, mirrored by chkMovement and mnuEditMovement
    std::int16_t moveMode = 0;      // MoveMode: 0 on foot, else the mount's column
    bool horseCounter = false;      // chkHorses
    // The menu starts with the first mount checked, so that ticking the horse
    // box alone already counts with a mount.
    Mount checkedMount = Mount::Arabians;
    // Entry 0 is the start square, 1..100 the squares moved to; an entry with
    // both coordinates 0 is free.
    std::array<std::uint8_t, kMaxPathEntries + 1> pathX{};
    std::array<std::uint8_t, kMaxPathEntries + 1> pathY{};
    std::int16_t moveTotal = 0; // MoveTotal: points of entries 1..100
    std::int16_t moveSteps = 0; // MoveSteps: entries 1..100 in use
};

// The small state of the main window that every part of the program shares.
struct ProgramState {
    DocumentState document;
    ViewState view;
    Selections selection;
    MovementState movement;
    std::string appFolder;
    // Where the options file lives: beside the program, or in the person's
    // configuration folder when the program's folder cannot be written.
    std::string optionsFilePath;
    Options options;
};

} // namespace wayscribe

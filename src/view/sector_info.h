#pragma once

#include <string>

namespace wayscribe {

class World;

// What the status boxes show for the sector under the pointer: the texts of
// Xbox, Ybox, terbox, mpbox, citybox, citynumbox, txtCityState and txtNoteBox.
struct SectorInfo {
    std::string x;
    std::string y;
    std::string terrain;        // the terrain's name; "Unknown" for codes without a name of ours
    std::string movementPoints; // what entering the sector costs with the counter's mode
    std::string note;           // trimmed
    std::string settlementName; // trimmed; empty unless a settlement in use stands here
    std::string settlementNumber;
    std::string cityState; // trimmed
};

// `moveMode` is the movement counter's column: 0 on foot, 1..4 the mounts.
SectorInfo describeSector(const World &world, int x, int y, int moveMode);

} // namespace wayscribe

#pragma once

#include <string>

namespace wayscribe {

class World;

// What the information panel shows for the sector under the pointer.
struct SectorInfo {
    std::string terrain; // the terrain's name; "Unknown" for codes without a name of ours
    std::string note;
    std::string settlementName; // empty unless a settlement in use stands here
    std::string settlementNumber;
    std::string cityState;
};

SectorInfo describeSector(const World &world, int x, int y);

} // namespace wayscribe

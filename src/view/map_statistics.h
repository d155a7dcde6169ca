#pragma once

#include <string>

namespace wayscribe {

class World;

struct MapCounts {
    int filled = 0; // terrain other than Unknown
    int water = 0;
    int settlements = 0; // sectors with a settlement name
    int notes = 0;       // sectors with a note, blanks included
};

MapCounts countMap(const World &world);

// The text of the Map Statistics message, with CR LF line breaks.
std::string mapStatisticsText(const World &world);

} // namespace wayscribe

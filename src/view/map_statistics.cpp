#include "view/map_statistics.h"

#include "model/terrain.h"
#include "model/text.h"
#include "model/world.h"

namespace wayscribe {

MapCounts countMap(const World &world)
{
    MapCounts c;
    for (int y = 1; y <= kMapSize; ++y)
        for (int x = 1; x <= kMapSize; ++x) {
            const Sector &s = world.sector(x, y);
            c.filled += s.terrain != kUnknown;
            c.water += s.terrain == kWater;
            c.settlements += !s.settlementName.empty();
            c.notes += !s.note.empty();
        }
    return c;
}

std::string mapStatisticsText(const World &world)
{
    const MapCounts c = countMap(world);
    // The share of filled sectors rounded to two decimals, halves to even,
    // then shown as a whole percentage: filled / 400 rounded.
    const double percent = roundHalfEven(c.filled / 400.0);
    return "The map is" + formatGeneral(percent) + "% complete.\r\n\r\nThere are" + formatGeneral(c.filled) +
           " filled sectors out of 40000," + formatGeneral(c.water) +
           " of which are water.\r\n\r\nThere are" + formatGeneral(c.settlements) + " settlements and" +
           formatGeneral(c.notes) + " notes.";
}

} // namespace wayscribe

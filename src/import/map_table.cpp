#include "import/map_table.h"

#include "import/report_reader.h"
#include "import/report_state.h"
#include "model/platform.h"
#include "model/program_state.h"
#include "model/text.h"
#include "model/world.h"

#include <cstdint>
#include <limits>

namespace wayscribe {

namespace {

constexpr const char *kSection = "the map table";

struct CellWord {
    std::string_view word;
    int terrain;
};

constexpr CellWord kCellWords[] = {
    {"Water", 2},  {"Open", 3},   {"Fields", 4},   {"Rough", 5},     {"Forest", 6}, {"Heavy Forest", 7},
    {"Jungle", 8}, {"Barren", 9}, {"Desert", 10},  {"Mountain", 11}, {"Hills", 12}, {"Marsh", 13},
    {"Swamp", 14}, {"Road", 15},  {"Village", 16}, {"Town", 17},     {"City", 18},
};

constexpr std::string_view kPartyOn = "Party and ";

struct Cursor {
    long x;
    long y;
};

// The picture's ALT text, cut out of a cell field: `lead` characters of the
// tag before the picture name, `tail` characters after the ALT text. Empty
// for the sky, which is no cell at all.
bool cellName(std::string_view field, long lead, long tail, std::string_view &name)
{
    const std::string_view rest = midChars(field, lead + 1);
    if (contains(rest, "sky"))
        return false;
    name = dropLast(midChars(rest, positionOf(rest, "ALT=") + 5), tail);
    return true;
}

void decodeCell(ReportImport &im, std::string_view name, Cursor &at)
{
    if (name == "Blank") {
        ++at.x;
        return;
    }
    const int terrain = cellTerrain(name);
    if (terrain == 0)
        return; // an unknown picture does not take a column
    // The table may run past the world's edge; those cells have no sector.
    if (im.state.options.importMap && at.x >= 1 && at.x <= kMapSize && at.y >= 1 && at.y <= kMapSize)
        im.world.sector(static_cast<int>(at.x), static_cast<int>(at.y)).terrain =
            static_cast<std::uint8_t>(terrain);
    ++at.x;
    SectorPosition here{at.x - 1, at.y};
    if (name == "Party and City")
        im.report.city = here;
    else if (name == "Party and Village")
        im.report.village = here;
    else if (name == "Party and Town")
        im.report.town = here;
    else
        return;
    im.report.party = here;
}

} // namespace

bool isMapInfoLine(std::string_view text)
{
    return startsWith(text, "<!-- MAP INFO ");
}

int cellTerrain(std::string_view name)
{
    if (startsWith(name, kPartyOn))
        name.remove_prefix(kPartyOn.size());
    for (const CellWord &w : kCellWords)
        if (name == w.word)
            return w.terrain;
    return 0;
}

void readMapTable(ReportImport &im, std::string_view infoLine)
{
    ReportState &r = im.report;
    r.specialSectionEntered = true;
    r.mapSeen = true;
    if (r.readMode == kReadLines)
        r.readMode = kPartySectionSeen;

    // "<!-- MAP INFO x y -->"
    const std::string_view numbers = midChars(infoLine, 15, static_cast<long>(infoLine.size()) - 18);
    const long blankAt = positionOf(numbers, " ");
    constexpr long lo = std::numeric_limits<std::int16_t>::min();
    constexpr long hi = std::numeric_limits<std::int16_t>::max();
    r.mapStartX = im.in.wholeNumber(leftChars(numbers, blankAt - 1), lo, hi, "map start column");
    r.mapStartY = im.in.wholeNumber(midChars(numbers, blankAt + 1), lo, hi, "map start row");

    // The banner layout's header ends with the first row's own start.
    Cursor at{r.mapStartX, r.bannerSeen ? r.mapStartY : r.mapStartY - 1};
    std::string field;
    do {
        im.in.requireField(field, kSection);
        field = std::string(trimBlanks(field));
    } while (r.bannerSeen ? !startsWith(field, "<TR><TD ALIGN=") : field != "<TR><TD></TD>");

    for (;;) {
        im.in.requireField(field, kSection);
        const std::string_view cell = trimBlanks(field);
        if (cell == "</TABLE><PRE>")
            break;
        std::string_view name;
        if (startsWith(cell, "<TR><TD ALIGN=left><B>")) {
            at.x = r.mapStartX;
            ++at.y;
        } else if (startsWith(cell, "<TD><IMG SRC=")) {
            if (cellName(cell, 14, 16, name))
                decodeCell(im, name, at);
        } else if (startsWith(cell, "<IMG SRC=")) {
            if (cellName(cell, 10, 20, name))
                decodeCell(im, name, at);
        }
        im.platform.processEvents();
    }
}

} // namespace wayscribe

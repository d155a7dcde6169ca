#include "import/dungeon_paragraphs.h"

#include "import/report_reader.h"
#include "import/report_state.h"
#include "model/text.h"

#include <cstdint>
#include <limits>

namespace wayscribe {

namespace {

constexpr long kInt16Min = std::numeric_limits<std::int16_t>::min();
constexpr long kInt16Max = std::numeric_limits<std::int16_t>::max();

long offsetValue(const ReportReader &in, std::string_view text)
{
    return in.wholeNumber(text, kInt16Min, kInt16Max, "dungeon distance");
}

// "<n> sectors north and <m> sectors east ...": the north or south distance
// stands at the start of the text, the east or west one after "and".
void readOffsets(const ReportReader &in, std::string_view text, DungeonSighting &dungeon)
{
    if (const long at = positionOf(text, "north"))
        dungeon.offsetY = -offsetValue(in, leftChars(text, at - 9));
    if (const long at = positionOf(text, "south"))
        dungeon.offsetY = offsetValue(in, leftChars(text, at - 9));
    const long andAt = positionOf(text, "and");
    if (const long at = positionOf(text, "east"))
        dungeon.offsetX = offsetValue(in, midChars(text, andAt + 4, at - 9));
    if (const long at = positionOf(text, "west"))
        dungeon.offsetX = -offsetValue(in, midChars(text, andAt + 4, at - 9));
}

void checkScouts(ReportImport &im)
{
    ParagraphAccumulator &acc = im.report.paragraph;
    if (!acc.contains("it of creatures") || !acc.contains("Scouts reckon that"))
        return;
    DungeonSighting &dungeon = im.report.scouted;
    dungeon.seen = true;
    dungeon.levels = 1;
    acc.assign(midChars(acc.text(), acc.position("holed up in") - 1));
    const long holedAt = acc.position("holed up in");
    const long commaAt = acc.position(",");
    // The character before the comma is left out of the name.
    dungeon.name = std::string(midChars(acc.text(), holedAt + 16, commaAt - (holedAt + 16) - 1));
    acc.assign(midChars(acc.text(), commaAt + 1));
    readOffsets(im.in, acc.text(), dungeon);
}

void checkInitialExplorations(ReportImport &im)
{
    ParagraphAccumulator &acc = im.report.paragraph;
    if (acc.contains("Initial explorations") && !im.report.initialExplorationsSeen) {
        acc.clear();
        im.report.initialExplorationsSeen = true;
    }
    if (!acc.contains("infesting it") || !acc.contains("Initial explorations"))
        return;
    DungeonSighting &dungeon = im.report.located;
    const long levelAt = acc.position("empty level") + 12;
    dungeon.levels =
        im.in.wholeNumber(midChars(acc.text(), levelAt, acc.position("of the creatures") - levelAt),
                          kInt16Min, kInt16Max, "number of dungeon levels");
    const long startAt = acc.position("Initial explorations");
    acc.assign(midChars(acc.text(), startAt, acc.position("We wish you") - startAt));
    const long nameAt = acc.position("have located the") + 17;
    const long commaAt = acc.position(",");
    dungeon.name = std::string(midChars(acc.text(), nameAt, commaAt - nameAt));
    dungeon.seen = true;
    im.report.dungeonLocated = true;
    acc.assign(midChars(acc.text(), commaAt + 1));
    acc.assign(dropLast(acc.text(), 10));
    readOffsets(im.in, acc.text(), dungeon);
}

} // namespace

void checkDungeonParagraphs(ReportImport &im)
{
    checkScouts(im);
    checkInitialExplorations(im);
}

} // namespace wayscribe

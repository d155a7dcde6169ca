#include "view/sector_markers.h"

#include "model/terrain.h"
#include "model/text.h"
#include "model/world.h"

namespace wayscribe {

NoteMarker noteMarkerOf(std::string_view note, bool optExtra)
{
    if (trimBlanks(note).empty())
        return NoteMarker::None;
    if (optExtra) {
        const std::string_view prefix = leftChars(note, 8);
        if (prefix == "DUNGEON:")
            return NoteMarker::Dungeon;
        if (prefix == "SPECIAL:")
            return NoteMarker::Special;
    }
    return NoteMarker::Note;
}

NoteMarker noteMarkerFor(const Sector &sector, bool optExtra)
{
    if (isSettlementTerrain(sector.terrain))
        return NoteMarker::None;
    return noteMarkerOf(sector.note, optExtra);
}

int footprintPicture(std::uint16_t moveMark, bool startSquare)
{
    if (moveMark == 0)
        return 0;
    if (moveMark == 1)
        return startSquare ? 2 : 1;
    return startSquare ? 4 : 3;
}

} // namespace wayscribe

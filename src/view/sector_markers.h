#pragma once

#include <cstdint>
#include <string_view>

namespace wayscribe {

struct Sector;

enum class NoteMarker { None, Note, Dungeon, Special };

// The marker of a note by itself: none for blanks only; with the Extra
// option, notes beginning "DUNGEON:" or "SPECIAL:" show their own icon
// instead of the note marker. The brush's redraw of a single sector shows it
// without asking what the sector is.
NoteMarker noteMarkerOf(std::string_view note, bool optExtra);

// The marker the map shows for a sector's note: the note's own, except that
// settlement sectors show none.
NoteMarker noteMarkerFor(const Sector &sector, bool optExtra);

// Which footprint picture (1..4: foot.gif, foot2.gif, foot3.gif, foot4.gif) a
// sector shows for its movement mark, 0 for none: 2 and 4 mark the path's start
// square, 3 and 4 a square passed twice or more.
int footprintPicture(std::uint16_t moveMark, bool startSquare);

} // namespace wayscribe

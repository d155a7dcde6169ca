#pragma once

#include <QImage>
#include <QPoint>

#include <array>
#include <string>

namespace wayscribe {

// All pictures the map drawing copies from, decoded once: the terrain tiles of
// the current tile set and the note, dungeon and special markers in one sheet,
// plus the footprints and the small palette tiles.
class TileSheet {
public:
    static constexpr int kTileSize = 16;
    // Sheet entries besides the terrain tiles 1..18.
    static constexpr int kNoteImage = 20;
    static constexpr int kNoteMask = 21;
    static constexpr int kDungeonIcon = 22;
    static constexpr int kSpecialIcon = 23;

    TileSheet();

    // Top-left pixel of sheet entry 1..18 or 20..23 (TileSheetX, TileSheetY).
    static QPoint entryPosition(int entry);

    // Format_RGB32. Entries not loaded yet are black.
    const QImage &sheet() const { return sheet_; }

    // Footprint picture 1..4 (foot.gif, foot2.gif, foot3.gif, foot4.gif), with
    // its transparency; a null image until the markers are loaded.
    const QImage &footprint(int picture) const { return footprints_.at(picture - 1); }

    // The small tile of terrain code 1..18 for the palette; null until loaded.
    const QImage &paletteTile(int code) const { return paletteTiles_.at(code - 1); }

    // Loads the large and small tiles of a set from graphicsFolder/setName.
    // Returns an empty text on success; otherwise a message naming the first
    // file that is missing or unreadable, and the tiles held before stay.
    std::string loadTileSet(const std::string &graphicsFolder, const std::string &setName);

    // Loads note.gif, note_m.gif, dungeon.gif, special.gif and the four
    // footprints from graphicsFolder; reports and keeps the old pictures as
    // loadTileSet does.
    std::string loadMarkers(const std::string &graphicsFolder);

private:
    QImage sheet_;
    std::array<QImage, 4> footprints_;
    std::array<QImage, 18> paletteTiles_;
};

} // namespace wayscribe

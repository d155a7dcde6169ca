#pragma once

// A graphics folder of tiny solid-colour pictures, so that every pixel of a
// drawing tells which picture it came from.
#include "model/terrain.h"
#include "support/test_support.h"
#include "view/draw/tile_sheet.h"
#include "view/tile_files.h"

#include <QImage>
#include <QRect>

#include <filesystem>
#include <string>

namespace wayscribe::test {

inline QRgb tileColour(int code)
{
    return qRgb(code * 12, 200 - code * 7, 60 + code);
}
inline QRgb smallTileColour(int code)
{
    return qRgb(code * 12, 20, 30);
}
inline QRgb footColour(int picture)
{
    return qRgb(40 * picture, 90, 170);
}
inline const QRgb kNoteColour = qRgb(0, 0, 255);
inline const QRgb kDungeonColour = qRgb(250, 250, 0);
inline const QRgb kSpecialColour = qRgb(0, 250, 250);
inline const QRgb kBlack = qRgb(0, 0, 0);
// Where the note marker's image lies inside its tile.
inline const QRect kNoteBlock(4, 4, 4, 4);

inline QImage solid(int w, int h, QRgb colour)
{
    QImage image(w, h, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

// Writes the picture in PNG: the readers go by content, and Qt cannot write GIF.
inline void savePicture(const QImage &image, const std::string &path, const char *format = "PNG")
{
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    if (!image.save(QString::fromStdString(path), format))
        throw std::runtime_error("cannot write test picture " + path);
}

// Tiles of a set: large tile of code c is tileColour(c) plus `shift` in blue,
// so that two sets can be told apart.
inline void writeTileSet(const std::string &graphics, const std::string &set, int shift = 0)
{
    for (int code = kFirstTerrain; code <= kLastTerrain; ++code) {
        savePicture(solid(16, 16, tileColour(code) + shift), tilePath(graphics, set, code, TileSize::Large),
                    "BMP");
        savePicture(solid(10, 10, smallTileColour(code)), tilePath(graphics, set, code, TileSize::Small),
                    "BMP");
    }
}

inline void writeMarkers(const std::string &graphics)
{
    QImage note = solid(16, 16, kBlack), mask = solid(16, 16, qRgb(255, 255, 255));
    for (int y = kNoteBlock.top(); y <= kNoteBlock.bottom(); ++y)
        for (int x = kNoteBlock.left(); x <= kNoteBlock.right(); ++x) {
            note.setPixel(x, y, kNoteColour);
            mask.setPixel(x, y, kBlack);
        }
    savePicture(note, graphics + "/note.gif");
    savePicture(mask, graphics + "/note_m.gif");
    savePicture(solid(16, 16, kDungeonColour), graphics + "/dungeon.gif");
    savePicture(solid(16, 16, kSpecialColour), graphics + "/special.gif");
    const char *feet[] = {"foot.gif", "foot2.gif", "foot3.gif", "foot4.gif"};
    for (int i = 0; i < 4; ++i)
        savePicture(solid(8, 10, footColour(i + 1)), graphics + "/" + feet[i]);
}

// A sheet of the tiles of set kjc_set1 and the markers, written into `dir`.
inline void loadSyntheticSheet(TileSheet &sheet, const TempDir &dir)
{
    const std::string graphics = dir.file("graphics");
    writeTileSet(graphics, "kjc_set1");
    writeMarkers(graphics);
    if (!sheet.loadTileSet(graphics, "kjc_set1").empty() || !sheet.loadMarkers(graphics).empty())
        throw std::runtime_error("cannot read the test pictures in " + graphics);
}

} // namespace wayscribe::test

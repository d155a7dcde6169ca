#include "view/draw/tile_sheet.h"

#include "model/terrain.h"
#include "view/tile_files.h"

#include <QFile>
#include <QImageReader>
#include <QPainter>

#include <filesystem>
#include <utility>

namespace wayscribe {

namespace {

constexpr int kTile = TileSheet::kTileSize;
constexpr int kSheetWidth = kTile * (kLastTerrain + 1); // entries 1..18 end at 16 * 19
constexpr int kMarkerRow = 17;
constexpr int kSheetHeight = kMarkerRow + kTile;

// Reads one picture file; on failure fills `error` with a message naming it.
bool readPicture(const std::string &path, QImage &image, std::string &error)
{
    std::error_code ec;
    if (!std::filesystem::is_regular_file(path, ec)) {
        error = "The picture " + path + " was not found.";
        return false;
    }
    QImageReader reader(QFile::decodeName(path.c_str()));
    if (!reader.read(&image)) {
        error = "The picture " + path + " could not be read: " + reader.errorString().toStdString();
        return false;
    }
    return true;
}

// Puts a picture into its 16 x 16 cell of the sheet over `background`:
// transparent parts of a marker take the colour its raster operation leaves
// the map alone with, and a larger picture is cut to the cell.
void placeInSheet(QImage &sheet, int entry, const QImage &picture, QColor background)
{
    const QRect cell(TileSheet::entryPosition(entry), QSize(kTile, kTile));
    QPainter painter(&sheet);
    painter.setClipRect(cell);
    painter.fillRect(cell, background);
    painter.drawImage(cell.topLeft(), picture);
}

} // namespace

TileSheet::TileSheet() : sheet_(kSheetWidth, kSheetHeight, QImage::Format_RGB32)
{
    sheet_.fill(Qt::black);
}

QPoint TileSheet::entryPosition(int entry)
{
    if (entry >= kNoteImage)
        return {kTile * (entry - kNoteImage + 1), kMarkerRow};
    return {kTile * entry, 0};
}

std::string TileSheet::loadTileSet(const std::string &graphicsFolder, const std::string &setName)
{
    std::array<QImage, kLastTerrain> large, small;
    std::string error;
    for (int code = kFirstTerrain; code <= kLastTerrain; ++code)
        if (!readPicture(tilePath(graphicsFolder, setName, code, TileSize::Large), large[code - 1], error) ||
            !readPicture(tilePath(graphicsFolder, setName, code, TileSize::Small), small[code - 1], error))
            return error;
    for (int code = kFirstTerrain; code <= kLastTerrain; ++code) {
        placeInSheet(sheet_, code, large[code - 1], Qt::black);
        paletteTiles_[code - 1] = std::move(small[code - 1]);
    }
    return {};
}

std::string TileSheet::loadMarkers(const std::string &graphicsFolder)
{
    struct SheetMarker {
        const char *file;
        int entry;
        QColor background;
    };
    // The mask is ANDed onto the map and the image ORed onto it: outside the
    // marker the mask must be white and the image black.
    const SheetMarker sheetMarkers[] = {{"note.gif", kNoteImage, Qt::black},
                                        {"note_m.gif", kNoteMask, Qt::white},
                                        {"dungeon.gif", kDungeonIcon, Qt::black},
                                        {"special.gif", kSpecialIcon, Qt::black}};
    const char *footFiles[] = {"foot.gif", "foot2.gif", "foot3.gif", "foot4.gif"};

    std::string error;
    std::array<QImage, 4> markers, feet;
    for (int i = 0; i < 4; ++i)
        if (!readPicture(graphicsFolder + "/" + sheetMarkers[i].file, markers[i], error) ||
            !readPicture(graphicsFolder + "/" + footFiles[i], feet[i], error))
            return error;
    for (int i = 0; i < 4; ++i) {
        placeInSheet(sheet_, sheetMarkers[i].entry, markers[i], sheetMarkers[i].background);
        footprints_[i] = feet[i].convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
    return {};
}

} // namespace wayscribe

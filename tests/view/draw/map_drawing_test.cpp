#include "model/program_state.h"
#include "model/world.h"
#include "synthetic_graphics.h"
#include "view/draw/map_drawing.h"
#include "view/draw/minimap_drawing.h"

#include <gtest/gtest.h>

#include <memory>

using namespace wayscribe;
using namespace wayscribe::test;

namespace {

const QRgb kGrey = qRgb(128, 128, 128);

class MapDrawing : public ::testing::Test {
protected:
    MapDrawing()
    {
        loadSyntheticSheet(sheet, dir);
        state.view.viewCols = 5;
        state.view.viewRows = 4;
        picture.fill(kGrey);
    }

    void view(int left, int top)
    {
        state.view.viewLeft = static_cast<std::int16_t>(left);
        state.view.viewTop = static_cast<std::int16_t>(top);
    }
    void draw() { drawMap(picture, *world, state, sheet); }
    void setTerrain(int x, int y, int code) { world->sector(x, y).terrain = static_cast<std::uint8_t>(code); }

    // Pixel `offset` inside the tile of view column c, row r (from 1).
    QRgb at(int c, int r, QPoint offset = {5, 5}) const
    {
        return picture.pixel((c - 1) * 16 + offset.x(), (r - 1) * 16 + offset.y());
    }
    int countIn(int c, int r, QRect part, QRgb colour) const
    {
        int n = 0;
        for (int y = part.top(); y <= part.bottom(); ++y)
            for (int x = part.left(); x <= part.right(); ++x)
                n += at(c, r, {x, y}) == colour;
        return n;
    }

    TempDir dir;
    TileSheet sheet;
    std::unique_ptr<World> world = std::make_unique<World>();
    ProgramState state;
    QImage picture = QImage(5 * 16 + 7, 4 * 16 + 3, QImage::Format_RGB32);
};

TEST_F(MapDrawing, TilesFollowTheViewOriginUpToTheWorldsLastSector)
{
    setTerrain(1, 1, kWater);
    setTerrain(3, 2, kForest);
    setTerrain(200, 200, kCity);
    setTerrain(196, 197, kDesert);

    draw();
    EXPECT_EQ(at(1, 1), tileColour(kWater));
    EXPECT_EQ(at(3, 2, {15, 15}), tileColour(kForest));
    EXPECT_EQ(at(5, 4), tileColour(kUnknown));
    EXPECT_EQ(picture.pixel(5 * 16 + 2, 10), kGrey) << "the strip beyond whole tiles is left alone";

    view(1, 1);
    draw();
    EXPECT_EQ(at(2, 1), tileColour(kForest));

    view(200 - 5, 200 - 4);
    draw();
    EXPECT_EQ(at(5, 4), tileColour(kCity));
    EXPECT_EQ(at(1, 1), tileColour(kDesert));
}

TEST_F(MapDrawing, BorderLinesRunAlongTheTopAndLeftOfTheTiles)
{
    draw();
    EXPECT_EQ(picture.pixel(0, 0), kBlack);
    EXPECT_EQ(picture.pixel(5 * 16 - 2, 0), kBlack);
    EXPECT_EQ(picture.pixel(5 * 16 - 1, 0), tileColour(kUnknown)) << "lines leave out their end point";
    EXPECT_EQ(picture.pixel(0, 4 * 16 - 2), kBlack);
    EXPECT_EQ(picture.pixel(1, 1), tileColour(kUnknown));
}

TEST_F(MapDrawing, RefreshDrawsOnlyWhenAFullRedrawIsAsked)
{
    Minimap minimap;
    minimap.image.fill(kGrey);
    EXPECT_FALSE(Refresh_Map(picture, minimap, *world, state, sheet));
    EXPECT_EQ(at(2, 2), kGrey);
    EXPECT_EQ(minimap.image.pixel(50, 50), kGrey);

    state.view.fullRedraw = 1;
    EXPECT_TRUE(Refresh_Map(picture, minimap, *world, state, sheet));
    EXPECT_EQ(at(2, 2), tileColour(kUnknown));
    EXPECT_EQ(minimap.image.pixel(50, 50), kBlack);
}

TEST_F(MapDrawing, RoadsJoinSettlementsAndRoadsButNothingElse)
{
    // The road (10, 10) is drawn in tile (3, 3).
    view(7, 7);
    setTerrain(10, 10, kRoad);
    setTerrain(11, 10, kVillage); // east
    setTerrain(9, 10, kWater);    // west
    setTerrain(10, 9, kRoad);     // north
    setTerrain(11, 9, kCity);     // north-east
    setTerrain(11, 11, kTown);    // south-east
    setTerrain(9, 11, kRoad);     // south-west
    setTerrain(9, 9, 19);         // north-west: a code of no terrain of ours
    draw();

    EXPECT_EQ(at(3, 3, {7, 7}), kBlack) << "dot in the centre";
    EXPECT_EQ(at(3, 3, {15, 8}), kBlack) << "east line reaches the edge";
    EXPECT_EQ(at(4, 3, {0, 8}), tileColour(kVillage)) << "and stops there";
    EXPECT_EQ(countIn(4, 3, {0, 0, 16, 16}, kBlack), 0) << "settlements draw no lines";
    EXPECT_EQ(at(3, 3, {8, 0}), kBlack) << "north";
    EXPECT_GT(countIn(3, 3, {12, 0, 4, 3}, kBlack), 0) << "north-east";
    EXPECT_GT(countIn(3, 3, {12, 12, 4, 4}, kBlack), 0) << "south-east";
    EXPECT_GT(countIn(3, 3, {0, 12, 4, 4}, kBlack), 0) << "south-west";
    EXPECT_EQ(countIn(3, 3, {0, 5, 4, 5}, kBlack), 0) << "no line toward water";
    EXPECT_EQ(countIn(3, 3, {0, 0, 5, 5}, kBlack), 0) << "no line toward an unknown code";
    EXPECT_EQ(countIn(3, 3, {6, 10, 3, 6}, kBlack), 0) << "no line toward Unknown in the south";
    // The north road sees (10, 10) to its south.
    EXPECT_EQ(at(3, 2, {8, 15}), kBlack);
}

TEST_F(MapDrawing, RoadsOnTheWorldsEdgeDrawNothingOutward)
{
    for (int i = 1; i <= 200; ++i) {
        setTerrain(i, 1, kRoad);
        setTerrain(1, i, kRoad);
        setTerrain(200, i, kRoad);
        setTerrain(i, 200, kRoad);
    }
    QImage corner(32, 32, QImage::Format_RGB32);
    drawSectors(corner, *world, state, sheet, {1, 1, 2, 2});
    EXPECT_EQ(corner.pixel(0, 8), tileColour(kRoad)) << "no line west of x = 1";
    EXPECT_EQ(corner.pixel(8, 0), tileColour(kRoad)) << "no line north of y = 1";
    EXPECT_EQ(corner.pixel(15, 8), kBlack);
    EXPECT_EQ(corner.pixel(8, 15), kBlack);

    view(200 - 5, 200 - 4);
    draw();
    EXPECT_EQ(at(5, 2, {15, 8}), tileColour(kRoad)) << "no line east of x = 200";
    EXPECT_EQ(at(5, 2, {8, 15}), kBlack);
    EXPECT_EQ(at(2, 4, {8, 15}), tileColour(kRoad)) << "no line south of y = 200";
    EXPECT_EQ(countIn(5, 4, {9, 9, 7, 7}, kBlack), 0);
}

TEST_F(MapDrawing, NoteMarkersDependOnTheNoteTheTerrainAndTheExtraOption)
{
    struct Case {
        int terrain;
        const char *note;
        QRgb extraOn, extraOff; // colour in the note marker's block
    };
    const QRgb open = tileColour(kOpen), town = tileColour(kTown);
    const Case cases[] = {
        {kOpen, "a note", kNoteColour, kNoteColour},
        {kOpen, "   ", open, open},
        {kOpen, "\t", kNoteColour, kNoteColour},
        {kTown, "a note", town, town},
        {kTown, "DUNGEON: Deep", town, town},
        {kOpen, "DUNGEON: Deep", kDungeonColour, kNoteColour},
        {kOpen, "SPECIAL:", kSpecialColour, kNoteColour},
        {kOpen, "dungeon: lower case", kNoteColour, kNoteColour},
        {kOpen, " DUNGEON:", kNoteColour, kNoteColour},
        {kOpen, "DUNGEON", kNoteColour, kNoteColour},
    };
    for (bool extra : {true, false}) {
        state.options.extra = extra;
        for (int i = 0; i < 5; ++i)
            for (int j = 0; j < 2; ++j) {
                const Case &c = cases[i * 2 + j];
                setTerrain(i + 1, j + 1, c.terrain);
                world->sector(i + 1, j + 1).note = c.note;
            }
        draw();
        for (int i = 0; i < 5; ++i)
            for (int j = 0; j < 2; ++j) {
                const Case &c = cases[i * 2 + j];
                SCOPED_TRACE(std::string(c.note) + (extra ? ", Extra on" : ", Extra off"));
                EXPECT_EQ(at(i + 1, j + 1, kNoteBlock.topLeft() + QPoint(1, 1)),
                          extra ? c.extraOn : c.extraOff);
                // Outside its block the note marker lets the terrain show through.
                const QRgb edge = at(i + 1, j + 1, {12, 12});
                EXPECT_TRUE(edge == tileColour(c.terrain) || edge == kDungeonColour ||
                            edge == kSpecialColour);
            }
    }
}

TEST_F(MapDrawing, FootprintsTellTheStartSquareAndSquaresPassedTwice)
{
    state.movement.pathX[0] = 2;
    state.movement.pathY[0] = 1;
    world->sector(1, 1).moveMark = 1; // passed once
    world->sector(2, 1).moveMark = 1; // the start
    world->sector(3, 1).moveMark = 2; // passed twice
    world->sector(4, 1).moveMark = 5;
    world->sector(2, 2).moveMark = 3;
    world->sector(5, 1).note = "under the footprint";
    world->sector(5, 1).moveMark = 1;
    draw();

    EXPECT_EQ(at(1, 1, {4, 3}), footColour(1));
    EXPECT_EQ(at(1, 1, {11, 12}), footColour(1)) << "the whole 8 x 10 picture";
    EXPECT_EQ(at(1, 1, {3, 3}), tileColour(kUnknown));
    EXPECT_EQ(at(1, 1, {12, 13}), tileColour(kUnknown));
    EXPECT_EQ(at(2, 1, {6, 6}), footColour(2));
    EXPECT_EQ(at(3, 1, {6, 6}), footColour(3));
    EXPECT_EQ(at(4, 1, {6, 6}), footColour(3));
    EXPECT_EQ(at(2, 2, {6, 6}), footColour(3)) << "only (PathX[0], PathY[0]) is the start";
    EXPECT_EQ(at(5, 1, {6, 6}), footColour(1)) << "drawn over the note marker";

    state.movement.pathY[0] = 2;
    draw();
    EXPECT_EQ(at(2, 2, {6, 6}), footColour(4));
    EXPECT_EQ(at(2, 1, {6, 6}), footColour(1));
}

TEST_F(MapDrawing, CodesWithoutATileShowTheUnknownTileMarked)
{
    const int odd[] = {0, 19, 22, 25, 255};
    for (int i = 0; i < 5; ++i) {
        setTerrain(i + 1, 1, odd[i]);
        world->sector(i + 1, 1).note = "note";
    }
    setTerrain(3, 2, kRoad);
    draw();
    for (int i = 0; i < 5; ++i) {
        SCOPED_TRACE(odd[i]);
        EXPECT_EQ(at(i + 1, 1, {14, 14}), tileColour(kUnknown));
        EXPECT_EQ(at(i + 1, 1, {9, 9}), qRgb(255, 0, 0));
        EXPECT_EQ(at(i + 1, 1, kNoteBlock.topLeft()), kNoteColour) << "the note still shows";
    }
    EXPECT_EQ(countIn(3, 2, {0, 0, 16, 6}, kBlack), 0) << "roads do not join them";
}

} // namespace

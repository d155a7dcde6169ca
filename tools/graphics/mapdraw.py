"""The map view's way of drawing, for pictures of a map: tiles, black road lines from each Road
tile toward neighbouring roads and settlements, note markers through their mask (AND, then OR),
dungeon and special icons, and footprints at (4, 3) inside a tile."""

from .canvas import Canvas, line_points
from .terrains import STEMS

ROAD, VILLAGE, CITY = 15, 16, 18
BLACK = (0, 0, 0)

# (neighbour offset, line start, line end) with points relative to the tile's top-left pixel.
ROAD_LINES = (
    ((-1, 0), (0, 8), (7, 7)),
    ((1, 0), (7, 7), (16, 8)),
    ((0, -1), (8, 0), (7, 7)),
    ((0, 1), (7, 7), (8, 16)),
    ((-1, -1), (7, 7), (1, 0)),
    ((1, -1), (7, 7), (16, 0)),
    ((-1, 1), (7, 7), (0, 16)),
    ((1, 1), (7, 7), (16, 15)),
)


def draw_map(terrain, cols, rows, tiles, markers, notes=None, marks=None, start=None):
    """terrain maps (x, y), both from 1, to a terrain code; tiles maps a file stem to its tile;
    markers maps marker names (note, note_m, dungeon, special, foot..foot4) to pictures;
    notes maps (x, y) to note text, marks (x, y) to the times the path passed there."""
    notes = notes or {}
    marks = marks or {}
    c = Canvas(cols * 16, rows * 16)

    def line(a, b):
        # Lines on the original platform leave out their last pixel.
        for x, y in line_points(a[0], a[1], b[0], b[1])[:-1]:
            c.set(x, y, BLACK)

    for y in range(1, rows + 1):
        for x in range(1, cols + 1):
            t = terrain[(x, y)]
            px, py = (x - 1) * 16, (y - 1) * 16
            c.blit(tiles[STEMS[t - 1]], px, py)
            if t == ROAD:
                c.set(px + 7, py + 7, BLACK)
                for (dx, dy), a, b in ROAD_LINES:
                    if ROAD <= terrain.get((x + dx, y + dy), 0) <= CITY:
                        line((px + a[0], py + a[1]), (px + b[0], py + b[1]))
            note = notes.get((x, y), "")
            if note.strip() and not VILLAGE <= t <= CITY:
                if note.startswith("DUNGEON:"):
                    c.blit(markers["dungeon"], px, py)
                elif note.startswith("SPECIAL:"):
                    c.blit(markers["special"], px, py)
                else:
                    mask, image = markers["note_m"], markers["note"]
                    for j in range(16):
                        for i in range(16):
                            d = tuple(a & b for a, b in zip(c.px[py + j][px + i], mask.px[j][i]))
                            c.px[py + j][px + i] = tuple(a | b for a, b in zip(d, image.px[j][i]))
            m = marks.get((x, y), 0)
            if m:
                first = (x, y) == start
                name = ("foot4" if first else "foot3") if m >= 2 else ("foot2" if first else "foot")
                c.blit(markers[name], px + 4, py + 3)
    return c


def terrain_from_letters(rows, letters):
    """A terrain table from rows of letters, one letter per terrain code in code order."""
    return {(x + 1, y + 1): letters.index(ch) + 1 for y, row in enumerate(rows) for x, ch in enumerate(row)}

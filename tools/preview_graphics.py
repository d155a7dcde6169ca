#!/usr/bin/env python3
"""Contact sheets of the generated pictures, for looking at them: each tile set laid out as a
small landscape, drawn the way the map view draws (tiles, black road lines toward neighbouring
roads and settlements, note markers through their mask, dungeon and special icons, footprints),
at 3x and 1x, next to every tile enlarged and tiled 3 x 3 with its minimap colour beside it.
The pictures are read back from the written files, so the sheets also check the file writers."""

import argparse
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))

from graphics.bmp import decode_bmp  # noqa: E402
from graphics.canvas import Canvas  # noqa: E402
from graphics.gif import decode_gif  # noqa: E402
from graphics.mapdraw import draw_map, terrain_from_letters  # noqa: E402
from graphics.pixelfont import draw_text  # noqa: E402
from graphics.png import encode_png  # noqa: E402
from graphics.terrains import MINIMAP_COLOURS, STEMS, TERRAINS  # noqa: E402

SETS = ["kjc_set1", "kjc_set2", "questor_set", "tolma_set"]

# One letter per terrain code 1..18.
LETTERS = "UWOFRfHJBDMhmsrvtC"
LANDSCAPE = [
    "UUUUUUWWWWWWWWWWWWffHHHH",
    "UUUUUWWWWWWWWWWWOOffHHHH",
    "UUUUWWWWmmWWWOOOOOfffHHH",
    "UUUWWWWmmssWWOvOFFOOffHH",
    "UUWWWWmssmmOOrOFFFFOOfff",
    "UUWWWWmmmOOOrOOFFFFROhhh",
    "UWWWWWWOOOOrOOOOOORRhhMM",
    "WWWWWWOOOtrrrrrrrrChhMMM",
    "WWWWWOOOFFrOORRROOrhhMMM",
    "WWWWOOOFFFrORRBBBOrhMMMM",
    "WWWJJOOFFvOOBBBDDDrhhMMM",
    "WWJJJJOOOOOOBBDDDDrBhhMM",
    "WJJJJJJfOORRBDDDDDrBBhhM",
    "WJJJJJffOORBBDDDDDvDBBhh",
    "WWJJJffHOOBBDDDDDDDDDBBh",
    "WWWJJffHHOBBDDDDDDDDDDBB",
]
NOTES = {(6, 8): "a note", (20, 2): "a note", (22, 8): "DUNGEON: Caves", (15, 12): "SPECIAL: Oasis"}
PATH = [(14, 5), (13, 6), (12, 7), (13, 8), (14, 8), (15, 8), (14, 8), (13, 7), (14, 6), (14, 5)]


def load(path):
    data = path.read_bytes()
    w, h, rows = decode_bmp(data) if path.suffix == ".bmp" else decode_gif(data)
    c = Canvas(w, h)
    c.px = [list(r) for r in rows]
    return c


def draw_landscape(tiles, markers):
    marks = {}
    for p in PATH:
        marks[p] = marks.get(p, 0) + 1
    terrain = terrain_from_letters(LANDSCAPE, LETTERS)
    c = draw_map(terrain, len(LANDSCAPE[0]), len(LANDSCAPE), tiles, markers, NOTES, marks, PATH[0])
    for x in range(c.width):
        c.set(x, 0, (0, 0, 0))
    for y in range(c.height):
        c.set(0, y, (0, 0, 0))
    return c


def set_sheet(name, folder, markers):
    tiles = {stem: load(folder / name / ("l_" + stem + ".bmp")) for stem in STEMS}
    smalls = {stem: load(folder / name / ("s_" + stem + ".bmp")) for stem in STEMS}
    land = draw_landscape(tiles, markers)
    big = land.scaled(3)
    sheet = Canvas(big.width + land.width + 24, big.height + 330, (60, 60, 64))
    draw_text(sheet, name, 8, 6, (255, 255, 255), 2)
    sheet.blit(big, 8, 30)
    sheet.blit(land, big.width + 16, 30)
    # each tile 4x, then 3x3 repeat at 1x, palette tile, minimap colour
    y0 = big.height + 40
    for i, (code, title, stem) in enumerate(TERRAINS):
        x = 8 + (i % 9) * 170
        y = y0 + (i // 9) * 140
        sheet.blit(tiles[stem].scaled(4), x, y)
        rep = Canvas(48, 48)
        for j in range(3):
            for k in range(3):
                rep.blit(tiles[stem], 16 * j, 16 * k)
        sheet.blit(rep.scaled(2), x + 68, y)
        sheet.blit(smalls[stem], x, y + 70)
        sheet.rect(x + 20, y + 70, x + 35, y + 85, MINIMAP_COLOURS[stem])
        draw_text(sheet, title, x, y + 100, (255, 255, 255))
    return sheet


def marker_sheet(folder, markers):
    sheet = Canvas(700, 420, (96, 120, 80))
    x = 8
    for name in ("note", "note_m", "dungeon", "special", "foot", "foot2", "foot3", "foot4"):
        if name in markers:
            pic = markers[name]
            sheet.rect(x - 1, 7, x + pic.width * 6, 8 + pic.height * 6, (70, 70, 70))
            scaled = pic.scaled(6)
            sheet.blit(scaled, x, 8)
            draw_text(sheet, name, x, 112, (255, 255, 255))
            x += pic.width * 6 + 12
    x = 8
    for name in ("new", "load", "save", "lock", "movement", "gotoxy", "gotonote", "gotosettlement"):
        path = folder / (name + ".gif")
        if path.exists():
            pic = load(path)
            sheet.rect(x, 130, x + pic.width * 3 + 1, 131 + pic.height * 3, (212, 208, 200))
            sheet.blit(pic.scaled(3), x + 1, 131)
            sheet.rect(x, 210, x + pic.width + 1, 211 + pic.height, (212, 208, 200))
            sheet.blit(pic, x + 1, 211)
            x += pic.width * 3 + 10
    about = folder / "wayscribe.gif"
    if about.exists():
        sheet.blit(load(about), 8, 250)
    return sheet


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    default = Path(__file__).resolve().parent.parent / "assets" / "graphics"
    parser.add_argument("--graphics", type=Path, default=default)
    parser.add_argument("--out", type=Path, default=Path("/tmp"))
    args = parser.parse_args()
    markers = {}
    for name in ("note", "note_m", "dungeon", "special", "foot", "foot2", "foot3", "foot4"):
        path = args.graphics / (name + ".gif")
        if path.exists():
            markers[name] = load(path)
    for name in SETS:
        if (args.graphics / name).exists():
            sheet = set_sheet(name, args.graphics, markers)
            (args.out / ("preview_" + name + ".png")).write_bytes(encode_png(sheet.width, sheet.height, sheet.px))
    sheet = marker_sheet(args.graphics, markers)
    (args.out / "preview_markers.png").write_bytes(encode_png(sheet.width, sheet.height, sheet.px))


if __name__ == "__main__":
    main()

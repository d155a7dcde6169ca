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
from graphics.canvas import Canvas, line_points  # noqa: E402
from graphics.gif import decode_gif  # noqa: E402
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
PATH = [(13, 4), (12, 5), (11, 6), (10, 7), (11, 7), (12, 7), (13, 8), (12, 7), (12, 8)]


def load(path):
    data = path.read_bytes()
    w, h, rows = decode_bmp(data) if path.suffix == ".bmp" else decode_gif(data)
    c = Canvas(w, h)
    c.px = [list(r) for r in rows]
    return c


def draw_landscape(tiles, markers):
    cols, rows = len(LANDSCAPE[0]), len(LANDSCAPE)
    terrain = {(x + 1, y + 1): LETTERS.index(ch) + 1 for y, row in enumerate(LANDSCAPE) for x, ch in enumerate(row)}
    marks = {}
    for p in PATH:
        marks[p] = marks.get(p, 0) + 1
    c = Canvas(cols * 16, rows * 16)
    black = (0, 0, 0)

    def line(a, b):
        # Lines on the original platform leave out their last pixel.
        for x, y in line_points(a[0], a[1], b[0], b[1])[:-1]:
            c.set(x, y, black)

    for y in range(1, rows + 1):
        for x in range(1, cols + 1):
            t = terrain[(x, y)]
            px, py = (x - 1) * 16, (y - 1) * 16
            c.blit(tiles[STEMS[t - 1]], px, py)
            if t == 15:
                cx, cy = px + 7, py + 7
                c.set(cx, cy, black)
                for dx, dy, a, b in (
                    (-1, 0, (px, py + 8), (cx, cy)),
                    (1, 0, (cx, cy), (px + 16, py + 8)),
                    (0, -1, (px + 8, py), (cx, cy)),
                    (0, 1, (cx, cy), (px + 8, py + 16)),
                    (-1, -1, (cx, cy), (px + 1, py)),
                    (1, -1, (cx, cy), (px + 16, py)),
                    (-1, 1, (cx, cy), (px, py + 16)),
                    (1, 1, (cx, cy), (px + 16, py + 15)),
                ):
                    if 15 <= terrain.get((x + dx, y + dy), 0) <= 18:
                        line(a, b)
            note = NOTES.get((x, y), "")
            if note.strip() and not 16 <= t <= 18 and "note" in markers:
                if note.startswith("DUNGEON:"):
                    c.blit(markers["dungeon"], px, py)
                elif note.startswith("SPECIAL:"):
                    c.blit(markers["special"], px, py)
                else:
                    mask, image = markers["note_m"], markers["note"]
                    for j in range(16):
                        for i in range(16):
                            d = c.px[py + j][px + i]
                            d = tuple(a & b for a, b in zip(d, mask.px[j][i]))
                            c.px[py + j][px + i] = tuple(a | b for a, b in zip(d, image.px[j][i]))
            m = marks.get((x, y), 0)
            if m and "foot" in markers:
                start = (x, y) == PATH[0]
                name = ("foot4" if start else "foot3") if m >= 2 else ("foot2" if start else "foot")
                c.blit(markers[name], px + 4, py + 3)
    for x in range(cols * 16):
        c.set(x, 0, black)
    for y in range(rows * 16):
        c.set(0, y, black)
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
            sheet.blit(scaled, x, 8, transparent=None)
            draw_text(sheet, name, x, 112, (255, 255, 255))
            x += pic.width * 6 + 12
    x = 8
    for name in ("new", "load", "save", "lock", "movement", "gotoxy", "gotonote", "gotosettlement"):
        path = folder / (name + ".gif")
        if path.exists():
            pic = load(path)
            sheet.rect(x, 130, x + pic.width * 3 + 1, 131 + pic.height * 3, (212, 208, 200))
            sheet.blit(pic.scaled(3), x + 1, 131, transparent=None)
            sheet.rect(x, 210, x + pic.width + 1, 211 + pic.height, (212, 208, 200))
            sheet.blit(pic, x + 1, 211, transparent=None)
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

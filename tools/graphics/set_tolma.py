"""The Tolmaworld set: an old atlas. Muted watercolour washes on parchment, with every shape
drawn in brown ink."""

from math import pi, sin

from .canvas import Canvas, darken, hash01, lighten
from . import motifs as m
from .terrains import TILE_SIZE

S = TILE_SIZE
INK = (78, 60, 42)
LIGHT_INK = (146, 118, 82)
BLUE_INK = (82, 106, 122)
PAPER = (232, 218, 178)
MEADOW = (214, 212, 164)

ROOFS = {"R": (180, 92, 64), "r": (142, 68, 48), "W": (238, 228, 198), "w": (202, 190, 160), "K": INK}
STONEWORK = dict(ROOFS, S=(214, 206, 184), s=(168, 158, 136), F=(180, 60, 40))


def _paper(tint, seed):
    """Parchment washed with a tint: a faint, seamless mottling like paper fibre."""
    c = Canvas(S, S)
    m.textured(c, tint, lighten(tint, 0.18), darken(tint, 0.08), seed=seed, cells=(8, 4, 2), contrast=0.7)
    return c


def _dashes(c, places, colour, width=4):
    for x0, y in places:
        for i in range(width):
            c.set(x0 + i, y, colour, wrap=True)


def unknown():
    c = Canvas(S, S, (88, 72, 54))
    for y in range(S):
        for x in range(S):
            if (x + y) % 4 == 0 or (x - y) % 4 == 0:
                c.set(x, y, (66, 52, 38))
    return c


def water():
    c = _paper((166, 188, 190), 21)
    for row, y in enumerate(range(3, S, 4)):
        for x0 in range(0, S, 8):
            m.wave(c, x0 + (4 if row % 2 else 0) + 1, y, BLUE_INK)
    return c


def open_():
    c = _paper(MEADOW, 31)
    tuft = {"L": (128, 136, 84), "D": INK}
    m.stamps(c, m.TUFT, tuft, [(2, 2), (10, 3), (6, 8), (13, 10), (1, 12), (8, 13)])
    return c


def field():
    c = _paper((218, 198, 148), 41)
    for y in range(1, S, 4):
        for x in range(S):
            if (x + y // 4 * 3) % 8 != 7:
                c.set(x, y, LIGHT_INK)
        for x in range(S):
            if hash01(x, y, 42) < 0.2:
                c.set(x, y + 2, (176, 164, 110))
    return c


def rough():
    c = _paper((206, 204, 160), 51)
    stone = {"H": (238, 230, 204), "M": (206, 196, 166), "D": (164, 150, 122)}
    m.stamps(c, m.STONE, stone, [(2, 2), (10, 4), (4, 10)], outline=INK)
    m.stamps(c, m.SMALL_STONE, stone, [(12, 12), (8, 1)], outline=INK)
    for x, y in ((14, 1), (1, 7), (9, 14), (7, 8)):
        c.set(x, y, INK)
    return c


def forest():
    c = _paper((186, 198, 142), 61)
    tree = {"L": (164, 184, 118), "M": (146, 168, 104), "D": (120, 144, 86), "T": INK}
    m.stamps(c, m.TREE, tree, [(1, 1), (9, 2), (5, 7), (11, 9), (1, 10)], outline=INK)
    return c


def hforest():
    c = _paper((150, 164, 116), 71)
    pine = {"L": (124, 146, 96), "M": (108, 130, 84), "D": (88, 110, 70), "T": INK}
    m.stamps(c, m.PINE, pine, [(1, 1), (6, 0), (11, 1), (3, 7), (9, 7), (13, 8)], outline=INK)
    return c


def jungle():
    c = _paper((164, 192, 152), 81)
    m.stamps(c, m.BUSH, {"L": (142, 178, 128), "M": (128, 166, 116), "D": (104, 142, 96)},
             [(1, 12), (7, 6), (12, 12)], outline=INK)
    palm = {"L": (98, 140, 90), "M": (84, 124, 80), "D": (66, 104, 66), "T": INK}
    m.stamps(c, m.PALM, palm, [(1, 1), (8, 0), (8, 8)])
    return c


def barren():
    c = _paper((220, 198, 146), 91)
    m.cracks(c, LIGHT_INK)
    return c


def desert():
    c = _paper((236, 214, 154), 101)
    for base, shift in ((4, 0), (12, 8)):
        for x in range(S):
            if (x + shift) % 16 < 11:
                y = int(base + 1.5 * sin(2 * pi * (x + shift) / S) + 0.5)
                c.set(x, y, INK, wrap=True)
                if (x + shift) % 2 == 0:
                    c.set(x, y + 2, LIGHT_INK, wrap=True)
    return c


def mountain():
    c = _paper((214, 202, 170), 111)
    rock = {"S": (244, 238, 222), "s": (206, 202, 192), "L": (204, 194, 170), "M": (176, 164, 142),
            "D": (136, 124, 104)}
    c.stamp(m.MOUNTAINS, rock, 0, 0, outline=INK)
    for y in range(S):
        for x in range(S):
            if c.get(x, y) == rock["D"] and (x + y) % 3 == 0:
                c.set(x, y, LIGHT_INK)
    return c


def hill():
    c = _paper((212, 206, 160), 121)
    hill = {"L": (228, 222, 182), "M": (200, 196, 148), "D": (166, 162, 116)}
    m.stamps(c, m.SMALL_HILL, hill, [(8, 1)], outline=INK, open_below=True)
    m.stamps(c, m.HILL, hill, [(1, 5), (5, 10)], outline=INK, open_below=True)
    return c


def marsh():
    c = _paper((198, 202, 162), 131)
    _dashes(c, [(1, 3), (10, 4), (5, 7), (12, 9), (2, 12), (9, 14)], BLUE_INK)
    m.stamps(c, m.REED, {"G": INK, "B": LIGHT_INK}, [(7, 1), (14, 5), (1, 6), (10, 10), (5, 11)])
    return c


def swamp():
    c = _paper((144, 150, 114), 141)
    for x0, y in ((2, 3), (10, 7), (4, 12), (12, 14)):
        _dashes(c, [(x0, y)], (96, 110, 100), 5)
        _dashes(c, [(x0 + 1, y)], BLUE_INK, 3)
    m.stamps(c, m.DEAD_TREE, {"T": INK}, [(10, 1)])
    reeds = {"G": INK, "B": (110, 80, 52)}
    m.stamps(c, m.REEDS, reeds, [(1, 5), (9, 9)])
    m.stamps(c, m.REED, reeds, [(6, 1), (14, 10)])
    return c


def road():
    c = Canvas(S, S)
    m.textured(c, (230, 218, 182), (240, 230, 200), (216, 202, 166), seed=151, cells=(4, 2), contrast=0.7)
    return c


def village():
    c = _paper(MEADOW, 161)
    m.stamps(c, m.HOUSE, ROOFS, [(2, 2), (9, 4), (4, 9)], outline=INK)
    return c


def town():
    c = _paper(MEADOW, 171)
    c.stamp(m.TOWN, STONEWORK, 0, 0, outline=INK)
    return c


def city():
    c = _paper(MEADOW, 181)
    c.stamp(m.CITY, STONEWORK, 0, 0, outline=INK)
    return c


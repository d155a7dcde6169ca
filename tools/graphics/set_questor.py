"""The QuestOR set: crisp retro tiles in the sixteen colours of old colour displays, checkerboard
dithering for in-between shades and black outlines around every shape."""

from .canvas import Canvas, fbm, hash01
from . import motifs as m
from .terrains import TILE_SIZE

S = TILE_SIZE

BLACK = (0, 0, 0)
BLUE = (0, 0, 170)
GREEN = (0, 170, 0)
CYAN = (0, 170, 170)
RED = (170, 0, 0)
BROWN = (170, 85, 0)
GREY = (170, 170, 170)
DARK_GREY = (85, 85, 85)
LIGHT_BLUE = (85, 85, 255)
LIGHT_GREEN = (85, 255, 85)
LIGHT_CYAN = (85, 255, 255)
LIGHT_RED = (255, 85, 85)
YELLOW = (255, 255, 85)
WHITE = (255, 255, 255)

ROOFS = {"R": LIGHT_RED, "r": RED, "W": WHITE, "w": GREY, "K": BLACK}
STONEWORK = dict(ROOFS, S=GREY, s=DARK_GREY, F=YELLOW)


def _dither(a, b, density=0.5, seed=0):
    """A tile of colour a with colour b on a checkerboard, thinned out to the given density."""
    c = Canvas(S, S, a)
    for y in range(S):
        for x in range(S):
            if (x + y) % 2 == 0 and (density >= 1 or hash01(x, y, seed) < density * 2):
                c.set(x, y, b)
    return c


def unknown():
    c = Canvas(S, S, BLACK)
    for i in range(0, S, 2):
        c.set(i, 0, DARK_GREY)
        c.set(0, i, DARK_GREY)
    return c


def water():
    c = Canvas(S, S, BLUE)
    for x, y in ((1, 3), (9, 2), (5, 7), (12, 9), (1, 12), (8, 14)):
        m.wave(c, x, y, LIGHT_BLUE)
        c.set(x + 1, y - 1, LIGHT_CYAN, wrap=True)
    return c


def open_():
    c = _dither(GREEN, BROWN, 0.08, 31)
    m.stamps(c, m.TUFT, {"L": LIGHT_GREEN, "D": BLACK}, [(2, 2), (10, 2), (6, 8), (13, 9), (1, 12), (9, 13)])
    return c


def field():
    c = Canvas(S, S, BROWN)
    for y in range(S):
        for x in range(S):
            if y % 4 == 3:
                c.set(x, y, BLACK if (x + y) % 2 else BROWN)
            elif y % 4 == 1 and x % 2 == (y // 4) % 2:
                c.set(x, y, GREEN)
            elif y % 4 == 0:
                c.set(x, y, YELLOW if x % 4 == (y // 4) % 4 else BROWN)
    return c


def rough():
    c = _dither(GREEN, LIGHT_GREEN, 0.12, 51)
    stone = {"H": WHITE, "M": GREY, "D": DARK_GREY}
    m.stamps(c, m.STONE, stone, [(2, 2), (10, 4), (4, 10)], outline=BLACK)
    m.stamps(c, m.SMALL_STONE, stone, [(12, 12), (8, 1)], outline=BLACK)
    return c


def forest():
    c = _dither(GREEN, BLACK, 0.15, 61)
    tree = {"L": LIGHT_GREEN, "M": GREEN, "D": GREEN, "T": BROWN}
    m.stamps(c, m.TREE, tree, [(1, 1), (9, 2), (5, 7), (11, 9), (1, 10)], outline=BLACK)
    return c


def hforest():
    c = _dither(GREEN, BLACK, 1.0)
    pine = {"L": LIGHT_GREEN, "M": GREEN, "D": GREEN, "T": BROWN}
    m.stamps(c, m.PINE, pine, [(1, 1), (6, 0), (11, 1), (3, 7), (9, 7), (13, 8)], outline=BLACK)
    return c


def jungle():
    c = _dither(GREEN, CYAN, 0.3, 81)
    palm = {"L": LIGHT_GREEN, "M": LIGHT_GREEN, "D": GREEN, "T": BROWN}
    m.stamps(c, m.BUSH, {"L": LIGHT_GREEN, "M": GREEN, "D": GREEN}, [(1, 12), (7, 6), (12, 12)], outline=BLACK)
    m.stamps(c, m.PALM, palm, [(1, 1), (8, 0), (8, 8)], shadow=(1, 1, BLACK))
    return c


def barren():
    c = _dither(YELLOW, BROWN, 1.0)
    m.cracks(c, BLACK)
    return c


def desert():
    c = Canvas(S, S, YELLOW)
    for x0, y in ((0, 4), (8, 11)):
        for i, dy in enumerate((2, 1, 0, 0, 0, 1, 2, 3)):
            c.set(x0 + i, y + dy, BROWN, wrap=True)
            if dy == 0:
                c.set(x0 + i, y - 1, WHITE, wrap=True)
    for x, y in ((12, 2), (3, 9), (14, 14), (5, 14)):
        c.set(x, y, BROWN)
    return c


def mountain():
    c = _dither(BROWN, GREEN, 0.25, 111)
    rock = {"S": WHITE, "s": GREY, "L": GREY, "M": GREY, "D": DARK_GREY}
    c.stamp(m.MOUNTAINS, rock, 0, 0, outline=BLACK)
    return c


def hill():
    c = _dither(GREEN, BROWN, 0.12, 121)
    hill = {"L": LIGHT_GREEN, "M": GREEN, "D": GREEN}
    m.stamps(c, m.SMALL_HILL, hill, [(8, 1)], outline=BLACK)
    m.stamps(c, m.HILL, hill, [(1, 5), (5, 10)], outline=BLACK)
    return c


def marsh():
    c = _dither(GREEN, CYAN, 0.12, 131)
    for x0, y, w in ((1, 3, 6), (9, 6, 5), (3, 10, 7), (12, 13, 6)):
        for i in range(w):
            c.set(x0 + i, y, CYAN, wrap=True)
            c.set(x0 + i, y + 1, BLUE, wrap=True)
    m.stamps(c, m.REED, {"G": BLACK, "B": BROWN}, [(8, 1), (14, 3), (1, 5), (11, 8), (6, 12), (1, 12)])
    return c


def swamp():
    c = Canvas(S, S, BLACK)
    for y in range(S):
        for x in range(S):
            if fbm(x, y, 142, (8, 4)) > 0.5 and (x + y) % 2 == 0:
                c.set(x, y, GREEN)
    for x0, y in ((2, 3), (10, 7), (4, 12), (12, 14)):
        m.wave(c, x0, y, CYAN)
    m.stamps(c, m.DEAD_TREE, {"T": BROWN}, [(10, 1)])
    reeds = {"G": LIGHT_GREEN, "B": BROWN}
    m.stamps(c, m.REEDS, reeds, [(1, 5), (9, 9)])
    m.stamps(c, m.REED, reeds, [(6, 2), (14, 10)])
    return c


def road():
    c = Canvas(S, S, GREY)
    for i in range(12):
        c.set(int(hash01(i, 1, 151) * S), int(hash01(i, 2, 151) * S), DARK_GREY)
    return c


def village():
    c = _dither(GREEN, BROWN, 0.12, 161)
    m.stamps(c, m.HOUSE, ROOFS, [(2, 2), (9, 4), (4, 9)], outline=BLACK)
    return c


def town():
    c = _dither(GREEN, BROWN, 0.12, 171)
    c.stamp(m.TOWN, STONEWORK, 0, 0, outline=BLACK)
    return c


def city():
    c = _dither(GREEN, BROWN, 0.12, 181)
    c.stamp(m.CITY, STONEWORK, 0, 0, outline=BLACK)
    return c


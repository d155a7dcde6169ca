"""KJC set 2: flat, bright colours and clean two-tone shapes, like a board game."""

from math import pi, sin

from .canvas import Canvas, hash01
from . import motifs as m
from .terrains import TILE_SIZE

S = TILE_SIZE
GRASS = (150, 206, 84)
ROOFS = {"R": (244, 72, 40), "r": (196, 40, 24), "W": (255, 246, 214), "w": (222, 204, 160), "K": (90, 60, 40)}
STONEWORK = dict(ROOFS, S=(232, 228, 216), s=(176, 170, 160), F=(255, 220, 0))


def _flat(light, dark, **more):
    """Two tones only: the lit and the middle parts of a shape share one colour."""
    return dict({"L": light, "M": light, "D": dark}, **more)


def _fill(colour):
    c = Canvas(S, S, colour)
    return c


def _sprinkle(c, colour, count, seed, rows=range(S)):
    for i in range(count):
        x = int(hash01(i, 1, seed) * S)
        y = rows[int(hash01(i, 2, seed) * len(rows))]
        c.set(x, y, colour)


def unknown():
    c = _fill((44, 44, 54))
    for y in range(0, S, 4):
        for x in range(0, S, 4):
            c.set(x + (2 if y % 8 else 0), y, (66, 66, 80))
    return c


def water():
    c = _fill((36, 124, 236))
    for row, y in enumerate(range(2, S, 4)):
        for x0 in range(0, S, 8):
            m.wave(c, x0 + (4 if row % 2 else 0) + 1, y, (168, 218, 255), (24, 96, 204))
    return c


def open_():
    c = _fill(GRASS)
    m.stamps(c, m.TUFT, {"L": (196, 236, 120), "D": (92, 158, 52)},
             [(2, 2), (10, 3), (6, 8), (13, 10), (1, 12), (8, 13)])
    return c


def field():
    c = _fill((214, 160, 72))
    for y in range(S):
        if y % 4 in (2, 3):
            for x in range(S):
                c.set(x, y, (170, 108, 46))
    for y in range(1, S, 4):
        for x in range(0, S, 2):
            c.set(x + (y // 4) % 2, y, (120, 190, 60))
    return c


def rough():
    c = _fill((104, 196, 96))
    stone = {"H": (236, 236, 236), "M": (196, 196, 196), "D": (128, 128, 136)}
    m.stamps(c, m.STONE, stone, [(2, 2), (10, 3), (6, 9), (12, 11)])
    m.stamps(c, m.SMALL_STONE, stone, [(1, 11), (7, 4), (14, 7)])
    return c


def forest():
    c = _fill((52, 156, 64))
    tree = _flat((112, 210, 84), (40, 124, 52), T=(140, 88, 44))
    m.stamps(c, m.BIG_TREE, tree, [(1, 0), (8, 2), (2, 8), (9, 8)])
    return c


def hforest():
    c = _fill((22, 104, 54))
    pine = _flat((48, 160, 80), (14, 76, 40), T=(120, 76, 40))
    m.stamps(c, m.PINE, pine, [(1, 0), (6, 1), (11, 0), (3, 7), (9, 6), (0, 8), (6, 8), (11, 8)])
    return c


def jungle():
    c = _fill((24, 164, 124))
    m.stamps(c, m.BUSH, _flat((70, 214, 140), (16, 120, 84)), [(1, 12), (7, 5), (12, 13), (6, 12)])
    m.stamps(c, m.PALM, _flat((132, 238, 120), (32, 140, 80), T=(176, 124, 60)), [(0, 1), (8, 0), (9, 8)])
    return c


def barren():
    c = _fill((226, 206, 112))
    crack = (176, 140, 68)
    for path in (
        [(0, 5), (4, 5), (6, 3), (10, 3), (12, 6), (16, 6)],
        [(6, 3), (6, 0)],
        [(12, 6), (11, 10), (14, 13), (16, 13)],
        [(0, 13), (3, 11), (7, 12), (8, 16)],
        [(4, 5), (3, 8)],
    ):
        for (x0, y0), (x1, y1) in zip(path, path[1:]):
            c.line(x0, y0, x1, y1, crack, wrap=True)
    return c


def desert():
    c = _fill((255, 222, 104))
    for base, shift in ((4, 0), (12, 8)):
        for x in range(S):
            y = int(base + 1.5 * sin(2 * pi * (x + shift) / S) + 0.5)
            c.set(x, y, (232, 176, 60), wrap=True)
            c.set(x, y - 1, (255, 242, 176), wrap=True)
    return c


def mountain():
    c = _fill((172, 160, 132))
    rock = {"S": (255, 255, 255), "s": (210, 222, 240), "L": (220, 216, 208), "M": (220, 216, 208),
            "D": (128, 122, 124)}
    c.stamp(m.MOUNTAINS, rock, 0, 0)
    return c


def hill():
    c = _fill((140, 204, 92))
    hill = {"L": (196, 240, 128), "M": (164, 222, 100), "D": (96, 166, 62)}
    m.stamps(c, m.SMALL_HILL, hill, [(9, 1)])
    m.stamps(c, m.HILL, hill, [(1, 5), (5, 10)])
    return c


def marsh():
    c = _fill((104, 184, 84))
    for x0, y, w in ((1, 3, 6), (9, 6, 5), (3, 10, 7), (12, 13, 6)):
        for i in range(w):
            c.set(x0 + i, y, (76, 160, 224), wrap=True)
    m.stamps(c, m.REED, {"G": (48, 128, 40), "B": (150, 90, 40)}, [(8, 1), (14, 3), (1, 5), (11, 8), (6, 12), (1, 12)])
    return c


def swamp():
    c = _fill((44, 112, 96))
    for x0, y in ((2, 3), (10, 7), (4, 12), (12, 14)):
        m.wave(c, x0, y, (70, 150, 140))
    reeds = {"G": (100, 180, 60), "B": (160, 100, 50)}
    m.stamps(c, m.DEAD_TREE, {"T": (130, 96, 60)}, [(10, 1)])
    m.stamps(c, m.REEDS, reeds, [(1, 5), (9, 10)])
    m.stamps(c, m.REED, reeds, [(6, 2), (14, 10)])
    return c


def road():
    c = _fill((228, 216, 188))
    _sprinkle(c, (204, 190, 160), 10, 151)
    return c


def village():
    c = _fill(GRASS)
    m.stamps(c, m.HOUSE, ROOFS, [(2, 2), (9, 4), (4, 9)])
    m.stamps(c, m.BUSH, _flat((112, 210, 84), (40, 124, 52)), [(11, 12)])
    return c


def town():
    c = _fill(GRASS)
    c.stamp(m.TOWN, STONEWORK, 0, 0)
    return c


def city():
    c = _fill(GRASS)
    c.stamp(m.CITY, STONEWORK, 0, 0)
    return c


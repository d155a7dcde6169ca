"""KJC set 1, the default: rich, softly shaded tiles with drop shadows, like small paintings."""

from .canvas import Canvas, darken, fbm, hash01, lighten, mix
from . import motifs as m
from .terrains import TILE_SIZE

S = TILE_SIZE
SHADOW = 0.35

GRASS = ((140, 152, 72), (168, 178, 96), (112, 118, 56))


def _shadow(amount=SHADOW):
    return lambda c: darken(c, amount)


def _meadow(c, seed):
    m.textured(c, *GRASS, seed=seed, cells=(8, 4, 2))
    for i in range(7):
        x, y = int(hash01(i, 1, seed) * S), int(hash01(i, 2, seed) * S)
        c.set(x, y, (112, 96, 58))


def unknown():
    c = Canvas(S, S)
    m.textured(c, (32, 32, 38), (56, 56, 66), (18, 18, 22), seed=11, cells=(8, 4))
    return c


def water():
    c = Canvas(S, S)
    m.textured(c, (36, 84, 172), (58, 116, 204), (24, 60, 140), seed=21, cells=(8, 4))
    for x, y in ((1, 3), (9, 1), (5, 7), (12, 9), (1, 12), (8, 14)):
        m.wave(c, x, y, (170, 210, 245), (26, 58, 132))
    return c


def open_():
    c = Canvas(S, S)
    _meadow(c, 31)
    tuft = {"L": (178, 200, 96), "D": (84, 112, 42)}
    m.stamps(c, m.TUFT, tuft, [(1, 2), (9, 1), (5, 7), (12, 8), (2, 12), (9, 13)])
    return c


def field():
    c = Canvas(S, S)
    rows = [(176, 120, 62), (146, 94, 46), (104, 64, 30), (128, 82, 40)]

    def at(x, y):
        base = rows[y % 4]
        n = fbm(x, y, 41, (8, 4)) - 0.5
        return lighten(base, n * 0.3) if n > 0 else darken(base, -n * 0.3)

    c.paint(at)
    for y in range(0, S, 4):
        for x in range(S):
            if hash01(x, y, 42) < 0.35:
                c.set(x, y, (104, 150, 48))
                c.set(x, y - 1, (78, 122, 38), wrap=True)
    return c


def rough():
    c = Canvas(S, S)
    m.textured(c, (88, 148, 70), (114, 174, 86), (64, 118, 54), seed=51)
    for y in range(S):
        for x in range(S):
            if fbm(x, y, 52, (8, 4)) > 0.62:
                c.set(x, y, (150, 132, 92))
    stone = {"H": (218, 218, 208), "M": (160, 158, 150), "D": (96, 94, 88)}
    m.stamps(c, m.STONE, stone, [(1, 2), (10, 4), (4, 10)], shadow=(1, 1, _shadow()))
    m.stamps(c, m.SMALL_STONE, stone, [(12, 12), (7, 1), (13, 0)], shadow=(1, 1, _shadow()))
    return c


def forest():
    c = Canvas(S, S)
    m.textured(c, (46, 98, 40), (62, 118, 50), (30, 72, 30), seed=61)
    tree = {"L": (124, 184, 72), "M": (72, 142, 50), "D": (40, 96, 36), "T": (96, 64, 34)}
    m.stamps(c, m.TREE, tree, [(1, 0), (9, 2), (4, 6), (11, 9), (1, 10), (6, 10)], shadow=(1, 1, _shadow(0.4)))
    return c


def hforest():
    c = Canvas(S, S)
    m.textured(c, (20, 52, 28), (30, 66, 36), (12, 36, 20), seed=71)
    pine = {"L": (58, 128, 66), "M": (32, 96, 50), "D": (16, 64, 36), "T": (74, 52, 30)}
    places = [(0, 0), (10, 0), (2, 5), (8, 4), (12, 6), (5, 9), (10, 10)]
    m.stamps(c, m.PINE, pine, places, shadow=(1, 1, _shadow(0.45)))
    return c


def jungle():
    c = Canvas(S, S)
    m.textured(c, (26, 108, 78), (40, 138, 96), (14, 76, 56), seed=81)
    bush = {"L": (92, 186, 104), "M": (50, 150, 86), "D": (24, 104, 62)}
    m.stamps(c, m.BUSH, bush, [(0, 12), (7, 6), (12, 13), (5, 13)], shadow=(1, 1, _shadow()))
    palm = {"L": (130, 214, 112), "M": (64, 172, 90), "D": (32, 122, 70), "T": (146, 108, 62)}
    m.stamps(c, m.PALM, palm, [(0, 1), (8, 0), (9, 8)], shadow=(1, 1, _shadow()))
    return c


def barren():
    c = Canvas(S, S)
    m.textured(c, (194, 174, 108), (214, 198, 134), (168, 148, 88), seed=91)
    crack = (116, 96, 60)
    m.cracks(c, crack, extra=([(13, 4), (14, 1)],))
    for x, y in ((2, 8), (12, 1), (14, 14), (4, 1)):
        c.set(x, y, (140, 122, 82))
    return c


def desert():
    c = Canvas(S, S)
    from math import sin, pi

    sand, lit, shade = (232, 200, 108), (248, 226, 150), (196, 156, 78)
    crests = [lambda x: 4 + 1.6 * sin(2 * pi * x / S), lambda x: 11 + 1.6 * sin(2 * pi * (x + 8) / S)]

    def at(x, y):
        colour = sand
        for crest in crests:
            d = y + 0.5 - crest(x + 0.5)
            if -3 <= d < 0:
                colour = mix(sand, lit, 1 + d / 3)
            elif 0 <= d < 2:
                colour = mix(shade, sand, d / 2)
        n = fbm(x, y, 101, (4, 2)) - 0.5
        return lighten(colour, n * 0.1) if n > 0 else darken(colour, -n * 0.1)

    c.paint(at)
    return c


def mountain():
    c = Canvas(S, S)
    m.textured(c, (124, 116, 98), (144, 136, 116), (100, 94, 80), seed=111)
    rock = {"S": (250, 250, 252), "s": (196, 200, 212), "L": (176, 168, 156), "M": (136, 128, 120),
            "D": (88, 82, 80)}
    c.stamp(m.MOUNTAINS, rock, 0, 0, shadow=(1, 1, _shadow(0.25)))
    for y in range(S):
        for x in range(S):
            if c.get(x, y) in (rock["L"], rock["M"], rock["D"]) and hash01(x, y, 112) < 0.22:
                c.set(x, y, darken(c.get(x, y), 0.12))
    return c


def hill():
    c = Canvas(S, S)
    m.textured(c, (132, 148, 84), (150, 164, 98), (114, 128, 70), seed=121)
    hill = {"L": (190, 202, 126), "M": (150, 166, 92), "D": (100, 118, 62)}
    m.stamps(c, m.SMALL_HILL, hill, [(8, 1)], shadow=(1, 1, _shadow()))
    m.stamps(c, m.HILL, hill, [(0, 5), (5, 10)], shadow=(1, 1, _shadow()))
    return c


def marsh():
    c = Canvas(S, S)
    m.textured(c, (98, 130, 64), (120, 152, 80), (78, 106, 50), seed=131)
    pool, glint = (84, 122, 132), (140, 176, 186)
    for x0, y, w in ((1, 3, 6), (9, 6, 5), (3, 10, 7), (12, 13, 6)):
        for i in range(w):
            c.set(x0 + i, y, pool, wrap=True)
        c.set(x0 + 1, y, glint, wrap=True)
    reeds = {"G": (52, 90, 26), "B": (122, 78, 36)}
    m.stamps(c, m.REED, reeds, [(8, 1), (14, 3), (1, 5), (11, 8), (6, 12), (1, 12)])
    return c


def swamp():
    c = Canvas(S, S)
    m.textured(c, (46, 66, 54), (62, 86, 66), (30, 46, 38), seed=141)
    for y in range(S):
        for x in range(S):
            if fbm(x, y, 142, (4, 2)) > 0.64:
                c.set(x, y, (78, 92, 48))
    for x, y in ((3, 9), (12, 15), (6, 4), (14, 8)):
        c.set(x, y, (104, 130, 118))
        c.set(x + 1, y, (80, 104, 94))
    m.stamps(c, m.DEAD_TREE, {"T": (104, 84, 60)}, [(9, 1)], shadow=(1, 1, _shadow()))
    reeds = {"G": (90, 128, 50), "B": (128, 86, 44)}
    m.stamps(c, m.REEDS, reeds, [(1, 2), (9, 10)])
    m.stamps(c, m.REED, reeds, [(5, 11), (14, 4), (2, 12)])
    return c


def road():
    c = Canvas(S, S)
    m.textured(c, (186, 172, 140), (202, 190, 162), (164, 150, 118), seed=151, cells=(4, 2), contrast=0.8)
    return c


ROOF = {"R": (204, 74, 46), "r": (142, 46, 30), "W": (232, 216, 176), "w": (182, 164, 128), "K": (70, 50, 36)}


def village():
    c = Canvas(S, S)
    _meadow(c, 161)
    m.stamps(c, m.TREE, {"L": (124, 184, 72), "M": (72, 142, 50), "D": (40, 96, 36), "T": (96, 64, 34)}, [(11, 9)],
             shadow=(1, 1, _shadow()))
    m.stamps(c, m.HOUSE, ROOF, [(1, 2), (9, 3), (4, 9)], shadow=(1, 1, _shadow()))
    return c


STONEWORK = dict(ROOF, S=(198, 192, 180), s=(142, 136, 128), F=(226, 40, 30))


def town():
    c = Canvas(S, S)
    _meadow(c, 171)
    c.stamp(m.TOWN, STONEWORK, 0, 0, shadow=(1, 1, _shadow()))
    return c


def city():
    c = Canvas(S, S)
    _meadow(c, 181)
    c.stamp(m.CITY, STONEWORK, 0, 0, shadow=(1, 1, _shadow()))
    return c


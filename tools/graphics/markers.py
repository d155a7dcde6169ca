"""Pictures drawn over map tiles: the note marker and its mask, the footprints of the movement
counter, and the dungeon and special-place icons."""

from math import atan2, cos, hypot, pi

from .canvas import Canvas, art, darken, hash01, lighten, mix

BLACK = (0, 0, 0)
WHITE = (255, 255, 255)

# A pinned sheet of parchment in the tile's upper right corner; O is its dark edge.
NOTE = art("""
    .....OOO........
    ....OrRO........
    ...OOrrOOOOO....
    ..OPPOOPPPFO....
    ..OPKKKPPPFFO...
    ..OPPPPPPPPPO...
    ..OPKKKKKKPpO...
    ..OPPPPPPPPpO...
    ..OPKKKKPPPpO...
    ..OPPPPPPPPpO...
    ...OOOOOOOOO....
""")
NOTE_COLOURS = {
    "O": (70, 46, 24),
    "P": (246, 234, 192),
    "p": (206, 186, 136),
    "F": (222, 206, 160),
    "K": (128, 104, 72),
    "r": (196, 30, 30),
    "R": (255, 132, 120),
}
NOTE_AT = (3, 0)

# A shoe print, sole over heel, inside a dark rim (K); drawn at (4, 3) inside a tile.
FOOT = art("""
    ..KKK...
    .KfFfK..
    KfFfffK.
    KffffffK
    KffffffK
    .KffffK.
    ..KKKK..
    .KfFffK.
    .KffffK.
    ..KKKK..
""")
# Start square green, a square passed again red, the start passed again both: amber.
FOOT_COLOURS = {
    "foot": (246, 240, 214),
    "foot2": (86, 222, 86),
    "foot3": (240, 72, 48),
    "foot4": (255, 196, 40),
}

DUNGEON = art("""
    rrrrrrrrrrrrrrrr
    rrrrrrrrrrrrrrrr
    rrrrrAAAAAArrrrr
    rrrAAaKKKKaAArrr
    rrAaKKKKKKKKaArr
    rrAKKKKKKKKKKArr
    rAaKKKKKKKKKKaAr
    rAKKSSSSSSSSKKAr
    rAKKssssssssKKAr
    rAKKKSSSSSSKKKAr
    rAKKKssssssKKKAr
    rAKKKKSSSSKKKKAr
    rAKKKKssssKKKKAr
    rAKKKKKKKKKKKKAr
    gggggggggggggggg
    gggggggggggggggg
""")


def note_pictures():
    """The note marker and its mask. The map draws the mask with AND and then the marker with OR,
    so the mask is white where the terrain shows and black under the marker, and the marker is
    black where the terrain shows."""
    image = Canvas(16, 16, BLACK)
    mask = Canvas(16, 16, WHITE)
    image.stamp(NOTE, NOTE_COLOURS, *NOTE_AT)
    mask.stamp(NOTE, {k: BLACK for k in NOTE_COLOURS}, *NOTE_AT)
    return image, mask


def footprint(name):
    fill = FOOT_COLOURS[name]
    c = Canvas(8, 10, None)
    c.stamp(FOOT, {"K": (30, 22, 16), "f": fill, "F": lighten(fill, 0.45)}, 0, 0)
    return c


def dungeon():
    c = Canvas(16, 16)
    rock, rock_dark = (128, 120, 112), (92, 86, 80)
    for y in range(16):
        for x in range(16):
            c.set(x, y, rock if hash01(x // 3 + (y // 2) * 7, y // 2, 7) < 0.6 else rock_dark)
            if y % 2 == 0 and hash01(x, y, 8) < 0.25:
                c.set(x, y, (70, 64, 60))
    c.stamp(DUNGEON, {
        "A": (196, 186, 168), "a": (150, 140, 126), "K": (14, 10, 12), "S": (176, 164, 148),
        "s": (88, 80, 74), "g": (96, 112, 70),
    }, 0, 0)
    for x in range(16):
        if hash01(x, 1, 9) < 0.5:
            c.set(x, 14, (120, 140, 84))
    return c


def special():
    c = Canvas(16, 16)
    centre = 7.5
    for y in range(16):
        for x in range(16):
            d = hypot(x - centre, y - centre) / 11.0
            c.set(x, y, mix((92, 52, 150), (24, 14, 52), min(1.0, d)))
    gold, white = (255, 214, 64), (255, 252, 220)
    for y in range(16):
        for x in range(16):
            dx, dy = x - centre, y - centre
            r = hypot(dx, dy)
            a = atan2(dy, dx)
            # four long points and four short ones
            reach = 5.6 * abs(cos(2 * a)) ** 4 + 2.8 * abs(cos(2 * a + pi / 2)) ** 4 + 1.6
            if r <= reach:
                c.set(x, y, white if r < 1.6 else gold if r < reach - 0.8 else darken(gold, 0.25))
    for x, y in ((2, 2), (13, 3), (3, 13), (12, 12)):
        c.set(x, y, white)
    return c

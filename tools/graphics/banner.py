"""The About window's picture: the program's name over an unrolled map with a compass rose."""

from math import cos, hypot, pi, sin

from . import markers, set_kjc1
from .canvas import Canvas, darken, fbm, lighten, mix, noise
from .mapdraw import draw_map, terrain_from_letters
from .pixelfont import draw_text, text_width
from .terrains import STEMS, tile_function

WIDTH, HEIGHT = 320, 160
INK = (78, 56, 34)
TITLE = "Wayscribe"
CAPTION = "Map keeper"

LETTERS = "UWOFRfHJBDMhmsrvtC"
MAP = [
    "WWWWOOOfffH",
    "WWWOvrrrrtM",
    "WWOOOFFFrhM",
    "WmmOFFFRrhh",
    "WWmOORRRCBD",
]
MAP_NOTES = {(2, 4): "a note", (10, 4): "DUNGEON: cave"}


def _wood(c):
    for y in range(HEIGHT):
        for x in range(WIDTH):
            base = mix((92, 60, 36), (44, 28, 18), y / HEIGHT)
            grain = noise(x, y * 10, 3, 40, WIDTH * 10) - 0.5
            c.set(x, y, lighten(base, grain * 0.25) if grain > 0 else darken(base, -grain * 0.4))


def _roller(c, x0, x1, y0, y1):
    """A wooden map roller seen from the front, with brass knobs at both ends."""
    w = x1 - x0
    for x in range(x0, x1 + 1):
        t = (x - x0) / w
        shade = 1 - abs(t - 0.35) * 1.6
        colour = mix((72, 42, 22), (206, 150, 92), max(0.0, shade))
        for y in range(y0, y1 + 1):
            c.set(x, y, colour)
        for y, h in ((y0 - 6, 6), (y1 + 1, 6)):
            knob = mix((120, 84, 20), (255, 222, 120), max(0.0, shade))
            for k in range(h):
                if abs(t - 0.5) * 2 <= 0.75 + 0.25 * (1 - abs(k - h / 2) / (h / 2)):
                    c.set(x, y + k, knob)


def _parchment(c, x0, x1, y0, y1):
    for y in range(y0, y1 + 1):
        for x in range(x0, x1 + 1):
            n = fbm(x, y, 5, (32, 16, 8, 4), period=320) - 0.5
            edge = min(y - y0, y1 - y) / 10.0
            colour = mix((240, 226, 184), (214, 190, 138), 0.5 + n)
            if edge < 1:
                colour = darken(colour, (1 - edge) * 0.22)
            c.set(x, y, colour)


def _compass(c, cx, cy, r):
    """An eight-pointed compass rose: every point a kite split into a lit and a shaded half."""
    gold, gold_dark = (226, 176, 64), (140, 96, 28)
    red, red_dark = (206, 52, 36), (128, 28, 20)
    for y in range(cy - r, cy + r + 1):
        for x in range(cx - r, cx + r + 1):
            if abs(hypot(x + 0.5 - cx, y + 0.5 - cy) - r * 0.7) < 0.75:
                c.set(x, y, INK)
    for k in (1, 3, 5, 7, 0, 2, 4, 6):
        a = k * pi / 4
        length, half = (r, r * 0.2) if k % 2 == 0 else (r * 0.58, r * 0.15)
        dx, dy = sin(a), -cos(a)
        tip = (cx + dx * length, cy + dy * length)
        left = (cx - dy * half, cy + dx * half)
        right = (cx + dy * half, cy - dx * half)
        lit, shade = (red, red_dark) if k == 0 else (gold, gold_dark)
        c.polygon([(cx, cy), tip, left], lit)
        c.polygon([(cx, cy), tip, right], shade)
    c.set(cx, cy, INK)
    c.set(cx - 1, cy, INK)
    c.set(cx, cy - 1, INK)
    c.set(cx - 1, cy - 1, INK)
    draw_text(c, "N", cx - 3, cy - r - 10, INK)


def _title(c):
    size = 4
    w = text_width(TITLE) * size
    x0, y0 = (WIDTH - w) // 2, 6
    letters = Canvas(WIDTH, HEIGHT, None)
    draw_text(letters, TITLE, x0, y0, (1, 1, 1), size)
    solid = {(x, y) for y in range(HEIGHT) for x in range(WIDTH) if letters.px[y][x] is not None}
    for x, y in solid:
        c.set(x + 3, y + 3, darken(c.get(x + 3, y + 3), 0.6))
    for x, y in solid:
        for dx in (-2, -1, 0, 1, 2):
            for dy in (-2, -1, 0, 1, 2):
                if (x + dx, y + dy) not in solid and abs(dx) + abs(dy) <= 3:
                    c.set(x + dx, y + dy, (36, 20, 10))
    for x, y in solid:
        t = (y - y0) / (7 * size)
        colour = mix((255, 240, 160), (210, 140, 36), t)
        if (y - y0) % size == 0 and t < 0.3:
            colour = lighten(colour, 0.3)
        c.set(x, y, colour)


def about_picture():
    c = Canvas(WIDTH, HEIGHT)
    _wood(c)
    _title(c)
    top, bottom = 52, 150
    _parchment(c, 28, 291, top, bottom)
    _roller(c, 16, 29, top - 2, bottom + 2)
    _roller(c, 290, 303, top - 2, bottom + 2)
    tiles = {stem: tile_function(set_kjc1, stem)() for stem in STEMS}
    image, mask = markers.note_pictures()
    pictures = {"note": image, "note_m": mask, "dungeon": markers.dungeon(), "special": markers.special()}
    terrain = terrain_from_letters(MAP, LETTERS)
    view = draw_map(terrain, len(MAP[0]), len(MAP), tiles, pictures, MAP_NOTES)
    mx, my = 44, top + 9
    for x in range(mx - 2, mx + view.width + 2):
        for y in (my - 2, my + view.height + 1):
            c.set(x, y, INK)
    for y in range(my - 2, my + view.height + 2):
        for x in (mx - 2, mx + view.width + 1):
            c.set(x, y, INK)
    c.blit(view, mx, my)
    _compass(c, 256, 90, 22)
    draw_text(c, CAPTION, 256 - text_width(CAPTION) // 2, 124, INK)
    return c

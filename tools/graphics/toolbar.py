"""Pictures of the main window's toolbar buttons, 24 x 24 on a see-through background."""

from .canvas import Canvas, art, darken, lighten
from . import markers, motifs, set_kjc1

SIZE = 24
EDGE = (40, 32, 28)
PARCHMENT = (246, 234, 192)
PARCHMENT_SHADE = (206, 186, 136)
GO_GREEN = (60, 180, 60)

ARROW = art("""
    .....g...
    .....gg..
    GGGGGggg.
    ggggggggg
    gggggggg.
    .....gg..
    .....g...
""")

PLUS = art("""
    ..GGg..
    ..GWg..
    GGGWGGg
    GWWWWWg
    gggWggg
    ..gWg..
    ..ggg..
""")

FOLDER_BACK = art("""
    BBBBB...........
    BbbbbB..........
    BbbbbbBBBBBBBBB.
    Bbbbbbbbbbbbbbb.
    Bbbbbbbbbbbbbbb.
    Bbbbbbbbbbbbbbb.
    Bbbbbbbbbbbbbbb.
    Bbbbbbbbbbbbbbb.
    Bbbbbbbbbbbbbbb.
    Bbbbbbbbbbbbbbb.
    Bbbbbbbbbbbbbbb.
    BBBBBBBBBBBBBBB.
""")

FOLDER_FRONT = art("""
    ....BBBBBBBBBBBBBBB
    ...BffffffffffffffB
    ...BfffffffffffffB.
    ..BfffffffffffffB..
    ..BffffffffffffFB..
    .BffffffffffffFB...
    .BfffffffffffFFB...
    BBBBBBBBBBBBBBB....
""")

FLOPPY = art("""
    KKKKKKKKKKKKKKKKKK.
    KbbbMMMMMMMMMMbbbbK
    KbbbMMMMMMKKMMbbbbK
    KbbbMMMMMMKKMMbbbbK
    KbbbMMMMMMKKMMbbbbK
    KbbbMMMMMMMMMMbbbbK
    KbbbbbbbbbbbbbbbbbK
    KbbbbbbbbbbbbbbbbbK
    KbbWWWWWWWWWWWWbbbK
    KbbWWWWWWWWWWWWbbbK
    KbbWRRRRRRRRRRWbbbK
    KbbWWWWWWWWWWWWbbbK
    KbbWLLLLLLLLLLWbbbK
    KbbWWWWWWWWWWWWbbbK
    KbbWLLLLLLLLLLWbbbK
    KbbWWWWWWWWWWWWbbbK
    KKKKKKKKKKKKKKKKKKK
""")

PADLOCK = art("""
    ....KKKKKK....
    ...KsSSSSsK...
    ..KsSKKKKSsK..
    ..KSK....KSK..
    ..KSK....KSK..
    ..KSK....KSK..
    ..KSK....KSK..
    KKKKKKKKKKKKKK
    KYYYYYYYYYYYyK
    KYHHHYYYYYYYyK
    KYHYYYKKYYYYyK
    KYYYYKKKKYYYyK
    KYYYYYKKYYYYyK
    KYYYYYKKYYYYyK
    KYYYYYKKYYYYyK
    KYYYYYYYYYYYyK
    KyyyyyyyyyyyyK
    KKKKKKKKKKKKKK
""")


def _blank():
    return Canvas(SIZE, SIZE, None)


def _sheet(c, x0, y0, x1, y1, fold=4):
    """A sheet of parchment with a folded upper right corner."""
    for y in range(y0, y1 + 1):
        for x in range(x0, x1 + 1):
            if x - x0 + (y0 + fold) - y > x1 - x0:
                continue
            edge = x in (x0, x1) or y in (y0, y1) or x - x0 + (y0 + fold) - y == x1 - x0
            c.set(x, y, EDGE if edge else PARCHMENT_SHADE if x >= x1 - 1 or y >= y1 - 1 else PARCHMENT)
    for i in range(fold + 1):
        c.set(x1 - fold, y0 + i, EDGE)
        c.set(x1 - fold + i, y0 + fold, EDGE)
    for y in range(y0 + 1, y0 + fold):
        for x in range(x1 - fold + 1, x1 - fold + 1 + (y - y0)):
            c.set(x, y, darken(PARCHMENT, 0.12))


def _go_arrow(c):
    c.stamp(ARROW, {"g": GO_GREEN, "G": lighten(GO_GREEN, 0.4)}, 14, 16, outline=EDGE)


def new():
    c = _blank()
    _sheet(c, 3, 1, 17, 21)
    for y in (8, 11, 14):
        c.line(6, y, 13, y, PARCHMENT_SHADE)
    c.stamp(PLUS, {"G": lighten(GO_GREEN, 0.35), "g": GO_GREEN, "W": (255, 255, 255)}, 15, 15, outline=EDGE)
    return c


def load():
    c = _blank()
    folder = {"B": EDGE, "b": (206, 160, 52), "f": (250, 208, 92), "F": (214, 170, 64)}
    c.stamp(FOLDER_BACK, folder, 1, 6)
    _sheet(c, 6, 2, 18, 13, fold=3)
    c.line(8, 7, 14, 7, PARCHMENT_SHADE)
    c.line(8, 9, 15, 9, PARCHMENT_SHADE)
    c.stamp(FOLDER_FRONT, folder, 2, 10)
    return c


def save():
    c = _blank()
    disk = {"K": EDGE, "b": (52, 86, 170), "M": (196, 200, 210), "W": (250, 250, 244), "R": (200, 50, 40),
            "L": (150, 160, 180)}
    c.stamp(FLOPPY, disk, 2, 3)
    return c


def lock():
    c = _blank()
    padlock = {"K": EDGE, "S": (196, 200, 210), "s": (130, 134, 146), "Y": (236, 190, 60), "y": (176, 128, 36),
               "H": (255, 238, 160)}
    c.stamp(PADLOCK, padlock, 5, 3)
    return c


def movement():
    c = _blank()
    prints = {"K": EDGE, "f": (186, 132, 82), "F": (226, 184, 132)}
    c.stamp(markers.FOOT, prints, 3, 11)
    c.stamp(markers.FOOT, prints, 13, 2)
    for x, y in ((11, 16), (14, 14), (8, 8)):
        c.set(x, y, EDGE)
    return c


def gotoxy():
    c = _blank()
    for y in range(2, 20):
        for x in range(2, 20):
            on_grid = (x - 2) % 6 == 0 or (y - 2) % 6 == 0
            c.set(x, y, EDGE if x in (2, 19) or y in (2, 19) else PARCHMENT_SHADE if on_grid else PARCHMENT)
    red = (210, 40, 30)
    for x, y in ((10, 6), (11, 6), (9, 7), (12, 7), (8, 8), (13, 8), (8, 9), (13, 9), (8, 12), (13, 12),
                 (8, 13), (13, 13), (9, 14), (12, 14), (10, 15), (11, 15), (7, 10), (7, 11), (14, 10), (14, 11)):
        c.set(x, y, red)
    for i in range(4, 18):
        if not 9 <= i <= 12:
            c.set(i, 10, red)
            c.set(10, i, red)
    _go_arrow(c)
    return c


def gotonote():
    c = _blank()
    c.stamp(markers.NOTE, markers.NOTE_COLOURS, 1, 3)
    _go_arrow(c)
    return c


def gotosettlement():
    c = _blank()
    c.stamp(motifs.TOWN, set_kjc1.STONEWORK, 0, 0, outline=EDGE)
    _go_arrow(c)
    return c


BUTTONS = {
    "new": new,
    "load": load,
    "save": save,
    "lock": lock,
    "movement": movement,
    "gotoxy": gotoxy,
    "gotonote": gotonote,
    "gotosettlement": gotosettlement,
}

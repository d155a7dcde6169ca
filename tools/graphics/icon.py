"""The program's icon: a folded parchment map with a coast, hills, woods, a compass rose and a
dashed red path that ends at a cross. Small sizes leave out what would only be a smudge there."""

from .vector import Circle, Polygon, Ring, Stroke, star

DESIGN = 256

PARCHMENT = (240, 226, 184)
INK = (78, 56, 34)
WATER = (86, 142, 190)
SHALLOWS = (150, 192, 214)
HILL, HILL_SHADE = (176, 142, 96), (128, 98, 62)
WOOD = (84, 128, 60)
PATH = (192, 40, 30)
GOLD, GOLD_SHADE = (226, 176, 64), (150, 104, 30)
NEEDLE = (206, 52, 36)

# The sheet folds twice: its top and bottom edges zigzag through these corners, left to right.
TOP = [(20, 62), (92, 38), (164, 62), (236, 38)]
BOTTOM = [(20, 218), (92, 194), (164, 218), (236, 194)]
OUTLINE = TOP + BOTTOM[::-1]

COAST = [(20, 124), (34, 128), (44, 142), (48, 160), (62, 172), (80, 180), (92, 194), (20, 218)]
HILLS = [((176, 112), (196, 80), (216, 112)), ((200, 120), (218, 92), (234, 120))]
WOODS = [(112, 88, 10), (130, 80, 10), (124, 102, 11), (144, 94, 9)]
ROUTE = [(52, 154), (64, 128), (92, 120), (110, 146), (140, 158), (168, 140), (190, 160)]
CROSS = (202, 170)
COMPASS = (56, 88)


def _snapped(points, size):
    """The points moved to the nearest pixel centres at `size`, so that one-pixel lines along them
    stay sharp instead of smearing over two pixels."""
    unit = DESIGN / size
    return [((int(x / unit) + 0.5) * unit, (int(y / unit) + 0.5) * unit) for x, y in points]


def _compass(fine):
    cx, cy = COMPASS
    shapes = [Ring(cx, cy, 17, 3, INK)]
    if fine:
        shapes.append(Polygon(star(cx, cy, 4, 20, 5, turn=0.785398), GOLD_SHADE))
    points = star(cx, cy, 4, 26, 7)
    # Each tip is a kite split into a lit and a shaded half; the north tip is the needle.
    for k in range(4):
        tip, left, right = points[2 * k], points[2 * k - 1], points[2 * k + 1]
        lit, shade = (NEEDLE, (130, 28, 20)) if k == 0 else (GOLD, GOLD_SHADE)
        shapes.append(Polygon([COMPASS, left, tip], lit))
        shapes.append(Polygon([COMPASS, tip, right], shade))
    return shapes


def shapes(size=DESIGN):
    """The icon's shapes on a DESIGN-unit square, as drawn at `size` pixels."""
    fine, small = size >= 64, size <= 24
    top, bottom = (_snapped(TOP, size), _snapped(BOTTOM, size)) if small else (TOP, BOTTOM)
    outline = top + bottom[::-1]
    pixel = DESIGN / size
    out = [Polygon([(x + 5, y + 8) for x, y in outline], (0, 0, 0), alpha=0.3)]
    out.append(Polygon(outline, PARCHMENT))
    out.append(Polygon(COAST, WATER))
    if not small:
        out.append(Stroke(COAST[:-1], 6, SHALLOWS))
    for peak in HILLS:
        (lx, ly), (tx, ty), (rx, ry) = peak
        out.append(Polygon(list(peak), HILL))
        out.append(Polygon([(tx, ty), (rx, ry), ((lx + rx) / 2 + 2, ly)], HILL_SHADE))
    if not small:
        out += [Circle(x, y, r, WOOD) for x, y, r in WOODS]
        out += _compass(fine)
    width = 1.5 * pixel if small else 8
    out.append(Stroke(ROUTE, width, PATH, dash=None if small else (14, 12) if fine else (20, 14)))
    cx, cy = CROSS
    arm = 16 if small else 11
    out.append(Stroke([(cx - arm, cy - arm), (cx + arm, cy + arm)], width + 2, PATH))
    out.append(Stroke([(cx - arm, cy + arm), (cx + arm, cy - arm)], width + 2, PATH))
    # The middle panel faces away from the light, the right one half so.
    for k, shade in ((1, 0.22), (2, 0.08)):
        out.append(Polygon([top[k], top[k + 1], bottom[k + 1], bottom[k]], (92, 60, 20), alpha=shade))
    out.append(Stroke(outline + outline[:1], pixel if small else 6, INK))
    if not small:
        out += [Stroke([top[k], bottom[k]], 3, INK) for k in (1, 2)]
    return out

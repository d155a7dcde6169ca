"""A small RGB drawing surface with the few operations pixel art needs, and tileable noise.

Everything is integer-exact and seeded, so the same generator run always writes the same bytes.
"""

from textwrap import dedent

WHITE = (255, 255, 255)
BLACK = (0, 0, 0)


def clamp(v):
    return 0 if v < 0 else 255 if v > 255 else int(round(v))


def mix(a, b, t):
    """Colour a moved a fraction t of the way toward colour b."""
    return tuple(clamp(a[i] + (b[i] - a[i]) * t) for i in range(3))


def lighten(c, t):
    return mix(c, WHITE, t)


def darken(c, t):
    return mix(c, BLACK, t)


def hash01(x, y, seed):
    """A repeatable pseudo-random number in [0, 1) for a lattice point."""
    h = (x * 374761393 + y * 668265263 + seed * 2147483647) & 0xFFFFFFFF
    h = ((h ^ (h >> 13)) * 1274126177) & 0xFFFFFFFF
    h ^= h >> 16
    return (h & 0xFFFFFF) / float(0x1000000)


def _smooth(t):
    return t * t * (3 - 2 * t)


def noise(x, y, seed, cell, period=16):
    """Value noise on a lattice of `cell` pixels that repeats every `period` pixels, so a tile
    filled with it joins itself without a seam."""
    n = max(1, period // cell)
    gx, gy = x / cell, y / cell
    x0, y0 = int(gx // 1), int(gy // 1)
    tx, ty = _smooth(gx - x0), _smooth(gy - y0)

    def at(i, j):
        return hash01(i % n, j % n, seed)

    top = at(x0, y0) + (at(x0 + 1, y0) - at(x0, y0)) * tx
    bottom = at(x0, y0 + 1) + (at(x0 + 1, y0 + 1) - at(x0, y0 + 1)) * tx
    return top + (bottom - top) * ty


def fbm(x, y, seed, cells=(8, 4, 2), period=16):
    """Layered noise in [0, 1): broad patches with finer grain on top."""
    total, weight, w = 0.0, 0.0, 1.0
    for k, cell in enumerate(cells):
        total += noise(x, y, seed + 101 * k, cell, period) * w
        weight += w
        w *= 0.5
    return total / weight


def art(text):
    """Rows of a character picture written as an indented multi-line string."""
    return [line for line in dedent(text).strip("\n").split("\n")]


def line_points(x0, y0, x1, y1):
    """The pixels of a one-pixel line from (x0, y0) to (x1, y1), both ends included."""
    dx, dy = abs(x1 - x0), -abs(y1 - y0)
    sx, sy = (1 if x0 < x1 else -1), (1 if y0 < y1 else -1)
    err = dx + dy
    points = []
    while True:
        points.append((x0, y0))
        if x0 == x1 and y0 == y1:
            return points
        e2 = 2 * err
        if e2 >= dy:
            err += dy
            x0 += sx
        if e2 <= dx:
            err += dx
            y0 += sy


class Canvas:
    def __init__(self, width, height, fill=BLACK):
        self.width = width
        self.height = height
        self.px = [[fill] * width for _ in range(height)]

    def inside(self, x, y):
        return 0 <= x < self.width and 0 <= y < self.height

    def get(self, x, y):
        return self.px[y % self.height][x % self.width]

    def set(self, x, y, colour, wrap=False):
        if wrap:
            x, y = x % self.width, y % self.height
        elif not self.inside(x, y):
            return
        self.px[y][x] = colour(self.px[y][x]) if callable(colour) else colour

    def paint(self, fn):
        """Set every pixel to fn(x, y)."""
        for y in range(self.height):
            for x in range(self.width):
                self.px[y][x] = fn(x, y)

    def rect(self, x0, y0, x1, y1, colour):
        """Fill the rectangle with corners (x0, y0) and (x1, y1), both included."""
        for y in range(y0, y1 + 1):
            for x in range(x0, x1 + 1):
                self.set(x, y, colour)

    def line(self, x0, y0, x1, y1, colour, wrap=False):
        for x, y in line_points(x0, y0, x1, y1):
            self.set(x, y, colour, wrap)

    def polygon(self, points, colour):
        """Fill a polygon by pixel centres (even-odd rule)."""
        ys = [p[1] for p in points]
        for y in range(int(min(ys)), int(max(ys)) + 1):
            cy = y + 0.5
            xs = []
            for i in range(len(points)):
                (ax, ay), (bx, by) = points[i], points[(i + 1) % len(points)]
                if (ay <= cy < by) or (by <= cy < ay):
                    xs.append(ax + (cy - ay) * (bx - ax) / (by - ay))
            xs.sort()
            for a, b in zip(xs[::2], xs[1::2]):
                for x in range(int(a + 0.5), int(b + 0.5)):
                    self.set(x, y, colour)

    def stamp(self, rows, colours, x0, y0, outline=None, shadow=None, wrap=False, open_below=False):
        """Draw a character picture with its top-left at (x0, y0). `colours` maps each character to
        a colour or to a function of the colour underneath; characters it lacks are see-through.
        `outline` rings the picture's pixels (sides only), leaving out the ring under the picture
        when `open_below`; `shadow` is (dx, dy, colour) drawn first."""
        solid = [(x0 + i, y0 + j) for j, row in enumerate(rows) for i, ch in enumerate(row) if ch in colours]
        taken = set(solid)
        if shadow is not None:
            dx, dy, shade = shadow
            for x, y in solid:
                if (x + dx, y + dy) not in taken:
                    self.set(x + dx, y + dy, shade, wrap)
        if outline is not None:
            ring = set()
            for x, y in solid:
                for nx, ny in ((x - 1, y), (x + 1, y), (x, y - 1), (x, y + 1)):
                    if (nx, ny) not in taken and not (open_below and ny == y + 1):
                        ring.add((nx, ny))
            for x, y in sorted(ring):
                self.set(x, y, outline, wrap)
        for j, row in enumerate(rows):
            for i, ch in enumerate(row):
                if ch in colours:
                    self.set(x0 + i, y0 + j, colours[ch], wrap)

    def blit(self, other, x0, y0, transparent=None):
        for y in range(other.height):
            for x in range(other.width):
                c = other.px[y][x]
                if c != transparent:
                    self.set(x0 + x, y0 + y, c)

    def scaled(self, factor):
        c = Canvas(self.width * factor, self.height * factor)
        c.px = [[p for p in row for _ in range(factor)] for row in self.px for _ in range(factor)]
        return c

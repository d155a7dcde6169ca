"""Flat-coloured vector shapes that are written as SVG and rasterized to RGBA pixels by the same
geometry, so the scalable icon and its PNG sizes show one picture.

Every shape answers which stretches of a horizontal line it covers; the rasterizer samples each
pixel on an n x n grid of such lines and lays the shapes one over the other ("over" blending)."""

from math import ceil, cos, floor, hypot, pi, sin, sqrt


def _hex(colour):
    return "#%02x%02x%02x" % colour


def _opacity(alpha):
    return "" if alpha == 1 else ' fill-opacity="%g"' % alpha


def _points(points):
    return " ".join("%g,%g" % p for p in points)


def _merge(spans):
    """The union of stretches (x0, x1) as sorted stretches that do not touch."""
    merged = []
    for a, b in sorted(spans):
        if merged and a <= merged[-1][1]:
            merged[-1][1] = max(merged[-1][1], b)
        else:
            merged.append([a, b])
    return merged


def _polygon_spans(points, y):
    """Where the line at height y is inside the polygon (even-odd rule)."""
    xs = []
    for i in range(len(points)):
        (ax, ay), (bx, by) = points[i], points[(i + 1) % len(points)]
        if (ay <= y < by) or (by <= y < ay):
            xs.append(ax + (y - ay) * (bx - ax) / (by - ay))
    xs.sort()
    return list(zip(xs[::2], xs[1::2]))


def _disc_span(cx, cy, r, y):
    d = r * r - (y - cy) ** 2
    return [] if d < 0 else [(cx - sqrt(d), cx + sqrt(d))]


def _capsule_span(a, b, r, y):
    """Where the line at height y is within r of the segment a-b: one stretch, since the shape is
    convex, made of the two end discs and the band between them."""
    (ax, ay), (bx, by) = a, b
    length = hypot(bx - ax, by - ay)
    pieces = _disc_span(ax, ay, r, y) + _disc_span(bx, by, r, y)
    if length > 0:
        nx, ny = -(by - ay) / length * r, (bx - ax) / length * r
        pieces += _polygon_spans([(ax + nx, ay + ny), (bx + nx, by + ny), (bx - nx, by - ny), (ax - nx, ay - ny)], y)
    if not pieces:
        return []
    return [(min(p[0] for p in pieces), max(p[1] for p in pieces))]


def _cut(points, start, end):
    """The part of a line through the points between the distances start and end along it."""
    part, walked = [], 0.0
    for (ax, ay), (bx, by) in zip(points, points[1:]):
        length = hypot(bx - ax, by - ay)
        if length > 0 and walked + length >= start and walked <= end:
            if not part:
                t = max(0.0, (start - walked) / length)
                part.append((ax + (bx - ax) * t, ay + (by - ay) * t))
            t = min(1.0, (end - walked) / length)
            part.append((ax + (bx - ax) * t, ay + (by - ay) * t))
        walked += length
    return part


class Polygon:
    def __init__(self, points, colour, alpha=1.0):
        self.points, self.colour, self.alpha = points, colour, alpha

    def rows(self):
        ys = [p[1] for p in self.points]
        return min(ys), max(ys)

    def spans(self, y):
        return _polygon_spans(self.points, y)

    def svg(self):
        return '<polygon points="%s" fill="%s"%s fill-rule="evenodd"/>' % (
            _points(self.points),
            _hex(self.colour),
            _opacity(self.alpha),
        )


class Circle:
    def __init__(self, cx, cy, r, colour, alpha=1.0):
        self.cx, self.cy, self.r, self.colour, self.alpha = cx, cy, r, colour, alpha

    def rows(self):
        return self.cy - self.r, self.cy + self.r

    def spans(self, y):
        return _disc_span(self.cx, self.cy, self.r, y)

    def svg(self):
        return '<circle cx="%g" cy="%g" r="%g" fill="%s"%s/>' % (
            self.cx,
            self.cy,
            self.r,
            _hex(self.colour),
            _opacity(self.alpha),
        )


class Ring:
    """A circle's outline of the given width, centred on radius r."""

    def __init__(self, cx, cy, r, width, colour):
        self.cx, self.cy, self.r, self.width, self.colour, self.alpha = cx, cy, r, width, colour, 1.0

    def rows(self):
        return self.cy - self.r - self.width / 2, self.cy + self.r + self.width / 2

    def spans(self, y):
        outer = _disc_span(self.cx, self.cy, self.r + self.width / 2, y)
        inner = _disc_span(self.cx, self.cy, self.r - self.width / 2, y)
        if not inner:
            return outer
        return [(outer[0][0], inner[0][0]), (inner[0][1], outer[0][1])]

    def svg(self):
        return '<circle cx="%g" cy="%g" r="%g" fill="none" stroke="%s" stroke-width="%g"/>' % (
            self.cx,
            self.cy,
            self.r,
            _hex(self.colour),
            self.width,
        )


class Stroke:
    """A line through the points with round ends and corners; `dash` is (drawn, gap) lengths
    along the line, each drawn piece with round ends as SVG draws it."""

    def __init__(self, points, width, colour, dash=None):
        self.points, self.width, self.colour, self.dash, self.alpha = points, width, colour, dash, 1.0
        self.segments = [s for piece in self._pieces() for s in zip(piece, piece[1:])]

    def _pieces(self):
        if self.dash is None:
            return [self.points]
        drawn, gap = self.dash
        total = sum(hypot(b[0] - a[0], b[1] - a[1]) for a, b in zip(self.points, self.points[1:]))
        starts = [k * (drawn + gap) for k in range(int(total // (drawn + gap)) + 1)]
        return [_cut(self.points, s, min(total, s + drawn)) for s in starts if s < total]

    def rows(self):
        ys = [p[1] for p in self.points]
        return min(ys) - self.width / 2, max(ys) + self.width / 2

    def spans(self, y):
        pieces = (s for a, b in self.segments for s in _capsule_span(a, b, self.width / 2, y))
        return [tuple(s) for s in _merge(pieces)]

    def svg(self):
        dash = "" if self.dash is None else ' stroke-dasharray="%g %g"' % self.dash
        return (
            '<polyline points="%s" fill="none" stroke="%s" stroke-width="%g" '
            'stroke-linecap="round" stroke-linejoin="round"%s/>'
            % (_points(self.points), _hex(self.colour), self.width, dash)
        )


def star(cx, cy, points, outer, inner, turn=0.0):
    """The corners of a star with `points` tips, the first straight up, turned by `turn` radians."""
    corners = []
    for k in range(points * 2):
        a = turn + k * pi / points
        r = outer if k % 2 == 0 else inner
        corners.append((cx + r * sin(a), cy - r * cos(a)))
    return corners


def svg_document(shapes, size):
    body = "\n".join("  " + shape.svg() for shape in shapes)
    return (
        '<svg xmlns="http://www.w3.org/2000/svg" width="%d" height="%d" viewBox="0 0 %d %d">\n%s\n</svg>\n'
        % (size, size, size, size, body)
    ).encode("ascii")


def rasterize(shapes, design_size, size, samples=4):
    """The shapes, drawn on a design_size square, as size x size rows of (r, g, b, a) pixels."""
    scale = size / design_size
    n = samples
    # Premultiplied colour and coverage of every pixel, built up shape by shape.
    canvas = [[[0.0, 0.0, 0.0, 0.0] for _ in range(size)] for _ in range(size)]
    for shape in shapes:
        top, bottom = shape.rows()
        first = max(0, floor(top * scale * n - 0.5))
        last = min(size * n - 1, ceil(bottom * scale * n))
        counts = {}
        for row in range(first, last + 1):
            y = (row + 0.5) / n / scale
            for a, b in shape.spans(y):
                start = max(0, ceil(a * scale * n - 0.5))
                end = min(size * n, ceil(b * scale * n - 0.5))
                for column in range(start, end):
                    key = (row // n, column // n)
                    counts[key] = counts.get(key, 0) + 1
        for (py, px), count in counts.items():
            alpha = shape.alpha * count / (n * n)
            pixel = canvas[py][px]
            for i in range(3):
                pixel[i] = shape.colour[i] / 255.0 * alpha + pixel[i] * (1 - alpha)
            pixel[3] = alpha + pixel[3] * (1 - alpha)
    rows = []
    for line in canvas:
        row = []
        for r, g, b, a in line:
            if a <= 0:
                row.append((0, 0, 0, 0))
            else:
                row.append(tuple(int(round(min(1.0, v / a) * 255)) for v in (r, g, b)) + (int(round(a * 255)),))
        rows.append(row)
    return rows


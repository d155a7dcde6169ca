#!/usr/bin/env python3
"""Draw the program's icon into assets/icons/hicolor/, laid out as the desktop's icon theme wants
it: the SVG in scalable/apps and a PNG of every size in NxN/apps. Running it twice writes the same
bytes."""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))

from graphics.output import write_all  # noqa: E402
from graphics import icon  # noqa: E402
from graphics.png import encode_png_rgba  # noqa: E402
from graphics.vector import rasterize, svg_document  # noqa: E402

NAME = "io.github.wayscribe.Wayscribe"
SIZES = (16, 24, 32, 48, 64, 128, 256)


def all_files():
    files = {"scalable/apps/%s.svg" % NAME: svg_document(icon.shapes(), icon.DESIGN)}
    for size in SIZES:
        # Small icons get more samples a pixel, so their few pixels have even edges.
        pixels = rasterize(icon.shapes(size), icon.DESIGN, size, samples=8 if size <= 48 else 4)
        files["%dx%d/apps/%s.png" % (size, size, NAME)] = encode_png_rgba(size, size, pixels)
    return files


def main():
    root = Path(__file__).resolve().parent.parent
    write_all(__doc__, root / "assets" / "icons" / "hicolor", "icon theme folder", all_files())


if __name__ == "__main__":
    main()

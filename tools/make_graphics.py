#!/usr/bin/env python3
"""Draw every picture of the program into assets/graphics/: the four tile sets, the map markers,
the toolbar buttons and the About picture. Running it twice writes the same bytes."""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))

from graphics.output import write_all  # noqa: E402
from graphics import banner, markers, set_kjc1, set_kjc2, set_questor, set_tolma, toolbar  # noqa: E402
from graphics.bmp import encode_bmp  # noqa: E402
from graphics.gif import encode_gif, quantize  # noqa: E402
from graphics.terrains import STEMS, tile_function  # noqa: E402

TILE_SETS = {
    "kjc_set1": set_kjc1,
    "kjc_set2": set_kjc2,
    "questor_set": set_questor,
    "tolma_set": set_tolma,
}


def tile_files():
    """The large map tile and the palette tile of every terrain of every set. The palette shows
    the very tile the brush paints, at the same 16 x 16 size."""
    files = {}
    for folder, module in TILE_SETS.items():
        for stem in STEMS:
            tile = tile_function(module, stem)()
            data = encode_bmp(tile.width, tile.height, tile.px)
            files["%s/l_%s.bmp" % (folder, stem)] = data
            files["%s/s_%s.bmp" % (folder, stem)] = data
    return files


def gif(picture):
    return encode_gif(picture.width, picture.height, quantize(picture.px))


def marker_files():
    image, mask = markers.note_pictures()
    files = {"note.gif": gif(image), "note_m.gif": gif(mask)}
    files["dungeon.gif"] = gif(markers.dungeon())
    files["special.gif"] = gif(markers.special())
    for name in markers.FOOT_COLOURS:
        files[name + ".gif"] = gif(markers.footprint(name))
    return files


def all_files():
    files = tile_files()
    files.update(marker_files())
    for name, draw in toolbar.BUTTONS.items():
        files[name + ".gif"] = gif(draw())
    files["wayscribe.gif"] = gif(banner.about_picture())
    return files


def main():
    root = Path(__file__).resolve().parent.parent
    write_all(__doc__, root / "assets" / "graphics", "graphics folder", all_files())


if __name__ == "__main__":
    main()

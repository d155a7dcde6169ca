"""The eighteen terrains in code order (1 Unknown .. 18 City) with the file stem of their tiles,
and the minimap colour of each, which the tile art keeps to so that map and minimap agree."""

TILE_SIZE = 16

# (code, name, file stem); Heavy Forest alone has a stem that is not its lower-case name.
TERRAINS = [
    (1, "Unknown", "unknown"),
    (2, "Water", "water"),
    (3, "Open", "open"),
    (4, "Field", "field"),
    (5, "Rough", "rough"),
    (6, "Forest", "forest"),
    (7, "Heavy Forest", "hforest"),
    (8, "Jungle", "jungle"),
    (9, "Barren", "barren"),
    (10, "Desert", "desert"),
    (11, "Mountain", "mountain"),
    (12, "Hill", "hill"),
    (13, "Marsh", "marsh"),
    (14, "Swamp", "swamp"),
    (15, "Road", "road"),
    (16, "Village", "village"),
    (17, "Town", "town"),
    (18, "City", "city"),
]

STEMS = [stem for _, _, stem in TERRAINS]

MINIMAP_COLOURS = {
    "unknown": (0, 0, 0),
    "water": (0, 0, 200),
    "open": (104, 39, 10),
    "field": (104, 39, 10),
    "rough": (0, 200, 75),
    "forest": (0, 190, 85),
    "hforest": (0, 170, 90),
    "jungle": (20, 170, 120),
    "barren": (230, 230, 0),
    "desert": (255, 255, 0),
    "mountain": (170, 170, 170),
    "hill": (200, 200, 200),
    "marsh": (37, 104, 10),
    "swamp": (37, 104, 10),
    "road": (255, 255, 255),
    "village": (255, 30, 0),
    "town": (255, 30, 0),
    "city": (255, 30, 0),
}


def tile_function(module, stem):
    """The function of a tile-set module that draws the tile of `stem`. The one for "open" is
    called open_, as open is a Python built-in."""
    return getattr(module, "open_" if stem == "open" else stem)

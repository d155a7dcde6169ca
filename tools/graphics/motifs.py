"""Shapes shared by the tile sets: the character pictures of trees, houses and reeds, and the
drawn shapes of peaks, humps, dunes and waves. Each set brings its own colours and finish."""

from .canvas import art, fbm, mix

# Canopy keys: L light, M mid, D dark; T trunk. Light comes from the upper left.
TREE = art("""
    .LLM.
    LLMMD
    LMMMD
    MMMDD
    .MDD.
    ..T..
""")

BIG_TREE = art("""
    ..LLM..
    .LLLMM.
    LLLMMMD
    LLMMMDD
    MMMMDDD
    .MMDDD.
    ...T...
    ...T...
""")

PINE = art("""
    ..L..
    ..LD.
    .LMD.
    .LMDD
    LLMDD
    .LMD.
    LMMDD
    ..T..
""")

PALM = art("""
    ..LLMM..
    .LLLMMD.
    LL.LMDDD
    L.LTTM.D
    ..L.T.D.
    ....T...
    ....T...
    ...TT...
""")

BUSH = art("""
    .LM.
    LMMD
    .DD.
""")

# Grass tuft: blades of light and dark.
TUFT = art("""
    L.D
    LDL
""")

# Stone: H highlight, M mid, D shade.
STONE = art("""
    .HM.
    HMMD
    .DD.
""")

SMALL_STONE = art("""
    HM
    MD
""")

# Reeds: G stem, B seed head.
REEDS = art("""
    .B..B
    .B.GB
    G.G.G
    G.GG.
    .GG..
""")

REED = art("""
    B.
    BG
    G.
    G.
""")

# Houses: R roof light, r roof shade, W wall, w wall shade, K door or window.
HOUSE = art("""
    ..R..
    .RRr.
    RRRrr
    WWWww
    WWKww
""")

# Stone: S lit stone, s shaded stone, K openings, R/r roof, F flag.
TOWN = art("""
    ................
    .......F........
    .......R........
    ......RRr.......
    ......SKs.......
    ..R...SSs...R...
    .RRr..SKs..RRr..
    RRRrr.SSs.RRRrr.
    .WKw..SSs..WKw..
    .WKw.......WKw..
    .S.S.......S.S..
    .SSsssssssssSSs.
    .SKSsssKKsssSKs.
    .SSsssssKsssSSs.
    ................
    ................
""")

CITY = art("""
    ................
    ........F.......
    .S.S....R....S.S
    .SSs...RRr...SSs
    .SKs..RRRrr..SKs
    .SSs..SSKss..SSs
    .SSs..SSSss..SSs
    .SSs.R.SKs.R.SSs
    .SKsRRrSSsRRrSKs
    .SSsWKwSSsWKwSSs
    .SSs.RRr.RRr.SSs
    .SKsRRRrRRRrrSKs
    .SSSWKwSWKwSSSSs
    .SSSsssKKsssSSSs
    .SSSsssKKsssSSSs
    ................
""")

# Rounded hills: L lit, M mid, D shaded side.
HILL = art("""
    ...LLLM...
    .LLLLMMMD.
    LLLLMMMMDD
    LLLMMMMMDD
    LLMMMMMDDD
""")

SMALL_HILL = art("""
    ..LLM..
    .LLMMD.
    LLLMMDD
    LLMMMDD
""")

# Two peaks: S snow, s snow in shade, L lit rock, M rock, D rock in shade.
MOUNTAINS = art("""
    ................
    ......S.........
    .....SSs........
    .....SSss.......
    ....SLSsD..S....
    ....LLMsD.SSs...
    ...LLLMDDDSSsD..
    ...LLMMDDDLLsDD.
    ..LLLMMMDDLLMDD.
    ..LLMMMDDDLLMDDD
    .LLLMMMDDDLMMDDD
    .LLMMMMDDDLMMDDD
    LLLMMMDDDDLMMDDD
    LLMMMMDDDDMMDDDD
    ................
    ................
""")

DEAD_TREE = art("""
    T.T.T
    .TTT.
    ..T..
    ..T..
""")


def textured(canvas, base, light, dark, seed, cells=(8, 4, 2), contrast=1.0):
    """Fill the tile with a colour that drifts between dark and light around the base, seamlessly."""

    def at(x, y):
        n = (fbm(x, y, seed, cells) - 0.5) * 2 * contrast
        return mix(base, light, n) if n > 0 else mix(base, dark, -n)

    canvas.paint(at)


def stamps(canvas, sprite, colours, places, **kw):
    """Stamp one picture at several places, back to front so that lower ones overlap upper ones."""
    for x, y in sorted(places, key=lambda p: (p[1], p[0])):
        canvas.stamp(sprite, colours, x, y, **kw)


# The cracks of dry ground, as polylines that wrap around the tile's edges.
CRACKS = (
    [(0, 4), (3, 5), (6, 4), (8, 6), (11, 6), (13, 4), (16, 4)],
    [(6, 4), (5, 1), (6, -1)],
    [(8, 6), (7, 9), (9, 12), (8, 15)],
    [(9, 12), (12, 12), (14, 10)],
    [(0, 12), (3, 11), (5, 13)],
)


def cracks(canvas, colour, extra=()):
    """Draw the cracks of barren ground (and any extra polylines) in one colour."""
    for path in CRACKS + tuple(extra):
        for (x0, y0), (x1, y1) in zip(path, path[1:]):
            canvas.line(x0, y0, x1, y1, colour, wrap=True)


def wave(canvas, x, y, crest, trough=None, width=4):
    """A short wave: a raised crest over a darker trough, drawn around the tile's edges."""
    for i in range(width):
        canvas.set(x + i, y - (1 if 0 < i < width - 1 else 0), crest, wrap=True)
    if trough is not None:
        for i in range(1, width - 1):
            canvas.set(x + i, y + 1, trough, wrap=True)

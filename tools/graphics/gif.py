"""GIF89a pictures with LZW compression: the markers, the toolbar buttons and the About picture."""

import struct

MAX_CODES = 4096


# Colour stored for see-through pixels: the face of a classic button, so that a reader that
# ignores transparency still shows something calm.
TRANSPARENT_KEY = (212, 208, 200)


def _palette(pixels):
    """Colours in order of first appearance; see-through pixels (None) take entry 0."""
    colours = []
    index = {}
    if any(c is None for row in pixels for c in row):
        index[None] = 0
        colours.append(TRANSPARENT_KEY)
    for row in pixels:
        for c in row:
            if c not in index:
                index[c] = len(colours)
                colours.append(c)
    if len(colours) > 256:
        raise ValueError("a GIF holds at most 256 colours, this picture has %d" % len(colours))
    return colours, index


class _BitWriter:
    def __init__(self):
        self.bytes = bytearray()
        self.acc = 0
        self.nbits = 0

    def write(self, code, size):
        self.acc |= code << self.nbits
        self.nbits += size
        while self.nbits >= 8:
            self.bytes.append(self.acc & 0xFF)
            self.acc >>= 8
            self.nbits -= 8

    def flush(self):
        if self.nbits:
            self.bytes.append(self.acc & 0xFF)
        self.acc = 0
        self.nbits = 0
        return bytes(self.bytes)


def lzw_encode(indices, min_code_size):
    clear = 1 << min_code_size
    end = clear + 1
    out = _BitWriter()
    code_size = min_code_size + 1
    table = {}
    next_code = end + 1
    out.write(clear, code_size)
    prefix = indices[0]
    for k in indices[1:]:
        key = (prefix, k)
        if key in table:
            prefix = table[key]
            continue
        out.write(prefix, code_size)
        if next_code < MAX_CODES:
            table[key] = next_code
            next_code += 1
            # The reader adds its entry one code later, so it widens its codes when the
            # table passes the current width, not when it reaches it.
            if next_code > (1 << code_size) and code_size < 12:
                code_size += 1
        else:
            out.write(clear, code_size)
            table = {}
            next_code = end + 1
            code_size = min_code_size + 1
        prefix = k
    out.write(prefix, code_size)
    out.write(end, code_size)
    return out.flush()


def encode_gif(width, height, pixels):
    """Return the bytes of a GIF; pixels is a list of rows of (r, g, b), or None for see-through."""
    colours, index = _palette(pixels)
    table_bits = 1
    while (1 << table_bits) < len(colours):
        table_bits += 1
    colours += [(0, 0, 0)] * ((1 << table_bits) - len(colours))
    out = bytearray(b"GIF89a")
    out += struct.pack("<HHBBB", width, height, 0x80 | ((table_bits - 1) << 4) | (table_bits - 1), 0, 0)
    for c in colours:
        out += bytes(c)
    if None in index:
        out += struct.pack("<BBBBHBB", 0x21, 0xF9, 4, 0x01, 0, index[None], 0)
    out += struct.pack("<BHHHHB", 0x2C, 0, 0, width, height, 0)
    min_code_size = max(2, table_bits)
    data = lzw_encode([index[c] for row in pixels for c in row], min_code_size)
    out.append(min_code_size)
    for i in range(0, len(data), 255):
        chunk = data[i : i + 255]
        out.append(len(chunk))
        out += chunk
    out += b"\x00\x3B"
    return bytes(out)


def quantize(pixels, limit=256):
    """Reduce a picture to at most `limit` colours by median cut, keeping see-through pixels.
    Pictures that already fit come back unchanged."""
    counts = {}
    for row in pixels:
        for c in row:
            if c is not None:
                counts[c] = counts.get(c, 0) + 1
    slots = limit - (1 if any(c is None for row in pixels for c in row) else 0)
    if len(counts) <= slots:
        return pixels
    boxes = [sorted(counts)]
    while len(boxes) < slots:
        # split the box with the widest colour range, at the median of its pixels
        def spread(box):
            return max(max(c[i] for c in box) - min(c[i] for c in box) for i in range(3))

        box = max((b for b in boxes if len(b) > 1), key=spread, default=None)
        if box is None:
            break
        channel = max(range(3), key=lambda i: max(c[i] for c in box) - min(c[i] for c in box))
        box.sort(key=lambda c: (c[channel], c))
        total = sum(counts[c] for c in box)
        run, cut = 0, 1
        for i, c in enumerate(box[:-1]):
            run += counts[c]
            if run * 2 >= total:
                cut = i + 1
                break
        boxes.remove(box)
        boxes += [box[:cut], box[cut:]]
    mapping = {}
    for box in boxes:
        weight = sum(counts[c] for c in box)
        mean = tuple(int(round(sum(c[i] * counts[c] for c in box) / weight)) for i in range(3))
        for c in box:
            mapping[c] = mean
    return [[None if c is None else mapping[c] for c in row] for row in pixels]


def decode_gif(data):
    """Read the first image of a GIF written by encode_gif; transparent pixels come back as None.
    Used by the preview, and so it checks the encoder from the reader's side."""
    if data[:6] not in (b"GIF87a", b"GIF89a"):
        raise ValueError("not a GIF")
    width, height, flags = struct.unpack_from("<HHB", data, 6)
    pos = 13
    colours = []
    if flags & 0x80:
        n = 1 << ((flags & 7) + 1)
        colours = [tuple(data[pos + 3 * i : pos + 3 * i + 3]) for i in range(n)]
        pos += 3 * n
    transparent = None
    while data[pos] == 0x21:
        label = data[pos + 1]
        pos += 2
        if label == 0xF9 and data[pos + 1] & 1:
            transparent = data[pos + 4]
        while data[pos]:
            pos += data[pos] + 1
        pos += 1
    if data[pos] != 0x2C:
        raise ValueError("no image in GIF")
    img_flags = data[pos + 9]
    pos += 10
    if img_flags & 0x80:
        n = 1 << ((img_flags & 7) + 1)
        colours = [tuple(data[pos + 3 * i : pos + 3 * i + 3]) for i in range(n)]
        pos += 3 * n
    min_code_size = data[pos]
    pos += 1
    stream = bytearray()
    while data[pos]:
        stream += data[pos + 1 : pos + 1 + data[pos]]
        pos += data[pos] + 1
    indices = _lzw_decode(bytes(stream), min_code_size)
    if len(indices) < width * height:
        raise ValueError("GIF image data too short")
    rows = []
    for y in range(height):
        row = []
        for x in range(width):
            i = indices[y * width + x]
            row.append(None if i == transparent else colours[i])
        rows.append(row)
    return width, height, rows


def _lzw_decode(stream, min_code_size):
    clear = 1 << min_code_size
    end = clear + 1
    bitpos = 0
    total = len(stream) * 8
    out = []
    table = None
    code_size = min_code_size + 1
    prev = None
    while bitpos + code_size <= total:
        code = 0
        for i in range(code_size):
            if stream[(bitpos + i) >> 3] >> ((bitpos + i) & 7) & 1:
                code |= 1 << i
        bitpos += code_size
        if code == clear:
            table = [[i] for i in range(clear)] + [None, None]
            code_size = min_code_size + 1
            prev = None
            continue
        if code == end:
            break
        if prev is None:
            entry = table[code]
        elif code < len(table):
            entry = table[code]
            table.append(prev + entry[:1])
        elif code == len(table):
            entry = prev + prev[:1]
            table.append(entry)
        else:
            raise ValueError("bad LZW code")
        out.extend(entry)
        prev = entry
        if len(table) == (1 << code_size) and code_size < 12:
            code_size += 1
    return out

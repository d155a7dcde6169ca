"""Uncompressed 24-bit Windows bitmaps: the format the tile sets are read in."""

import struct


def encode_bmp(width, height, pixels):
    """Return the bytes of a 24-bit bitmap; pixels is a list of rows of (r, g, b) tuples, top row first."""
    row_bytes = width * 3
    padding = (4 - row_bytes % 4) % 4
    image_size = (row_bytes + padding) * height
    header_size = 14 + 40
    out = bytearray()
    out += struct.pack("<2sIHHI", b"BM", header_size + image_size, 0, 0, header_size)
    # 2835 pixels per metre is 72 dots per inch; readers ignore it but zero upsets a few.
    out += struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, image_size, 2835, 2835, 0, 0)
    for row in reversed(pixels):  # bitmaps are stored bottom row first
        for r, g, b in row:
            out += bytes((b, g, r))
        out += b"\0" * padding
    return bytes(out)


def decode_bmp(data):
    """Read back a bitmap written by encode_bmp (24-bit, uncompressed); used by the preview."""
    if data[:2] != b"BM":
        raise ValueError("not a bitmap")
    offset = struct.unpack_from("<I", data, 10)[0]
    width, height = struct.unpack_from("<ii", data, 18)
    bits = struct.unpack_from("<H", data, 28)[0]
    if bits != 24:
        raise ValueError("only 24-bit bitmaps are read")
    bottom_up = height > 0
    height = abs(height)
    stride = (width * 3 + 3) // 4 * 4
    rows = []
    for i in range(height):
        start = offset + i * stride
        row = [(data[start + 3 * x + 2], data[start + 3 * x + 1], data[start + 3 * x]) for x in range(width)]
        rows.append(row)
    if bottom_up:
        rows.reverse()
    return width, height, rows

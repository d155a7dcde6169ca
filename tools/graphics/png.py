"""PNG writing: the contact sheets of the preview and the icon (zlib from the standard library)."""

import struct
import zlib

RGB, RGBA = 2, 6  # PNG colour types


def _chunk(kind, body):
    return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body) & 0xFFFFFFFF)


def _encode(width, height, pixels, colour_type):
    raw = bytearray()
    for row in pixels:
        raw.append(0)
        for pixel in row:
            raw += bytes(pixel)
    return (
        b"\x89PNG\r\n\x1a\n"
        + _chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, colour_type, 0, 0, 0))
        + _chunk(b"IDAT", zlib.compress(bytes(raw), 9))
        + _chunk(b"IEND", b"")
    )


def encode_png(width, height, pixels):
    """Rows of (r, g, b) pixels."""
    return _encode(width, height, pixels, RGB)


def encode_png_rgba(width, height, pixels):
    """Rows of (r, g, b, a) pixels."""
    return _encode(width, height, pixels, RGBA)

"""Writes pictures as the program's bitmap files: plain uncompressed 24-bit
device-independent bitmaps, a 14-byte file header, a 40-byte info header,
then the rows bottom-up, each padded to four bytes. Shared by the scripts
that draw the program's and the demo installation's pictures."""

import struct


def bitmap_bytes(rows):
    """A 24-bit bottom-up device-independent bitmap file of the rows, given
    as lists of (r, g, b), top row first."""
    height = len(rows)
    width = len(rows[0])
    stride = (width * 3 + 3) & ~3
    pixels = bytearray()
    for row in reversed(rows):
        line = bytearray()
        for r, g, b in row:
            line += bytes((b, g, r))
        line += bytes(stride - len(line))
        pixels += line
    offset = 14 + 40
    file_header = struct.pack("<2sIHHI", b"BM", offset + len(pixels), 0, 0, offset)
    info_header = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0,
                              len(pixels), 2835, 2835, 0, 0)
    return file_header + info_header + bytes(pixels)

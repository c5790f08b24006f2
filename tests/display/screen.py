"""The screen of a virtual display, as the server keeps it in the file SCREEN, and pictures of it.

Alone: screen.py PICTURE.png writes what is to be seen now."""

import os
import struct
import sys
import zlib


class Picture:
    """Pixels from the top left, three bytes each: red, green, blue."""

    def __init__(self, width, height, pixels):
        self.width = width
        self.height = height
        self.pixels = pixels

    def __eq__(self, other):
        return (self.width, self.height, self.pixels) == (other.width, other.height, other.pixels)

    def at(self, x, y):
        start = 3 * (y * self.width + x)
        return tuple(self.pixels[start : start + 3])

    def part(self, left, top, right, bottom):
        """A copy of a rectangle; right and bottom lie outside it."""
        rows = (self.pixels[3 * (y * self.width + left) : 3 * (y * self.width + right)] for y in range(top, bottom))
        return Picture(right - left, bottom - top, b"".join(rows))

    def count(self, colour):
        wanted = bytes(colour)
        return sum(self.pixels[i : i + 3] == wanted for i in range(0, len(self.pixels), 3))

    def differing(self, other):
        """The number of pixels that are not the same in a picture of the same size."""
        if (self.width, self.height) != (other.width, other.height):
            raise ValueError("pictures of different sizes")
        return sum(self.pixels[i : i + 3] != other.pixels[i : i + 3] for i in range(0, len(self.pixels), 3))

    def save(self, path):
        def chunk(kind, data):
            return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

        row = 3 * self.width
        raw = b"".join(b"\0" + self.pixels[y * row : (y + 1) * row] for y in range(self.height))
        header = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        with open(path, "wb") as file:
            file.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header))
            file.write(chunk(b"IDAT", zlib.compress(raw)) + chunk(b"IEND", b""))


def take():
    """What is on the screen now."""
    with open(os.environ["SCREEN"], "rb") as file:
        data = file.read()
    # The form of xwd: big-endian words; rows of four bytes a pixel, blue first.
    words = struct.unpack(">25I", data[:100])
    header_size, width, height, depth, row_bytes, colours = words[0], words[4], words[5], words[11], words[12], words[19]
    if depth != 32:
        raise ValueError(f"{depth} bits a pixel")
    start = header_size + 12 * colours
    pixels = bytearray(3 * width * height)
    for y in range(height):
        row = data[start + y * row_bytes : start + y * row_bytes + 4 * width]
        place = 3 * width * y
        for channel, source in enumerate((2, 1, 0)):
            pixels[place + channel : place + 3 * width : 3] = row[source::4]
    return Picture(width, height, bytes(pixels))


if __name__ == "__main__":
    take().save(sys.argv[1])

"""Pictures of the screen: four bytes a pixel, blue, green, red and one unused."""
import struct
import zlib


class Picture:
    def __init__(self, width, height, pixels):
        self.width, self.height, self.pixels = width, height, bytes(pixels)

    def crop(self, left, top, right, bottom):
        rows = [self.pixels[(y * self.width + left) * 4:(y * self.width + right) * 4]
                for y in range(top, bottom)]
        return Picture(right - left, bottom - top, b"".join(rows))

    def at(self, x, y):
        """(red, green, blue)"""
        place = (y * self.width + x) * 4
        blue, green, red = self.pixels[place:place + 3]
        return red, green, blue

    def rgb(self):
        """Three bytes a pixel: red, green, blue."""
        out = bytearray(self.width * self.height * 3)
        out[0::3], out[1::3], out[2::3] = self.pixels[2::4], self.pixels[1::4], self.pixels[0::4]
        return bytes(out)

    def colors(self):
        """How often each colour is there."""
        counts = {}
        data = self.rgb()
        for place in range(0, len(data), 3):
            color = tuple(data[place:place + 3])
            counts[color] = counts.get(color, 0) + 1
        return counts

    def save(self, path):
        data, row = self.rgb(), self.width * 3
        lines = b"".join(b"\0" + data[y * row:(y + 1) * row] for y in range(self.height))

        def chunk(name, body):
            whole = name + body
            return struct.pack(">I", len(body)) + whole + struct.pack(">I", zlib.crc32(whole))

        header = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        with open(path, "wb") as file:
            file.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) +
                       chunk(b"IDAT", zlib.compress(lines, 3)) + chunk(b"IEND", b""))


def read_pnm(path):
    """A P6 file with 8 bits as a Picture."""
    with open(path, "rb") as file:
        data = file.read()
    words, place = [], 0
    while len(words) < 4:
        line = data.index(b"\n", place)
        words += data[place:line].split(b"#")[0].split()
        place = line + 1
    assert words[0] == b"P6" and words[3] == b"255", f"{path} is no 8-bit P6 file"
    width, height = int(words[1]), int(words[2])
    return from_rgb(width, height, data[place:place + width * height * 3])


def from_rgb(width, height, samples):
    pixels = bytearray(width * height * 4)
    pixels[0::4], pixels[1::4], pixels[2::4] = samples[2::3], samples[1::3], samples[0::3]
    return Picture(width, height, pixels)


def assert_same(got, want, allowed=0):
    """Fails with the first place that differs by more than `allowed`."""
    assert (got.width, got.height) == (want.width, want.height), \
        f"{got.width} x {got.height} is not {want.width} x {want.height}"
    if got.rgb() == want.rgb():
        return
    wrong, first = 0, None
    one, other = got.rgb(), want.rgb()
    for place, (a, b) in enumerate(zip(one, other)):
        if abs(a - b) > allowed:
            wrong += 1
            first = first if first is not None else place // 3
    if first is None:
        return
    x, y = first % got.width, first // got.width
    raise AssertionError(f"{wrong} samples differ, the first at ({x}, {y}): "
                         f"{got.at(x, y)} is not {want.at(x, y)}")

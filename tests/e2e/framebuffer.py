#!/usr/bin/env python3
"""Reads the screen of an Xvfb server started with -fbdir straight from its memory-mapped
framebuffer file (XWD format), so that checks cost microseconds rather than a screen grab each;
or a screenshot in binary PPM (what grim -t ppm writes), for the Wayland compositors.

  framebuffer.py box   FILE X Y W H              black bounding box inside the region, as WxH+X+Y
  framebuffer.py pixel FILE X Y [X Y ...]        each pixel's colour as RRGGBB, one a line
  framebuffer.py count FILE X Y W H RRGGBB       how many pixels inside the region have the colour
  framebuffer.py marks FILE X Y H LENGTH         the middle rows of the runs, at least LENGTH
                                                 pixels long, in the column X from Y down for H
                                                 pixels, whose colour differs from the one at
                                                 (X, Y): where controls cross a plain background
  framebuffer.py changed FILE OTHER X Y W H      bounding box inside the region of the pixels that
                                                 differ between two screens of one size, as
                                                 WxH+X+Y, or none
  framebuffer.py colour-box FILE X Y W H RRGGBB  bounding box inside the region of the pixels of
                                                 exactly that colour, as WxH+X+Y, or none
  framebuffer.py wait  FILE X Y W H BOX SECONDS  polls until the region's black box is BOX; prints
                                                 the wall-clock time (seconds since the epoch) at
                                                 which it first was; exit status 1 on time-out
  framebuffer.py ever-black FILE SECONDS X Y [X Y ...]
                                                 watches the pixels, about every millisecond, for
                                                 SECONDS; prints "never", or the first one seen
                                                 black as X,Y and when; exit status 1 if one was

"Black" allows a little antialiasing slack: every channel at most 8 of 255.
"""
import mmap
import struct
import sys
import time

BLACK_LIMIT = 8


class Framebuffer:
    def __init__(self, path):
        self.file = open(path, "rb")
        self.map = mmap.mmap(self.file.fileno(), 0, access=mmap.ACCESS_READ)
        if self.map[:2] == b"P6":
            self.read_ppm_header()
            return
        header = struct.unpack(">25I", self.map[:100])
        header_size, self.width, self.height = header[0], header[4], header[5]
        bits_per_pixel, self.bytes_per_line, ncolors = header[11], header[12], header[19]
        if bits_per_pixel != 32 or header[7] != 0:
            raise SystemExit("framebuffer.py: expected a 32-bit little-endian screen")
        self.offset = header_size + ncolors * 12
        self.step, self.red, self.blue = 4, 2, 0  # blue, green, red, padding

    def read_ppm_header(self):
        # "P6", width, height, the largest value (255), each after white space, then the pixels.
        fields, at = [], 2
        while len(fields) < 3:
            while self.map[at:at + 1].isspace():
                at += 1
            start = at
            while not self.map[at:at + 1].isspace():
                at += 1
            fields.append(int(self.map[start:at]))
        self.width, self.height = fields[0], fields[1]
        self.offset = at + 1
        self.bytes_per_line = self.width * 3
        self.step, self.red, self.blue = 3, 0, 2  # red, green, blue

    def pixel(self, x, y):
        at = self.offset + y * self.bytes_per_line + x * self.step
        return self.map[at + self.red], self.map[at + 1], self.map[at + self.blue]

    def marks(self, x, y, h, length):
        background = self.pixel(x, y)
        middles = []
        start = None
        for row in range(y, min(y + h, self.height) + 1):
            differs = row < min(y + h, self.height) and self.pixel(x, row) != background
            if differs and start is None:
                start = row
            elif not differs and start is not None:
                if row - start >= length:
                    middles.append((start + row - 1) // 2)
                start = None
        return middles

    def row(self, x, y, w):
        start = self.offset + y * self.bytes_per_line + x * self.step
        return self.map[start:start + w * self.step]

    def changed_box(self, other, x, y, w, h):
        step, red, blue = self.step, self.red, self.blue
        spans = []
        for row in range(y, min(y + h, self.height)):
            mine, theirs = self.row(x, row, w), other.row(x, row, w)
            if mine == theirs:  # most rows: nothing to look at pixel by pixel
                continue
            differing = [column for column in range(w)
                         if (mine[column * step + red], mine[column * step + 1],
                             mine[column * step + blue])
                         != (theirs[column * other.step + other.red], theirs[column * other.step + 1],
                             theirs[column * other.step + other.blue])]
            if differing:
                spans.append((row, differing[0], differing[-1]))
        return box_of(x, spans)

    def colour_box(self, x, y, w, h, colour):
        # Searched for as bytes, row by row: a whole screen takes milliseconds.
        pattern = bytearray(3)
        pattern[self.red], pattern[1], pattern[self.blue] = colour
        spans = []
        for row in range(y, min(y + h, self.height)):
            line = self.row(x, row, w)
            first = first_pixel(line, pattern, self.step)
            if first is not None:
                spans.append((row, first, last_pixel(line, pattern, self.step)))
        return box_of(x, spans)

    def black_box(self, x, y, w, h):
        top = bottom = left = right = None
        step = self.step
        for row in range(y, min(y + h, self.height)):
            start = self.offset + row * self.bytes_per_line + x * step
            line = self.map[start:start + w * step]
            # Quick rejection of rows with no dark byte triple at all.
            first = last = None
            for column in range(0, len(line), step):
                if line[column] <= BLACK_LIMIT and line[column + 1] <= BLACK_LIMIT \
                        and line[column + 2] <= BLACK_LIMIT:
                    if first is None:
                        first = column // step
                    last = column // step
            if first is None:
                continue
            top = row if top is None else top
            bottom = row
            left = first if left is None else min(left, first)
            right = last if right is None else max(right, last)
        if top is None:
            return "none"
        return f"{right - left + 1}x{bottom - top + 1}+{x + left}+{top}"


def first_pixel(line, pattern, step):
    """The first column of the row whose pixel starts with the pattern's bytes, or None."""
    at = line.find(pattern)
    while at >= 0 and at % step:
        at = line.find(pattern, at + 1)
    return at // step if at >= 0 else None


def last_pixel(line, pattern, step):
    """The last such column, or None."""
    at = line.rfind(pattern)
    while at >= 0 and at % step:
        at = line.rfind(pattern, 0, at + len(pattern) - 1)
    return at // step if at >= 0 else None


def box_of(x, spans):
    """WxH+X+Y around (row, first column, last column) spans, the columns counted from x."""
    if not spans:
        return "none"
    left, right = min(span[1] for span in spans), max(span[2] for span in spans)
    top, bottom = spans[0][0], spans[-1][0]
    return f"{right - left + 1}x{bottom - top + 1}+{x + left}+{top}"


def main(argv):
    command, path = argv[1], argv[2]
    if command == "ever-black":
        screen = Framebuffer(path)
        seconds = float(argv[3])
        points = [(int(argv[i]), int(argv[i + 1])) for i in range(4, len(argv) - 1, 2)]
        deadline = time.time() + seconds
        while time.time() < deadline:
            for x, y in points:
                if max(screen.pixel(x, y)) <= BLACK_LIMIT:
                    print(f"{x},{y} at {time.time():.3f}")
                    return 1
            time.sleep(0.001)
        print("never")
        return 0
    numbers = [int(value) for value in argv[3:7] if value.lstrip("-").isdigit()]
    screen = Framebuffer(path)
    if command == "pixel":
        coordinates = [int(value) for value in argv[3:]]
        for x, y in zip(coordinates[0::2], coordinates[1::2]):
            print("%02X%02X%02X" % screen.pixel(x, y))
        return 0
    if command == "count":
        x, y, w, h = numbers[:4]
        colour = tuple(bytes.fromhex(argv[7]))
        print(sum(1 for row in range(y, y + h) for column in range(x, x + w)
                  if screen.pixel(column, row) == colour))
        return 0
    if command == "changed":
        x, y, w, h = (int(value) for value in argv[4:8])
        print(screen.changed_box(Framebuffer(argv[3]), x, y, w, h))
        return 0
    if command == "colour-box":
        print(screen.colour_box(*numbers[:4], tuple(bytes.fromhex(argv[7]))))
        return 0
    if command == "box":
        print(screen.black_box(*numbers[:4]))
        return 0
    if command == "marks":
        x, y, h = numbers[:3]
        print(" ".join(str(row) for row in screen.marks(x, y, h, int(argv[6]))))
        return 0
    if command == "wait":
        expected, seconds = argv[7], float(argv[8])
        deadline = time.time() + seconds
        while True:
            now = time.time()
            box = screen.black_box(*numbers[:4])
            if box == expected:
                print(f"{now:.3f}")
                return 0
            if now > deadline:
                print(f"timed out; last {box}", file=sys.stderr)
                return 1
            time.sleep(0.005)
    raise SystemExit(__doc__)


if __name__ == "__main__":
    sys.exit(main(sys.argv))

#!/usr/bin/env python3
"""Reads the screen of an Xvfb server started with -fbdir straight from its memory-mapped
framebuffer file (XWD format), so that checks cost microseconds rather than a screen grab each.

  framebuffer.py box   FILE X Y W H              black bounding box inside the region, as WxH+X+Y
  framebuffer.py pixel FILE X Y                  the pixel's colour as RRGGBB
  framebuffer.py marks FILE X Y H LENGTH         the middle rows of the runs, at least LENGTH
                                                 pixels long, in the column X from Y down for H
                                                 pixels, whose colour differs from the one at
                                                 (X, Y): where controls cross a plain background
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
        header = struct.unpack(">25I", self.map[:100])
        header_size, self.width, self.height = header[0], header[4], header[5]
        bits_per_pixel, self.bytes_per_line, ncolors = header[11], header[12], header[19]
        if bits_per_pixel != 32 or header[7] != 0:
            raise SystemExit("framebuffer.py: expected a 32-bit little-endian screen")
        self.offset = header_size + ncolors * 12

    def pixel(self, x, y):
        at = self.offset + y * self.bytes_per_line + x * 4
        blue, green, red = self.map[at], self.map[at + 1], self.map[at + 2]
        return red, green, blue

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

    def black_box(self, x, y, w, h):
        top = bottom = left = right = None
        for row in range(y, min(y + h, self.height)):
            start = self.offset + row * self.bytes_per_line + x * 4
            line = self.map[start:start + w * 4]
            # Quick rejection of rows with no dark byte triple at all.
            first = last = None
            for column in range(0, len(line), 4):
                if line[column] <= BLACK_LIMIT and line[column + 1] <= BLACK_LIMIT \
                        and line[column + 2] <= BLACK_LIMIT:
                    if first is None:
                        first = column // 4
                    last = column // 4
            if first is None:
                continue
            top = row if top is None else top
            bottom = row
            left = first if left is None else min(left, first)
            right = last if right is None else max(right, last)
        if top is None:
            return "none"
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
        print("%02X%02X%02X" % screen.pixel(numbers[0], numbers[1]))
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

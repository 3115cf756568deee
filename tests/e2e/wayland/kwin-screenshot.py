#!/usr/bin/env python3
"""Writes what KWin shows of the desktop as a binary PPM on standard output, at the screens' own
resolution, through KWin's screenshot service on the session bus (org.kde.KWin.ScreenShot2, which
KWin grants any caller while KWIN_SCREENSHOT_NO_PERMISSION_CHECKS=1 is in its environment).
KWin 5.27's CaptureArea gives back what the workspace looked like a while before; the whole
workspace is taken instead.

usage: kwin-screenshot.py > screen.ppm
"""
import os
import sys

import dbus


def main():
    service = dbus.SessionBus().get_object("org.kde.KWin", "/org/kde/KWin/ScreenShot2")
    screenshots = dbus.Interface(service, "org.kde.KWin.ScreenShot2")
    reading, writing = os.pipe()
    meta = screenshots.CaptureWorkspace({"native-resolution": True}, dbus.types.UnixFd(writing))
    os.close(writing)
    data = bytearray()
    while chunk := os.read(reading, 1 << 20):
        data += chunk
    columns, rows, stride = int(meta["width"]), int(meta["height"]), int(meta["stride"])
    # QImage's 32-bit formats lie in memory as blue, green, red, alpha on this machine.
    pixels = bytearray(columns * rows * 3)
    for row in range(rows):
        line = data[row * stride:row * stride + columns * 4]
        start = row * columns * 3
        for channel, source in enumerate((2, 1, 0)):
            pixels[start + channel:start + columns * 3:3] = line[source::4]
    sys.stdout.buffer.write(b"P6\n%d %d\n255\n" % (columns, rows) + pixels)


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/env python3
"""Writes what GNOME Shell shows, without the pointer, as a PNG at PATH, through the shell's
screenshot service on the session bus (org.gnome.Shell.Screenshot). The shell takes screenshots
only for a few well-known bus names: this connection takes one of them first.

usage: gnome-screenshot.py PATH
"""
import sys

import dbus


def main():
    bus = dbus.SessionBus()
    bus.request_name("org.gnome.Screenshot", dbus.bus.NAME_FLAG_DO_NOT_QUEUE)
    shell = bus.get_object("org.gnome.Shell.Screenshot", "/org/gnome/Shell/Screenshot")
    taken, _ = dbus.Interface(shell, "org.gnome.Shell.Screenshot").Screenshot(False, False,
                                                                               sys.argv[1])
    if not taken:
        print("gnome-screenshot.py: the shell took no screenshot", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())

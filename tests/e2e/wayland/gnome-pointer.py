#!/usr/bin/env python3
"""The end-to-end tests' pointer on a headless GNOME Shell, which has no pointer of its own: a
remote-desktop session of mutter's (org.gnome.Mutter.RemoteDesktop on the session bus), commanded
as brimly_pointer_driver is, one command a line on standard input; it says "ready" once the
session runs:

  move X Y      puts the pointer at X, Y of the WIDTH x HEIGHT desktop
  click         presses and releases the left button where it is
  click middle  the same with the middle button (here only)
  escape        presses and releases Escape (here only)
  quit          ends (so does the end of input)

The session lasts as long as this program's connection to the bus. It moves the pointer by
relative motion only (absolute motion would need a screen-cast stream): the first move pushes it
into the bottom-right corner, where it stops, and goes on from there (not from the top-left one:
the Activities hot corner is there). The shell starts in its overview; Escape leaves it first.

usage: gnome-pointer.py WIDTH HEIGHT
"""
import sys

import dbus

SERVICE, PATH = "org.gnome.Mutter.RemoteDesktop", "/org/gnome/Mutter/RemoteDesktop"
BUTTONS = {"left": 272, "middle": 274}  # evdev's BTN_LEFT and BTN_MIDDLE
KEY_ESCAPE = 0xFF1B  # the X keysym


def main():
    width, height = int(sys.argv[1]), int(sys.argv[2])
    bus = dbus.SessionBus()
    remote = dbus.Interface(bus.get_object(SERVICE, PATH), SERVICE)
    session = dbus.Interface(bus.get_object(SERVICE, remote.CreateSession()), SERVICE + ".Session")
    session.Start()
    def escape():
        for pressed in (True, False):
            session.NotifyKeyboardKeysym(dbus.UInt32(KEY_ESCAPE), pressed)

    escape()
    position = None
    print("ready", flush=True)
    for line in sys.stdin:
        words = line.split()
        if not words:
            continue
        if words[0] == "move":
            if position is None:
                session.NotifyPointerMotionRelative(4.0 * width, 4.0 * height)
                position = (width - 1, height - 1)
            x, y = int(words[1]), int(words[2])
            session.NotifyPointerMotionRelative(float(x - position[0]), float(y - position[1]))
            position = (x, y)
        elif words[0] == "click":
            button = BUTTONS[words[1] if len(words) > 1 else "left"]
            for pressed in (True, False):
                session.NotifyPointerButton(button, pressed)
        elif words[0] == "escape":
            escape()
        elif words[0] == "quit":
            break
        else:
            print(f"gnome-pointer.py: unknown command {words[0]}", file=sys.stderr)
    return 0


if __name__ == "__main__":
    sys.exit(main())

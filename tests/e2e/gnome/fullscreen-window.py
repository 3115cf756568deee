#!/usr/bin/python3
"""A full-screen Wayland window in one flat colour that logs every click it gets, for the end-to-end
run under GNOME Shell: what lies beneath Brimly's card, and the witness of which clicks reach it.

  fullscreen-window.py LOG

Writes "ready" to LOG once the window is shown, then "click X Y" for each press of a button.
"""
import sys

import gi

gi.require_version("Gdk", "4.0")
gi.require_version("Gtk", "4.0")
from gi.repository import Gdk, Gtk  # noqa: E402

# The colour the checks look for.
STYLE = b"window, box { background: #3465a4; }"


def main():
    log = open(sys.argv[1], "a", buffering=1)
    application = Gtk.Application(application_id="app.brimly.E2EFullScreenWindow")

    def activate(app):
        style = Gtk.CssProvider()
        style.load_from_data(STYLE)
        Gtk.StyleContext.add_provider_for_display(Gdk.Display.get_default(), style,
                                                  Gtk.STYLE_PROVIDER_PRIORITY_USER)
        window = Gtk.ApplicationWindow(application=app, title="Beneath Brimly")
        area = Gtk.Box(hexpand=True, vexpand=True)
        clicks = Gtk.GestureClick(button=0)
        clicks.connect("pressed", lambda _gesture, _n, x, y: log.write(f"click {x:.0f} {y:.0f}\n"))
        area.add_controller(clicks)
        window.set_child(area)
        window.connect("map", lambda _window: log.write("ready\n"))
        window.fullscreen()
        window.present()

    application.connect("activate", activate)
    return application.run([])


if __name__ == "__main__":
    sys.exit(main())

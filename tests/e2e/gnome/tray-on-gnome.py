#!/usr/bin/python3
"""Brimly's tray item under a headless GNOME Shell with the AppIndicator extension, as Ubuntu ships
it: the extension is a StatusNotifierItem host on the shell's session bus. The item shows in the
top bar; a middle click on it (a single left one opens the item's menu, which is empty) passes the
click's place to Brimly, which opens the control card right under the item and fully on screen.
Escape, a click into another program's window and a second click on the item close the card. Run
inside gnome-shell-e2e.sh's namespaces, as the unprivileged user.

  tray-on-gnome.py BRIMLY WORK

WORK is a folder of the user's own; the screenshots are left in WORK/shots.
"""
import os
import subprocess
import sys

from headless_shell import HEIGHT, KEY_ESCAPE, WIDTH, RemotePointer, SessionBus, wait_until
from shell_run import ShellRun, main

HERE = os.path.dirname(os.path.abspath(__file__))
WINDOW = "3465a4"  # fullscreen-window.py's colour
EXTENSION = "ubuntu-appindicators@ubuntu.com"
BAR_HEIGHT = 32  # GNOME's top bar at scale 1, which it keeps out of the usable area
BUTTON_MIDDLE = 274  # evdev's BTN_MIDDLE
CARD = "1f2024"  # the card's surface
SHADOW = 18  # the transparent margin around the card that holds its shadow, in the card's window
MARGIN = 6  # the card's window keeps this far inside the screen's usable area


def changed_box(before, after, top, bottom, left=0):
    """The smallest (left, top, right, bottom) holding every pixel of rows top…bottom-1 and
    columns left… that differs between two pictures of the screen, or None."""
    channels, stride = before.channels, before.stride
    xs, ys = [], []
    for y in range(top, bottom):
        start, end = y * stride + left * channels, y * stride + WIDTH * channels
        row_before, row_after = before.data[start:end], after.data[start:end]
        if row_before == row_after:
            continue
        ys.append(y)
        differing = [i for i in range(0, end - start, channels)
                     if row_before[i:i + 3] != row_after[i:i + 3]]
        xs += [left + differing[0] // channels, left + differing[-1] // channels]
    return (min(xs), min(ys), max(xs), max(ys)) if xs else None


class Run(ShellRun):
    def card_box(self):
        """Where the card is on screen (below the top bar), or None while it is closed."""
        return changed_box(self.desktop, self.screen(), BAR_HEIGHT, HEIGHT)

    def card_window(self, picture):
        """The card's window (left, top, right, bottom) from where its surface is painted."""
        rows = [y for y in range(BAR_HEIGHT, HEIGHT, 2) if picture.pixel(self.item[0], y) == CARD]
        if not rows:
            return None
        middle = rows[len(rows) // 2]
        columns = [x for x in range(WIDTH) if picture.pixel(x, middle) == CARD]
        top = min(y for y in range(rows[0] - 1, rows[0] + 1)
                  if picture.pixel(self.item[0], y) == CARD)
        return (columns[0] - SHADOW, top - SHADOW, columns[-1] + SHADOW, rows[-1] + SHADOW)

    def card_closes(self, name):
        closed = wait_until(lambda: self.card_box() is None, 5, step=0)
        self.screen(name)
        return closed

    def click_item(self):
        self.pointer.move_to(*self.item)
        self.pointer.click(BUTTON_MIDDLE)

    def find_item(self):
        """The item is what Brimly added to the top bar's right-hand side; the system menu at the
        far right stays where it is. Its centre, once it shows."""
        # The right half only: the clock in the middle moves on.
        found = wait_until(
            lambda: changed_box(self.bare_bar, self.screen(), 0, BAR_HEIGHT, WIDTH // 2), 20,
            step=0.2)
        if not found:
            return None
        # Items left of the new one move left to make room: the new one is the rightmost change,
        # no wider than a panel button.
        right = found[2]
        left = max(found[0], right - 40)
        return ((left + right) // 2, BAR_HEIGHT // 2)

    def run(self):
        if not os.path.isdir(f"/usr/share/gnome-shell/extensions/{EXTENSION}"):
            raise RuntimeError("the AppIndicator extension is not installed "
                               "(scripts/install-deps --test installs it)")
        self.shell.start(extensions=[EXTENSION])
        self.say("GNOME Shell is up with the AppIndicator extension")
        self.bus = SessionBus(self.shell.bus_address())
        self.pointer = RemotePointer(self.bus)
        self.pointer.key(KEY_ESCAPE)  # the shell starts in the overview
        # Another program's window beneath, which takes the keyboard when clicked.
        window_env = dict(self.shell.client_environment(x11=False), GDK_BACKEND="wayland",
                          GSK_RENDERER="cairo")
        self.shell.processes.append(subprocess.Popen(
            ["/usr/bin/python3", f"{HERE}/fullscreen-window.py", f"{self.work}/logs/window.log",
             "maximized"], env=window_env, stdout=open(f"{self.work}/logs/window.err", "w"),
            stderr=subprocess.STDOUT))
        self.pointer.move_to(300, 400)
        if not wait_until(lambda: self.screen().pixel(300, 400) == WINDOW, 20, step=0.2):
            raise RuntimeError("the other program's window did not come up:\n"
                               + self.shell.log("window.err"))
        self.bare_bar = self.screen("gnome-tray-0-without-brimly")

        env = dict(self.shell.client_environment(), XDG_CONFIG_HOME=f"{self.work}/config")
        self.brimly_process = subprocess.Popen(
            [self.brimly], env=env, stdout=subprocess.DEVNULL,
            stderr=open(f"{self.work}/logs/brimly.err", "a"))
        self.item = self.find_item()
        if not self.check("Brimly's item shows in the top bar", self.item is not None):
            return
        self.say(f"the item is at {self.item}")
        self.desktop = self.screen("gnome-tray-1-item")

        self.click_item()
        opened = wait_until(self.card_box, 5, step=0)
        if not self.check("a middle click on the item opens the card", opened is not None):
            return
        window = self.card_window(self.screen("gnome-tray-2-card-under-item"))
        if not self.check("the card is under the item", window is not None):
            return
        left, top, right, bottom = window
        self.say(f"the card's window spans x {left}…{right}, y {top}…{bottom}")
        self.check("the card hangs from the top bar, right under the item",
                   abs(top - BAR_HEIGHT) <= 1)
        self.check("the card is fully on screen, its window 6 points inside the right edge",
                   left >= MARGIN and right <= WIDTH - MARGIN and bottom < HEIGHT)
        centred = abs((left + right) / 2 - self.item[0]) <= 2
        at_edge = right >= WIDTH - MARGIN - 2
        self.check("the card is centred under the item, or as near as the screen's edge lets it",
                   centred or at_edge)

        self.pointer.key(KEY_ESCAPE)
        self.check("Escape closes the card", self.card_closes("gnome-tray-3-after-escape"))

        self.click_item()
        self.check("a click on the item opens it again", wait_until(self.card_box, 5, step=0))
        self.pointer.move_to(200, 500)
        self.pointer.click()
        self.check("a click into another program's window closes it",
                   self.card_closes("gnome-tray-4-after-click"))
        self.check("… and reaches that window",
                   wait_until(lambda: "click 200" in self.shell.log("window.log"), 5))

        self.click_item()
        self.check("a click on the item opens it once more", wait_until(self.card_box, 5, step=0))
        self.click_item()
        closed = wait_until(lambda: self.card_box() is None, 5, step=0)
        self.check("a second click on the item closes it", closed)
        self.check("… and it stays closed", closed and not wait_until(self.card_box, 2))

        self.brimly_process.terminate()
        self.check("Brimly ends on SIGTERM with status 0", self.brimly_process.wait(10) == 0)
        self.say("done")


if __name__ == "__main__":
    sys.exit(main(Run))

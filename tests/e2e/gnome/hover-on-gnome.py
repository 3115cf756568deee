#!/usr/bin/python3
"""Brimly under a headless GNOME Shell, through XWayland, over a full-screen Wayland window: the
pointer at the top centre opens the card, leaving closes it, the hot zone takes the clicks that
land in it and every other click reaches the window beneath, a pinned card takes none; and in the
same session without XWayland Brimly refuses to start in one line. Run inside gnome-shell-e2e.sh's
namespaces, as the unprivileged user.

  hover-on-gnome.py BRIMLY WORK

WORK is a folder of the user's own; the screenshots are left in WORK/shots.
"""
import os
import subprocess
import sys
import time

from headless_shell import (KEY_ESCAPE, HeadlessShell, RemotePointer, SessionBus, screenshot,
                            wait_until)

HERE = os.path.dirname(os.path.abspath(__file__))
WINDOW = "3465a4"  # fullscreen-window.py's colour
# The open card: 600 × 148 at the top centre of the 1280-wide screen, x 340…939, y 0…147.
INSIDE_OPEN_CARD = [(342, 60), (937, 60), (640, 2), (640, 145)]
BESIDE_OPEN_CARD = [(337, 60), (942, 60), (640, 151)]
# Closed, nothing is drawn (a Linux screen has no camera housing to hide the closed outline in).
WHERE_THE_CARD_OPENS = [(640, 2), (640, 20), (342, 60), (640, 145)]


def black(colour):
    return all(int(colour[i:i + 2], 16) <= 8 for i in (0, 2, 4))


class Run:
    def __init__(self, brimly, work):
        self.brimly, self.work = brimly, work
        self.started = time.monotonic()
        self.failures = 0
        for folder in ("runtime", "home", "logs", "shots", "config"):
            os.makedirs(f"{work}/{folder}", mode=0o700, exist_ok=True)
        self.shell = HeadlessShell(f"{work}/runtime", f"{work}/home", f"{work}/logs")
        self.shots = 0
        self.brimly_process = None

    def say(self, text):
        print(f"{text} [{time.monotonic() - self.started:.1f} s]", flush=True)

    def check(self, description, passed):
        print(("ok    " if passed else "FAIL  ") + description, flush=True)
        self.failures += 0 if passed else 1

    def screen(self, name=None):
        self.shots += 1
        path = f"{self.work}/{'shots' if name else 'logs'}/{name or f'shot-{self.shots}'}.png"
        return screenshot(self.bus, path)

    def card_is(self, opened, seconds=5, name=None):
        """Waits until the card is open (or closed) on screen; the last picture is kept as `name`."""
        def looks_right():
            picture = self.screen()
            inside = INSIDE_OPEN_CARD if opened else WHERE_THE_CARD_OPENS
            return (all(black(picture.pixel(*p)) == opened for p in inside)
                    and all(picture.pixel(*p) == WINDOW for p in BESIDE_OPEN_CARD)
                    and (opened or all(picture.pixel(*p) == WINDOW for p in inside)))
        result = wait_until(looks_right, seconds, step=0)
        if name:
            self.screen(name)
        return result

    def clicks(self):
        return [line.split()[1:] for line in self.shell.log("window.log").splitlines()
                if line.startswith("click")]

    def click_at(self, x, y):
        self.pointer.move_to(x, y)
        self.pointer.click()

    def start_brimly(self, pinned=False):
        os.makedirs(f"{self.work}/config/brimly", exist_ok=True)
        with open(f"{self.work}/config/brimly/Brimly.conf", "w") as settings:
            settings.write(f"[General]\nisPinned={'true' if pinned else 'false'}\n")
        env = dict(self.shell.client_environment(), XDG_CONFIG_HOME=f"{self.work}/config")
        self.brimly_process = subprocess.Popen(
            [self.brimly], env=env, stdout=subprocess.DEVNULL,
            stderr=open(f"{self.work}/logs/brimly.err", "a"))
        return wait_until(lambda: "hover" in self.shell.log("brimly.err"), 20)

    def stop_brimly(self):
        self.brimly_process.terminate()
        return self.brimly_process.wait(10)

    def run(self):
        self.shell.start()
        self.say("GNOME Shell is up")
        self.bus = SessionBus(self.shell.bus_address())
        self.pointer = RemotePointer(self.bus)
        self.pointer.key(KEY_ESCAPE)  # the shell starts in the overview
        window_env = dict(self.shell.client_environment(x11=False), GDK_BACKEND="wayland",
                          GSK_RENDERER="cairo")
        window_log = open(f"{self.work}/logs/window.log", "w")
        self.shell.processes.append(subprocess.Popen(
            ["/usr/bin/python3", f"{HERE}/fullscreen-window.py", f"{self.work}/logs/window.log"],
            env=window_env, stdout=window_log, stderr=subprocess.STDOUT))
        self.pointer.move_to(640, 400)
        if not wait_until(lambda: self.screen().pixel(640, 2) == WINDOW, 20, step=0):
            raise RuntimeError("the full-screen Wayland window did not come up:\n"
                               + self.shell.log("window.log"))
        self.say("the full-screen Wayland window covers the screen")

        # The same session without XWayland: Qt prefers X11 on GNOME, and Brimly needs it there.
        without_x11 = subprocess.run(
            [self.brimly], env=dict(self.shell.client_environment(x11=False),
                                    XDG_CONFIG_HOME=f"{self.work}/config"),
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, timeout=20)
        self.check("without XWayland Brimly leaves with status 3 and one line: "
                   + without_x11.stderr.strip(),
                   without_x11.returncode == 3 and without_x11.stderr.count("\n") == 1
                   and "no X11 display in this Wayland session" in without_x11.stderr)

        self.check("Brimly says it hovers through the XWayland hot zone", self.start_brimly())
        route = [line for line in self.shell.log("brimly.err").splitlines() if "hover" in line]
        self.check("… in one line: " + (route[0] if route else "(none)"),
                   len(route) == 1 and "XWayland hot zone" in route[0]
                   and "offers no layer shell" in route[0])
        self.check("closed, nothing is drawn over the Wayland window",
                   self.card_is(opened=False, name="gnome-1-closed"))

        self.pointer.move_to(640, 3)
        self.check("the pointer at the top centre opens the 600 × 148 card over the full-screen "
                   "window", self.card_is(opened=True, name="gnome-2-open-over-fullscreen-window"))
        self.say("open")
        self.pointer.click()  # in the hot zone
        self.click_at(640, 100)  # on the open card
        self.click_at(200, 60)  # beside it
        self.check("a click beside the open card reaches the Wayland window",
                   wait_until(lambda: ["200", "60"] in self.clicks(), 5))
        self.check("… and the clicks on the card did not",
                   self.clicks() == [["200", "60"]])
        self.check("leaving closes the card",
                   self.card_is(opened=False, name="gnome-3-after-leaving"))
        self.click_at(360, 60)
        self.check("closed, a click where the card was reaches the Wayland window",
                   wait_until(lambda: ["360", "60"] in self.clicks(), 5))
        self.check("Brimly ends on SIGTERM with status 0", self.stop_brimly() == 0)

        self.start_brimly(pinned=True)
        self.check("pinned, the card is open without the pointer near",
                   self.card_is(opened=True, name="gnome-4-pinned"))
        self.click_at(640, 100)
        self.check("a pinned card takes no click: the Wayland window gets it",
                   wait_until(lambda: ["640", "100"] in self.clicks(), 5))
        self.pointer.move_to(640, 400)
        self.check("… and stays open when the pointer leaves",
                   self.card_is(opened=True) and not self.card_is(opened=False, seconds=1))
        self.check("Brimly ends on SIGTERM with status 0", self.stop_brimly() == 0)
        self.say("done")

    def finish(self):
        if self.brimly_process and self.brimly_process.poll() is None:
            self.brimly_process.kill()
        self.shell.stop()
        errors = self.shell.log("brimly.err").strip()
        if errors:
            print("      brimly wrote on stderr:")
            print("\n".join("      | " + line for line in errors.splitlines()))


def main():
    run = Run(sys.argv[1], sys.argv[2])
    try:
        run.run()
    except Exception as error:  # the shell or a client failed to come up: say what and where
        print(f"FAIL  {error}")
        run.failures += 1
    finally:
        run.finish()
    print("PASSED" if run.failures == 0 else f"FAILED: {run.failures} check(s)")
    return 1 if run.failures else 0


if __name__ == "__main__":
    sys.exit(main())

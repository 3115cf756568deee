"""Brimly as a screen reader meets it: an AT-SPI client (pyatspi) that reads the application's
accessible tree and acts through it, the way Orca does, while xdotool stands in for the user's
clicks and keys.

usage: accessibility-client.py <tray icon x> <tray icon y> [folder for the trees read]

It opens the control card from the tray icon and reads it; moves through it with Tab; pins the
panel with the card's switch; opens the settings window with the card's button and reads each
tab; walks every Tab stop of the Metrics tab; opens About and reads it; reads the open panel's
readings; and ends Brimly with "Quit". Each check prints "ok" or "FAIL"; the status is the
number of failures (at most 100). With a folder, the trees it read are written there as text.
"""
import os
import re
import subprocess
import sys
import time

import pyatspi

icon_x, icon_y = int(sys.argv[1]), int(sys.argv[2])
out_dir = sys.argv[3] if len(sys.argv) > 3 else ""
failures = 0


def check(description, ok):
    global failures
    print(("ok    " if ok else "FAIL  ") + description, flush=True)
    if not ok:
        failures += 1
    return ok


def eventually(seconds, probe):
    """The first true answer of `probe`, asked every 50 ms for at most `seconds`; else None."""
    deadline = time.monotonic() + seconds
    while True:
        try:
            answer = probe()
        except Exception:  # an object that went away while it was read: ask again
            answer = None
        if answer:
            return answer
        if time.monotonic() > deadline:
            return None
        time.sleep(0.05)


# --- reading the tree -----------------------------------------------------------------------------
SHOWN_STATES = [
    ("focusable", pyatspi.STATE_FOCUSABLE),
    ("focused", pyatspi.STATE_FOCUSED),
    ("checked", pyatspi.STATE_CHECKED),
    ("selectable", pyatspi.STATE_SELECTABLE),
    ("selected", pyatspi.STATE_SELECTED),
    ("showing", pyatspi.STATE_SHOWING),
]


def states(acc):
    state = acc.getState()
    return {name for name, value in SHOWN_STATES if state.contains(value)}


def is_showing(acc):
    return acc.getState().contains(pyatspi.STATE_SHOWING)


def children(acc):
    return [child for child in (acc.getChildAtIndex(i) for i in range(acc.childCount)) if child]


def walk(acc):
    yield acc
    for child in children(acc):
        yield from walk(child)


def line(acc):
    text = f'{acc.getRoleName()} "{acc.name}" [{", ".join(sorted(states(acc)))}]'
    return text + (f" - {acc.description}" if acc.description else "")


def dump(acc, depth=0):
    return ["  " * depth + line(acc)] + [row for c in children(acc) for row in dump(c, depth + 1)]


def keep(name, acc):
    """Writes the tree under `acc` to <folder>/<name>.txt, as the client read it."""
    if out_dir:
        with open(os.path.join(out_dir, name + ".txt"), "w", encoding="utf-8") as out:
            out.write("\n".join(dump(acc)) + "\n")


def find_all(acc, role, name=None):
    return [a for a in walk(acc) if a.getRole() == role and (name is None or a.name == name)]


def find(acc, role, name=None):
    found = find_all(acc, role, name)
    return found[0] if found else None


def brimly():
    desktop = pyatspi.Registry.getDesktop(0)
    return next((app for app in children(desktop) if app.name == "Brimly"), None)


def window(role, name):
    """The showing top-level window of Brimly with `role` and `name`, read afresh."""
    app = brimly()
    if app is None:
        return None
    app.clear_cache()
    return next((w for w in children(app)
                 if w.getRole() == role and w.name == name and is_showing(w)), None)


def focused(root):
    root.clear_cache()
    return next((a for a in walk(root) if a.getState().contains(pyatspi.STATE_FOCUSED)), None)


def identity(acc):
    return (acc.getRoleName(), acc.name) if acc is not None else None


def tab_and_read_focus(root):
    """Presses Tab and reads what has the focus under `root` once it has moved; None if it does
    not move."""
    before = identity(focused(root))
    xdotool("key", "Tab")
    moved = eventually(2, lambda: identity(focused(root)) != before)
    return focused(root) if moved else None


def act(acc, action):
    """Runs the action named `action` ("Press", "Toggle") of `acc`, as a screen reader does."""
    actions = acc.queryAction()
    for i in range(actions.nActions):
        if actions.getName(i) == action:
            return actions.doAction(i)
    raise LookupError(f"{line(acc)} has no action {action}")


def xdotool(*args):
    subprocess.run(["xdotool", *args], check=True)


def click_at(x, y):
    xdotool("mousemove", str(x), str(y))
    time.sleep(0.1)
    xdotool("click", "1")


def named(acc, role, names):
    """Whether `acc` holds exactly the `names` (in order) among its objects of `role`."""
    return [a.name for a in find_all(acc, role)] == names


# --- the control card -----------------------------------------------------------------------------
def open_card():
    click_at(icon_x, icon_y)
    return eventually(5, lambda: window(pyatspi.ROLE_DIALOG, "Brimly"))


check("Brimly's application is on the accessibility bus", eventually(10, brimly) is not None)
check("no control card is listed before it is opened", window(pyatspi.ROLE_DIALOG, "Brimly") is None)
card = open_card()
if not check('the open card is the dialog "Brimly"', card is not None):
    sys.exit(min(failures, 100))
keep("control-card", card)
switch_names = ["Keep panel visible", "Launch at login", "Show in Fahrenheit"]
check("… holding its three switches as named check boxes",
      named(card, pyatspi.ROLE_CHECK_BOX, switch_names))
check("… none of them checked yet",
      all("checked" not in states(a) for a in find_all(card, pyatspi.ROLE_CHECK_BOX)))
check("… and its four buttons as named push buttons",
      named(card, pyatspi.ROLE_PUSH_BUTTON, ["Settings", "Show Panel", "About", "Quit"]))
check("… with its caption and header as labels",
      named(card, pyatspi.ROLE_LABEL, ["Brimly", "v" + os.environ["BRIMLY_E2E_VERSION"],
                                       "SETTINGS"]))
first = focused(card)
check('the keyboard focus is on "Keep panel visible"',
      first is not None and first.name == "Keep panel visible")
for _ in range(3):
    xdotool("key", "Tab")
check('three Tabs on, the focus is on "Settings"',
      eventually(3, lambda: (focused(card) or first).name == "Settings"))
xdotool("key", "Escape")
check("Escape closes the card, and it leaves the tree",
      eventually(3, lambda: window(pyatspi.ROLE_DIALOG, "Brimly") is None))
card = open_card()
check("opened again, the card has the focus on its first switch again",
      card is not None and eventually(3, lambda: focused(card).name == "Keep panel visible"))

pin = find(card, pyatspi.ROLE_CHECK_BOX, "Keep panel visible")
act(pin, "Toggle")
check('"Toggle" on "Keep panel visible" checks it',
      eventually(3, lambda: pin.clear_cache() or "checked" in states(pin)))

# --- the open panel -------------------------------------------------------------------------------
panel = window(pyatspi.ROLE_FRAME, "Brimly")
reading = re.compile(r"^(CPU|GPU|RAM|DISK|TEMP|PWR) \S+")


def panel_readings():
    panel.clear_cache()
    labels = [a for a in find_all(panel, pyatspi.ROLE_LABEL) if is_showing(a)]
    return labels if len(labels) == 6 else None


check('the panel is the frame "Brimly"', panel is not None)
labels = eventually(5, panel_readings) if panel else None
if check("pinned open, it shows six readings as labels", labels is not None):
    keep("panel", panel)
    check("… each a metric's name and value (\"CPU 31%\"): "
          + ", ".join(f'"{a.name}"' for a in labels),
          all(reading.match(a.name) for a in labels))
    check("… in the panel's order",
          [a.name.split()[0] for a in labels] == ["CPU", "GPU", "RAM", "DISK", "TEMP", "PWR"])

# --- settings -------------------------------------------------------------------------------------
act(find(card, pyatspi.ROLE_PUSH_BUTTON, "Settings"), "Press")
settings = eventually(5, lambda: window(pyatspi.ROLE_FRAME, "Brimly Settings"))
if not check('"Settings" opens the frame "Brimly Settings"', settings is not None):
    sys.exit(min(failures, 100))
xdotool("key", "Escape")  # the card holds the keyboard while it is open
eventually(3, lambda: window(pyatspi.ROLE_DIALOG, "Brimly") is None)
extents = settings.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
check("… 360 x 468 on screen, as the client reads its extents",
      (extents.width, extents.height) == (360, 468))
# The first click into the window gives it the keyboard; beside the title, nothing is there.
click_at(extents.x + 300, extents.y + 20)

tab_list = find(settings, pyatspi.ROLE_PAGE_TAB_LIST)
check("its tabs are a page-tab list", tab_list is not None)
check("… of the page tabs General, Metrics and Appearance",
      tab_list is not None and named(tab_list, pyatspi.ROLE_PAGE_TAB,
                                     ["General", "Metrics", "Appearance"]))


def selected_tabs():
    settings.clear_cache()
    return [a.name for a in find_all(settings, pyatspi.ROLE_PAGE_TAB) if "selected" in states(a)]


def showing(root, role):
    root.clear_cache()
    return [a for a in find_all(root, role) if is_showing(a)]


check('"General" alone is selected', selected_tabs() == ["General"])
keep("settings-general", settings)
header = ["Brimly", "v" + os.environ["BRIMLY_E2E_VERSION"]]
check('its header and the General tab\'s caption "GENERAL" are labels',
      [a.name for a in showing(settings, pyatspi.ROLE_LABEL)] == header + ["GENERAL"])
general_switches = showing(settings, pyatspi.ROLE_CHECK_BOX)
check("… and its switches as check boxes, the pin checked as in the card",
      [(a.name, "checked" in states(a)) for a in general_switches]
      == [("Keep panel visible", True), ("Launch at login", False),
          ("Show temperature in °F", False)])

act(find(settings, pyatspi.ROLE_PAGE_TAB, "Metrics"), "Press")
check('"Press" on the Metrics tab selects it, and it alone',
      eventually(3, lambda: selected_tabs() == ["Metrics"]))
settings.clear_cache()
keep("settings-metrics", settings)
shown_labels = [a.name for a in showing(settings, pyatspi.ROLE_LABEL)]
check("its captions are labels",
      all(c in shown_labels for c in ["LIVE PREVIEW", "SHOWN", "DRAG TO REORDER"])
      and "HIDDEN" not in shown_labels)
preview = find(settings, pyatspi.ROLE_PANEL, "Live preview")
preview_labels = [a.name for a in find_all(preview, pyatspi.ROLE_LABEL)] if preview else []
check("the live preview reads each metric's name and value: "
      + ", ".join(f'"{name}"' for name in preview_labels),
      len(preview_labels) == 6 and all(reading.match(name) for name in preview_labels))
metric_list = find(settings, pyatspi.ROLE_LIST, "Metrics")
check('the metrics are the list "Metrics"', metric_list is not None)
items = find_all(metric_list, pyatspi.ROLE_LIST_ITEM) if metric_list else []
check("… of six list items, named and in the panel's order",
      [a.name for a in items] == ["CPU", "GPU", "RAM", "DISK", "TEMP", "PWR"])
check("… each saying it is shown and where it stands (\"Shown, 2 of 6\")",
      all(a.description.startswith(f"Shown, {i + 1} of 6.") for i, a in enumerate(items)))
check("… each holding its switch, checked",
      all([(s.name, "checked" in states(s)) for s in find_all(a, pyatspi.ROLE_CHECK_BOX)]
          == [("Show " + a.name, True)] for a in items))

act(find(metric_list, pyatspi.ROLE_CHECK_BOX, "Show DISK"), "Toggle")


def disk_hidden():
    metric_list.clear_cache()
    disk = find(metric_list, pyatspi.ROLE_LIST_ITEM, "DISK")
    return disk is not None and disk.description == "Hidden, 1 of 1."


check('"Toggle" on "Show DISK" hides DISK: "Hidden, 1 of 1."', eventually(3, disk_hidden))
check("… under the caption HIDDEN",
      [a.name for a in showing(metric_list, pyatspi.ROLE_LABEL)][-1:] == ["HIDDEN"])
check("… and the others close up: PWR is \"Shown, 5 of 5.\"",
      find(metric_list, pyatspi.ROLE_LIST_ITEM, "PWR").description.startswith("Shown, 5 of 5."))
check("… and the preview leaves DISK out",
      [a.name.split()[0] for a in find_all(find(settings, pyatspi.ROLE_PANEL, "Live preview"),
                                           pyatspi.ROLE_LABEL)]
      == ["CPU", "GPU", "RAM", "TEMP", "PWR"])
settings.clear_cache()
keep("settings-metrics-disk-hidden", settings)

# Every Tab stop of the tab, walked with the keyboard as the client sees the focus move: each
# is named and on screen, and together they are every focusable object that shows.
settings.clear_cache()
stops_shown = [a for a in walk(settings) if {"focusable", "showing"} <= states(a)]
visited = [tab_and_read_focus(settings) for _ in range(len(stops_shown) + 1)]
named_and_showing = [a is not None and a.name and is_showing(a) for a in visited]
check(f"Tab walks {len(stops_shown)} stops, every one named and showing: "
      + ", ".join(f'{a.getRoleName()} "{a.name}"' if a else "nothing" for a in visited[:-1]),
      all(named_and_showing))
round_trip = [identity(a) for a in visited[:-1] if a]
check("… and they are every focusable object that shows, each once a round",
      len(set(round_trip)) == len(round_trip) == len(stops_shown)
      and set(round_trip) == {identity(a) for a in stops_shown}
      and identity(visited[-1]) == identity(visited[0]))

act(find(settings, pyatspi.ROLE_PAGE_TAB, "Appearance"), "Press")
check('"Press" on the Appearance tab selects it, and it alone',
      eventually(3, lambda: selected_tabs() == ["Appearance"]))
settings.clear_cache()
keep("settings-appearance", settings)
appearance_labels = [a.name for a in showing(settings, pyatspi.ROLE_LABEL)]
check("the Appearance tab's captions and the chosen accent's name are labels",
      all(c in appearance_labels
          for c in ["LIVE PREVIEW", "ACCENT COLOR", "Green", "PANEL SIZE"]))
accent_names = ["Green", "Blue", "Indigo", "Purple", "Pink", "Orange", "Graphite", "System"]


def chosen(prefix):
    return [(a.name, "checked" in states(a)) for a in showing(settings, pyatspi.ROLE_RADIO_BUTTON)
            if a.name.startswith(prefix)]


check("… its swatches are radio buttons named by colour, Green checked",
      chosen("Accent colour: ") == [("Accent colour: " + n, n == "Green") for n in accent_names])
check("… the panel sizes are radio buttons, Regular checked",
      chosen("Panel size: ") == [("Panel size: Regular", True), ("Panel size: Large", False)])
check('… and "Show trend" is a check box, unchecked',
      [(a.name, "checked" in states(a)) for a in showing(settings, pyatspi.ROLE_CHECK_BOX)]
      == [("Show trend", False)])
act(find(settings, pyatspi.ROLE_RADIO_BUTTON, "Accent colour: Blue"), "Toggle")
check('"Toggle" on the Blue swatch checks it, and it alone',
      eventually(3, lambda: [n for n, on in chosen("Accent colour: ") if on]
                 == ["Accent colour: Blue"]))
act(find(settings, pyatspi.ROLE_RADIO_BUTTON, "Accent colour: Green"), "Toggle")
check("… and Green is chosen back",
      eventually(3, lambda: [n for n, on in chosen("Accent colour: ") if on]
                 == ["Accent colour: Green"]))
xdotool("key", "Escape")
check("Escape hides the settings window: no longer showing",
      eventually(3, lambda: window(pyatspi.ROLE_FRAME, "Brimly Settings") is None))

# --- About ----------------------------------------------------------------------------------------
card = open_card()
check("the card opens once more", card is not None)
act(find(card, pyatspi.ROLE_PUSH_BUTTON, "About"), "Press")
about = eventually(5, lambda: window(pyatspi.ROLE_FRAME, "About Brimly"))
if check('"About" opens the frame "About Brimly"', about is not None):
    keep("about", about)
    texts = [a.name for a in find_all(about, pyatspi.ROLE_LABEL)]
    check("… reading its lines as labels: " + ", ".join(f'"{t}"' for t in texts),
          texts[:4] == ["Brimly", "v" + os.environ["BRIMLY_E2E_VERSION"],
                        "Glance-able system stats in your notch.", "by"] and len(texts) == 5)
    check('… and the maker\'s mark as the image "Korvel"',
          find(about, pyatspi.ROLE_IMAGE, "Korvel") is not None)
    xdotool("key", "Escape")

# --- quit -----------------------------------------------------------------------------------------
card = open_card()
check('"Quit" is there to end Brimly', card is not None)
if card is not None:
    act(find(card, pyatspi.ROLE_PUSH_BUTTON, "Quit"), "Press")
sys.exit(min(failures, 100))

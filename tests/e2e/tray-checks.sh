# Shared by the tray end-to-end scripts on Wayland desktops (sourced after wayland-desktop.sh): the
# tray item found in the bar, clicked, and the control card it opens, read from the screen.
#
# Each script sets bar (the bar's height in pixels, at the top), item_from (the column from which
# the bar's right-hand side is searched) and item_button (what the pointer's click takes, empty
# for the left button), defines shoot as wayland-desktop.sh asks, and starts the window beneath
# maximized under the bar.

card=1f2024  # the control card's surface

keep() {  # keep <name>: the last look, whole, for people to look at, when asked for
  [ -n "${shots:-}" ] || return 0
  mkdir -p "$shots" && convert "$screen" "$shots/$label-$1.png"
}
stop_if_failed() { [ "$failures" -eq 0 ] || finish; }  # what follows needs what was checked
# at <x> <y>: a point of the screen; the window beneath counts its clicks from under the bar.
at() {
  pointer_at="$1 $(($2 - bar))"
  move "$1" "$2"
}

# item_shows: what Brimly added to the bar's right-hand side since "$work/bare.ppm" was shot; its
# middle in item_x. Items left of the new one move left to make room: the new one is the rightmost
# change, no wider than a bar's button.
item_shows() {
  look || return 1
  local found size left right
  found=$("$e2e/framebuffer.py" changed "$screen" "$work/bare.ppm" "$item_from" 0 \
    $((width - item_from)) "$bar")
  [ "$found" != none ] || return 1
  size=${found%%+*}
  left=$(echo "$found" | cut -d+ -f2)
  right=$((left + ${size%x*} - 1))
  [ $((right - 40)) -gt "$left" ] && left=$((right - 40))
  item_x=$(((left + right) / 2))
}
click_item() {
  at "$item_x" $((bar / 2))
  echo "click $item_button" >&3
}
# card_surface: where the last look shows the card's surface below the bar, as WxH+X+Y, or none.
# (Its colour, not a change of the screen: sway draws the pointer into its screenshots.)
card_surface() {
  "$e2e/framebuffer.py" colour-box "$screen" 0 "$bar" "$width" $((height - bar)) $card
}
card_open() { look && test "$(card_surface)" != none; }
card_closed() { ! card_open; }

# click_elsewhere_closes_the_card: with the card open, a click into another program's window,
# which takes the keyboard from Brimly, closes it.
click_elsewhere_closes_the_card() {
  at 200 500
  check "a click into another program's window reaches it" click_reaches yes
  check "… and closes the card" eventually 5 card_closed
}
# item_clicks_toggle_the_card: with the card closed, a click on the item opens it and a second
# one, a moment later as a hand clicks, closes it.
item_clicks_toggle_the_card() {
  click_item
  check "a click on the item opens it again" eventually 5 card_open
  sleep 0.2
  click_item
  check "a second click on the item closes it" eventually 5 card_closed
  check "… and it stays closed" stays 2 card_closed
}

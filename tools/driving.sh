# Sourced by the scripts that drive the program on a virtual display with real mouse input: looking at its
# windows, waiting for what they show, clicking and dragging. Places are in logical pixels of a window's
# inside; QT_SCALE_FACTOR says how many of the screen make one (1), or SCREEN_PERCENT how many make a hundred. Before
# sourcing it, a script sets `shots`, the folder that gets a picture of the screen when something does not come about.
# shellcheck shell=bash disable=SC2034,SC2086,SC2154 # what it shares with the scripts; places are two words

scale=${QT_SCALE_FACTOR:-1}
percent=${SCREEN_PERCENT:-$((100 * scale))}
on_screen() { echo $(($1 * percent / 100)); }

# The program started last, and its two windows once they are up.
pid=
main=
deck=

start_program() { # PROGRAM
  "$1" &
  pid=$!
  trap 'kill "$pid" 2>/dev/null || true' EXIT
}
has_ended() { ! kill -0 "$pid" 2>/dev/null; }

# --- Looking -----------------------------------------------------------------------------------------

window_named() { xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -n 1; }
about_is_up() { [[ $(window_named '^About Pellucor 4$') ]]; }
main_is_up() { main=$(window_named '^Pellucor 4$') && [[ -n $main ]]; }
deck_is_up() { deck=$(window_named '^Deck - Drag') && [[ -n $deck ]]; }

# A menu, a tooltip or a card in the air.
popup_is_up() { [[ $(xdotool search --maxdepth 1 --onlyvisible --class '^pellucor(\.exe)?$' 2>/dev/null) ]]; }
popup_is_gone() { ! popup_is_up; }

# wait_for WHAT COMMAND...: tries until the command succeeds, ten seconds at most, or as long as the script's
# patience lasts.
patience=10
wait_for() {
  local what=$1
  shift
  for ((tries = 0; tries < 10 * patience; ++tries)); do
    if "$@"; then
      return
    fi
    sleep 0.1
  done
  echo "$(basename "$0"): did not see $what" >&2
  import -window root "$shots/failed.png"
  exit 1
}

# A WIDTHxHEIGHT+X+Y in pixels of the screen.
scaled() {
  local width height x y
  IFS='x+' read -r width height x y <<<"$1"
  echo "$(on_screen width)x$(on_screen height)+$(on_screen x)+$(on_screen y)"
}

# grey WINDOW WIDTHxHEIGHT+X+Y: the mean brightness of that part of the window, 0..255.
grey() {
  import -window "$1" -crop "$(scaled "$2")" -colorspace gray -format '%[fx:round(255*mean)]' info:-
}
brighter() { (($(grey "$1" "$2") > $3)); }
darker() { (($(grey "$1" "$2") < $3)); }

# Of a part of the main window, for telling whether it has changed.
picture_of() { import -window "$main" -crop "$(scaled "$1")" +repage rgb:- | cksum; }

# --- Places of the main window -----------------------------------------------------------------------

file_menu="8 9"
speed_menu="42 9"
new_hand="236 14"
setup="235 50"
help_button="435 20"
fold_depth="16 249"
nine_players="368 245"
levels_before=("480 122" "512 122" "544 122") # Tight, Avg, Loose before the flop
levels_after=("480 168" "512 168" "544 168")

# Seats 1..10: the middle of each.
seat_spots=("" "344 24" "412 76" "414 148" "388 204" "300 236" "180 236" "88 204" "46 148" "60 76" "136 24")
seat_place() { # SEAT
  local x y
  read -r x y <<<"${seat_spots[$1]}"
  echo "72x40+$((x - 36))+$((y - 20))"
}

# The slots' upper left corners.
holes=("392 52" "429 52")
board=("128 88" "172 88" "216 88" "260 88" "304 88")

# The lower left corner of a slot, where a card is white and an empty slot is not.
slot_corner() { echo "6x4+$(($1 + 4))+$(($2 + 42))"; }
shows_card() { brighter "$main" "$(slot_corner "$1" "$2")" 250; }
is_empty() { darker "$main" "$(slot_corner "$1" "$2")" 245; }

# The Win/Split figures of the user and of the best other player.
figures_shown() { darker "$main" 56x20+577+162 253 && darker "$main" 56x20+719+162 253; }
figures_blank() { ! darker "$main" 56x20+577+162 255 && ! darker "$main" 56x20+719+162 255; }

# Whether the chances are others than when they were noted. Two streets never have them all alike.
columns="386x150+577+30"
note_figures() { noted=$(picture_of "$columns"); }
figures_changed() { [[ $(picture_of "$columns") != "$noted" ]] && figures_shown; }

# The advice blinks: white on the green of the table.
advice_shown() {
  local extremes
  extremes=$(import -window "$main" -crop "$(scaled 300x20+450+188)" \
    -format '%[fx:round(255*minima.r)] %[fx:round(255*maxima.r)]' info:-)
  [[ $extremes == "64 255" ]]
}

# --- Acting ------------------------------------------------------------------------------------------

point_at() { # WINDOW X Y
  xdotool mousemove --window "$1" "$(on_screen "$2")" "$(on_screen "$3")" sleep 0.05
}
click() { # WINDOW X Y [BUTTON]
  point_at "$1" "$2" "$3"
  xdotool click "${4:-1}"
}
press() { # X Y, of the main window
  click "$main" "$@"
}
# Leaves by the File menu.
leave() {
  open_menu $file_menu
  xdotool key Down Return # Exit
}
# Opens the menu at that place of the main window.
open_menu() { # X Y [BUTTON]
  click "$main" "$@"
  wait_for "a menu" popup_is_up
}
double_click() { # WINDOW X Y
  point_at "$1" "$2" "$3"
  xdotool click --repeat 2 --delay 50 1
}

# Where to take a card in the deck window; suits S H C D from the top, ranks 2..14.
deck_card() { # SUIT RANK
  local rows=SHCD
  local before=${rows%%"$1"*}
  echo "$((3 + 23 * ($2 - 2) + $2 / 5 + 8)) $((3 + 43 * ${#before} + 20))"
}
click_card() { # SUIT RANK
  local x y
  read -r x y < <(deck_card "$1" "$2")
  click "$deck" "$x" "$y"
}
# Takes the card and holds it over a slot, until the button is released.
lift_card() { # SUIT RANK SLOT_X SLOT_Y
  local x y
  read -r x y < <(deck_card "$1" "$2")
  point_at "$deck" "$x" "$y"
  xdotool mousedown 1
  point_at "$main" 400 200
  point_at "$main" $(($3 + 15)) $(($4 + 25))
  wait_for "a card in the air" popup_is_up
}
drag_card() { # SUIT RANK SLOT_X SLOT_Y
  lift_card "$@"
  xdotool mouseup 1
}

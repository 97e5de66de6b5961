#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Photographs every window, menu and sheet on a sample home, light and dark, in several sizes, directions and scales, on
# X11 and on Wayland, into the folder that is named (build/pictures when left out), with problems, unusual palettes and a
# language that is read from right to left, too. What could not be photographed is listed at the end, whatever ends the
# script, and then it fails.
set -euo pipefail
target=$(realpath -m "${1:-$(dirname "$0")/../build/pictures}")
cd "$(dirname "$0")/.."

Scripts/install-dependencies.sh build samples fonts pictures
cmake --preset release >/dev/null
cmake --build --preset release --target roamlet roamlet-sample-home
program=$PWD/build/release/roamlet
sample_home=$PWD/build/release/roamlet-sample-home

work=$(mktemp -d)
mkdir -p "$target" "$work/run" "$work/desktop"
chmod 700 "$work/run"
problems=()
theme=light
gtk_theme=Adwaita
last=
# The program that is photographed, what tells it of the desktop's settings, and everything that all of them need.
shown=
portals=()
started=()

report() {
  problems+=("$1")
  echo "$1" >&2
}

# seconds, what is waited for, command that tells whether it is there
wait_for() {
  local limit=$((SECONDS + $1)) what=$2
  shift 2
  until "$@" >/dev/null 2>&1; do
    if [ $SECONDS -ge $limit ]; then
      report "${picture:+$picture: }waited in vain for $what"
      return 1
    fi
    sleep 0.1
  done
}

has_ended() { ! kill -0 "$1"; }

# process, what it is
end_process() {
  kill -TERM "$1" 2>/dev/null || true
  wait_for 20 "the end of $2" has_ended "$1" || kill -KILL "$1" 2>/dev/null || true
  wait "$1" 2>/dev/null || true
}

clean_up() {
  local status=$?
  picture=
  [ -z "$shown" ] || end_process "$shown" "the program"
  end_portals
  # What was started last needs what was started first.
  for ((i = ${#started[@]} - 1; i >= 0; --i)); do end_process "${started[i]}" "a process of the desktop"; done
  rm -rf "$work"
  if [ ${#problems[@]} -gt 0 ]; then
    printf '%s\n' "Not all of them:" "${problems[@]}" >&2
    status=1
  fi
  exit "$status"
}
trap clean_up EXIT
trap 'exit 130' INT TERM

# command of the desktop, which has settings and folders of its own
start() {
  env HOME="$work/desktop" "$@" >/dev/null 2>&1 &
  started+=($!)
}

# Nothing of the session that this script is called in.
for name in "${!XDG_@}" "${!GTK_@}" "${!QT_@}" "${!WAYLAND_@}" "${!LC_@}" SWAYSOCK DISPLAY LANGUAGE; do unset "$name"; done
# Letters of every language, also where this one is not installed.
export XDG_RUNTIME_DIR=$work/run LANG=en_GB.UTF-8 LC_CTYPE=C.UTF-8

# Starts no services: they would outlive the pictures.
cat >"$work/bus.conf" <<END
<busconfig><type>session</type><listen>unix:path=$work/run/bus</listen>
<policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/></policy>
</busconfig>
END
start dbus-daemon --nofork --config-file="$work/bus.conf"
export DBUS_SESSION_BUS_ADDRESS=unix:path=$work/run/bus
wait_for 10 "the session bus" test -S "$work/run/bus"

# size; on a display whose number is free
begin_screen() {
  rm -f "$work/display"
  Xvfb -displayfd 3 -screen 0 "$1x24" 3>"$work/display" >/dev/null 2>&1 &
  started+=($!)
  wait_for 20 "an X server" grep -q . "$work/display"
  DISPLAY=:$(cat "$work/display")
  export DISPLAY
  start openbox
  wait_for 20 "the window manager" xdotool get_desktop
  start trayer --edge top --align right --widthtype request --height 24
  wait_for 20 "the panel" xdotool search --onlyvisible --class trayer
}

# home folder, then colours: text, ground, selection, text on it
write_palette() {
  local text=$2 ground=$3 selection=$4 selected=$5 colors
  # The roles in the order in which Qt counts them.
  colors="$text, $ground, $text, $text, $text, $text, $text, $text, $text, $ground, $ground, $ground, $selection, \
$selected, $text, $text, $ground, $ground, $ground, $text, $text"
  mkdir -p "$1/.config/qt6ct"
  printf '[ColorScheme]\n%s_colors=%s\n' active "$colors" inactive "$colors" disabled "$colors" \
    >"$1/.config/qt6ct/colors.conf"
  cat >"$1/.config/qt6ct/qt6ct.conf" <<END
[Appearance]
color_scheme_path=$1/.config/qt6ct/colors.conf
custom_palette=true
style=Fusion
[Interface]
cursor_flash_time=0
END
}

# home folder, then what its desktop has set, as lines of a file
start_portals() {
  local around=(env HOME="$1" GSETTINGS_BACKEND=keyfile XDG_CURRENT_DESKTOP=GNOME)
  local settings=(gdbus call --session -d org.freedesktop.portal.Desktop -o /org/freedesktop/portal/desktop
    -m org.freedesktop.portal.Settings.ReadAll "['org.gnome.desktop.interface']")
  mkdir -p "$1/.config/glib-2.0/settings"
  printf '%s\n' "${@:2}" >"$1/.config/glib-2.0/settings/keyfile"
  "${around[@]}" /usr/libexec/xdg-desktop-portal-gtk >/dev/null 2>&1 &
  portals+=($!)
  # Whoever starts before it would not find it.
  wait_for 10 "the desktop's own portal" \
    gdbus wait --session --timeout 1 org.freedesktop.impl.portal.desktop.gtk || return 0
  "${around[@]}" /usr/libexec/xdg-desktop-portal >/dev/null 2>&1 &
  portals+=($!)
  wait_for 10 "the desktop's settings" "${settings[@]}" || true
}

end_portals() {
  for portal in "${portals[@]}"; do end_process "$portal" "a portal"; done
  portals=()
}

# home folder, then what is special: the environment (QT_SCALE_FACTOR=2), arguments (-reverse), what the program has been
# told (sidebar.hidden=true), and of the desktop its font (font="Sans 24"), its four colours (palette=amber), whether it
# asks for more contrast (contrast=true) or forbids motion (motion=false), a session that it brings back (session=ID), a
# file that takes long to read (slow=PATH), and whether files' modes count for root as for anybody else (refusals=true)
begin() {
  local home=$1 font=
  local environment=() arguments=() settings=(grouping.history=day) desktop=() around=()
  shift
  for word in "$@"; do
    case $word in
      font=*) font=${word#*=} ;;
      palette=*)
        environment+=(QT_QPA_PLATFORMTHEME=qt6ct)
        # shellcheck disable=SC2086 # four words
        write_palette "$home" ${word#*=}
        ;;
      contrast=*) desktop+=('[org/gnome/desktop/a11y/interface]' "high-contrast=${word#*=}") ;;
      motion=*) desktop+=('[org/gnome/desktop/interface]' "enable-animations=${word#*=}") ;;
      session=*) arguments+=(-session "${word#*=}") ;;
      refusals=*)
        [ "$(id -u)" -ne 0 ] || around+=(setpriv --inh-caps=-all "--bounding-set=-dac_override,-dac_read_search")
        ;;
      slow=*)
        around+=(strace -D -f -qq -o /dev/null -P "${word#*=}" -e inject=all:delay_enter=12000000)
        ;;
      [a-z]*) settings+=("$word") ;;
      -*) arguments+=("$word") ;;
      *) environment+=("$word") ;;
    esac
  done
  rm -rf "$home/.config/Roamlet"
  mkdir -p "$home/.config/Roamlet" "$home/.config/gtk-3.0"
  printf '%s\n' '[General]' "${settings[@]}" >"$home/.config/Roamlet/Roamlet.conf"
  # A caret that blinks never stands still.
  printf '[Settings]\ngtk-cursor-blink-time=1000000\n%s\n' "${font:+gtk-font-name=$font}" >"$home/.config/gtk-3.0/settings.ini"
  # The program starts no portal by itself.
  [ ${#desktop[@]} -eq 0 ] || start_portals "$home" "${desktop[@]}"
  env HOME="$home" QT_QPA_PLATFORMTHEME=gtk3 GTK_THEME="$gtk_theme" "${environment[@]}" "${around[@]}" "$program" \
    "${arguments[@]}" >/dev/null 2>&1 &
  shown=$!
}
end() {
  end_process "$shown" "the program"
  shown=
  end_portals
}

# The compositor is begun after all that is photographed on X11.
is_wayland() { [ -n "${WAYLAND_DISPLAY:-}" ]; }
active_title() {
  if is_wayland; then
    swaymsg -t get_tree | jq -r '.. | objects | select(.focused == true) | .name'
  else
    xdotool getactivewindow getwindowname
  fi
}
is_active() { [[ $(active_title) == "$1"* ]]; }
# beginning of the title of the window that has to get the keyboard
has_come() { wait_for 15 "the window \"$1\"" is_active "$1"; }
# The pictures that follow are taken all the same.
await() { has_come "$1" || true; }

# Until what the command shows has stopped changing.
settle() {
  local before='' now same=0
  for _ in $(seq 60); do
    # What cannot be looked at now may be in a moment.
    now=$("$@" 2>/dev/null | md5sum) || now=
    if [ -n "$now" ] && [ "$now" = "$before" ]; then same=$((same + 1)); else same=0; fi
    [ $same -lt 2 ] || return 0
    before=$now
    sleep 0.3
  done
  report "$picture: never stood still"
}

# name of the picture, then the beginning of the window's title, or nothing for the whole screen
photograph() {
  picture=$theme-$1
  last=$picture
  local take=(import -window root)
  local format=(-depth 8 rgb:-)
  if [ $# -gt 1 ]; then
    has_come "$2" || return 0
    is_wayland || take=(import -window "$(xdotool getactivewindow || echo root)")
  fi
  if is_wayland; then
    take=(grim)
    format=(-t ppm -)
  fi
  settle "${take[@]}" "${format[@]}"
  "${take[@]}" "$target/$picture.png" || report "$picture: could not be taken"
  picture=
}

# The pictures that follow are taken also where a gesture has failed.
drive() { xdotool "$@" >/dev/null || report "after ${last:-the start}: could not do \"$*\""; }
press() { drive key --clearmodifiers --delay 60 "$@"; }
write() { drive type --delay 30 "$1"; }
resize_to() { drive getactivewindow windowsize --sync "$1" "$2"; }
# words for xdotool that find a window; sets X, Y, WIDTH, HEIGHT and WINDOW
locate() {
  local found
  if ! found=$(xdotool "$@" getwindowgeometry --shell | sed -n 1,6p) || [[ $found != *HEIGHT=* ]]; then
    report "after ${last:-the start}: could not find \"$*\""
    return 1
  fi
  eval "$found"
}
# where in the active window
point_to() {
  local X Y WIDTH HEIGHT WINDOW
  locate getactivewindow || return 0
  # Moved twice: the first time it may only enter the window.
  drive mousemove --window "$WINDOW" "$1" "$2"
  drive mousemove_relative -- 2 1
}
# the same in hundredths of its width and height
point_at() {
  local X Y WIDTH HEIGHT WINDOW
  locate getactivewindow || return 0
  point_to $((WIDTH * $1 / 100)) $((HEIGHT * $2 / 100))
}
point_away() { drive mousemove 0 899; }
# from where to where in the active window; the button stays down
drag() {
  point_to "$1" "$2"
  drive mousedown 1
  for share in 1 2 3 4; do point_to $(($1 + ($3 - $1) * share / 4)) $(($2 + ($4 - $2) * share / 4)); done
}
drop() { drive mouseup 1; }
# Menus and tips are windows, too.
list_windows() { xdotool search --onlyvisible --class roamlet | sort; }
has_windows_beside() { [ -n "$(comm -13 <(echo "$1") <(list_windows))" ]; }
# what shall open a menu or a tip
pop_up() {
  local before
  before=$(list_windows) || before=
  "$@"
  wait_for 10 "a menu or a tip after \"$*\"" has_windows_beside "$before" || true
}
# The only icon stands in the middle of the panel.
open_tray_menu() {
  local X Y WIDTH HEIGHT WINDOW
  locate search --onlyvisible --class trayer || return 0
  drive mousemove $((X + WIDTH / 2)) $((Y + HEIGHT / 2)) click 3
}
# where in the active window
open_menu_at() {
  point_to "$1" "$2"
  drive click 3
}

photograph_usual_size() {
  begin "$work/home"
  photograph history 'Recent History'
  point_at 60 26
  photograph row 'Recent History'
  point_away
  # From the search field to the list.
  press ctrl+f Escape Down Down shift+Down
  photograph selection 'Recent History'
  pop_up press Menu
  photograph link-menu
  # The last entry shows this site only.
  press Escape Up Menu Up Return
  photograph only-site 'Recent History'
  press ctrl+f
  write clock
  photograph search-site 'Recent History'
  end

  begin "$work/home"
  await 'Recent History'
  press ctrl+f
  write clock
  photograph search 'Recent History'
  press ctrl+a
  write 'nothing like this'
  photograph nothing-found 'Recent History'
  press Escape Escape
  pop_up press F10
  photograph main-menu
  press Escape F10 Down Return
  photograph export 'Recent History'
  press Escape ctrl+comma
  photograph settings-general Settings
  press ctrl+Tab
  photograph settings-profiles Settings
  end

  begin "$work/home"
  await 'Recent History'
  pop_up open_tray_menu
  photograph tray-menu
  pop_up press Down Down Right
  photograph tray-recent
  press Escape Escape
  point_away
  end

  begin "$work/home"
  await 'Recent History'
  resize_to 820 480
  photograph narrow 'Recent History'
  end
  begin "$work/home" sidebar.hidden=true
  photograph without-sidebar 'Recent History'
  end
  begin "$work/home" grouping.history=site
  photograph by-site 'Recent History'
  end
  begin "$work/home" font='Sans 14'
  await 'Recent History'
  resize_to 820 480
  press F9
  photograph sidebar-over-list 'Recent History'
  end
  # At first the sidebar has the keyboard.
  begin "$work/home"
  await 'Recent History'
  press Down
  photograph most-visited 'Most Visited'
  press Down
  photograph bookmarks 'All Bookmarks'
  press ctrl+f
  write clock
  photograph bookmarks-search 'All Bookmarks'
  end
  begin "$work/empty"
  photograph empty 'Recent History'
  end

  begin "$work/home" -reverse
  photograph right-to-left 'Recent History'
  press F10 Down Return
  photograph right-to-left-export 'Recent History'
  press Escape ctrl+comma
  photograph right-to-left-settings Settings
  press ctrl+Tab
  photograph right-to-left-settings-profiles Settings
  end
}

# What seldom happens, or only for a moment.
photograph_states() {
  # The bar of this hour, at which the newest pages were visited.
  local hour
  hour=$(date -u +%-H)
  begin "$work/home"
  await 'Recent History'
  pop_up point_to $((696 + 95 * hour / 24)) 102
  photograph bar
  point_away
  pop_up open_menu_at 850 72
  photograph column-menu
  press Escape
  pop_up open_menu_at 100 193
  photograph sidebar-menu
  press Escape
  drag 100 317 110 150
  photograph sidebar-drag 'Recent History'
  drop
  point_away
  press ctrl+f Escape Down Down shift+Down ctrl+comma
  await Settings
  drive getactivewindow windowmove 700 560
  photograph inactive
  end

  begin "$work/home"
  await 'Recent History'
  press ctrl+comma
  await Settings
  press ctrl+Tab
  drag 60 136 70 200
  photograph settings-drag Settings
  drop
  end

  begin "$work/home"
  await 'Recent History'
  press F10 Down Return Return
  await 'Export Bookmarks'
  write /proc/Bookmarks
  press Return
  photograph export-failed
  end

  begin "$work/problem" sidebar.folded=chrome/Default
  photograph problem 'Recent History'
  end
  begin "$work/refused" refusals=true
  photograph refused 'Recent History'
  end
  begin "$work/home" motion=false "slow=$work/home/.config/google-chrome/Default/History"
  photograph loading 'Recent History'
  # It would read to the end of what it has begun.
  kill -KILL "$shown"
  wait "$shown" 2>/dev/null || true
  end

  begin "$work/home" session=1 session.windows=main session.pane=none
  photograph nothing-picked Roamlet
  end

  begin "$work/home" LANG=ar_EG.UTF-8
  photograph arabic-history 'السجل الحديث'
  press F10 Down Return
  photograph arabic-export 'السجل الحديث'
  press Escape ctrl+comma
  photograph arabic-settings 'الإعدادات'
  end
}

# What few desktops look like, and no colour can be taken for granted in.
photograph_palettes() {
  for theme in contrast amber; do
    local special=('palette=#ffffff #000000 #ffff00 #000000' contrast=true)
    [ $theme = contrast ] || special=('palette=#ffb000 #000000 #ffb000 #000000')
    begin "$work/home" "${special[@]}"
    await 'Recent History'
    press ctrl+f Escape Down Down shift+Down
    photograph selection 'Recent History'
    press ctrl+f
    write clock
    photograph search 'Recent History'
    press Escape Escape
    pop_up press F10
    photograph main-menu
    press Down Return
    photograph export 'Recent History'
    press Escape ctrl+comma
    photograph settings-general Settings
    press ctrl+Tab
    photograph settings-profiles Settings
    end
  done
}

# What would look coarse on finer screens, or too tight with larger letters.
photograph_other_sizes() {
  for scale in 1.25 1.6 2 2.5; do
    begin "$work/home" QT_SCALE_FACTOR=$scale
    photograph "scale-$scale" 'Recent History'
    end
  done
  for points in 8 24; do
    begin "$work/home" font="Sans $points"
    photograph "letters-$points" 'Recent History'
    press F10 Down Return
    photograph "letters-$points-export" 'Recent History'
    press Escape ctrl+comma
    photograph "letters-$points-settings" Settings
    press ctrl+Tab
    photograph "letters-$points-settings-profiles" Settings
    end
  done
  begin "$work/home"
  await 'Recent History'
  resize_to 2560 700
  photograph wide 'Recent History'
  end
}

# A compositor without a screen of its own.
begin_wayland() {
  local folder=$work/compositor
  mkdir -m 700 "$folder"
  cat >"$folder/config" <<END
output HEADLESS-1 resolution 1280x900
for_window [app_id=".*"] floating enable, border none
END
  # It refuses to be root's.
  local as_somebody=()
  if [ "$(id -u)" -eq 0 ]; then
    as_somebody=(setpriv --reuid=65534 --regid=65534 --clear-groups)
    chmod 711 "$work"
    chown -R 65534:65534 "$folder"
  fi
  export SWAYSOCK=$folder/control
  start "${as_somebody[@]}" env -u DISPLAY XDG_RUNTIME_DIR="$folder" WLR_BACKENDS=headless WLR_LIBINPUT_NO_DEVICES=1 \
    WLR_RENDERER=pixman sway --config "$folder/config"
  wait_for 20 "the compositor" swaymsg -t get_version
  WAYLAND_DISPLAY=$(find "$folder" -maxdepth 1 -name 'wayland-?')
  export WAYLAND_DISPLAY QT_QPA_PLATFORM=wayland
  # Without any keyboard, no window would be the active one.
  start wtype -s 3600000
}

# Each call brings a new keyboard, which the program has to notice first.
press_on_wayland() { wtype -s 500 "$@"; }
photograph_wayland() {
  begin "$work/home"
  photograph wayland-history 'Recent History'
  press_on_wayland -M ctrl -k comma -m ctrl
  photograph wayland-settings Settings
  press_on_wayland -k Escape
  await 'Recent History'
  press_on_wayland -k F10
  photograph wayland-menu
  press_on_wayland -k Down -s 100 -k Return
  photograph wayland-export 'Recent History'
  end
  swaymsg output HEADLESS-1 resolution 2560x1800 scale 2 >/dev/null || report "the compositor has only one scale"
  begin "$work/home"
  photograph wayland-scale-2 'Recent History'
  end
  swaymsg output HEADLESS-1 resolution 1280x900 scale 1 >/dev/null || true
}

# function that takes pictures; light and dark
in_both_themes() {
  theme=light gtk_theme=Adwaita "$1"
  theme=dark gtk_theme=Adwaita:dark "$1"
}

"$sample_home" --layout linux --safari -1 --profiles firefox=1 --chrome 2 --edge 1 --rows 400 \
  --newest "$(date -u +%Y-%m-%dT%H:%M:%SZ)" "$work/home" >/dev/null
begin_screen 1280x900
cp -a "$work/home" "$work/problem"
printf 'no database' >"$work/problem/.config/microsoft-edge/Default/History"
"$sample_home" --layout mac --safari 0 --chrome 1 --edge 1 --rows 100 \
  --newest "$(date -u +%Y-%m-%dT%H:%M:%SZ)" "$work/refused" >/dev/null
chmod 0 "$work/refused/Library/Safari/History.db"
in_both_themes photograph_usual_size
in_both_themes photograph_states
photograph_palettes
begin_screen 3000x2200
in_both_themes photograph_other_sizes
begin_wayland
in_both_themes photograph_wayland

echo "The pictures are in $target."

#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Each shell completes what roamlet takes, with the files where an installation puts them. Takes CMake, the build folder
# and the program.
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
status=0
tested=0

DESTDIR=$folder/staging "$1" --install "$2" >/dev/null
data=$folder/staging$(sed -n 's/^CMAKE_INSTALL_PREFIX:PATH=//p' "$2/CMakeCache.txt")/share
mkdir "$folder/bin" "$folder/home" "$folder/temporary"
ln -s "$3" "$folder/bin/roamlet"

# Profiles whose ids have a blank, letters of another script and the key of an installation in them.
profile() { # data folder, profiles
  local browser=$folder/home/.config/$1 cache=
  shift
  for name in "$@"; do
    mkdir -p "$browser/$name"
    cache+="${cache:+,}\"$name\":{\"name\":\"Name of $name\"}"
  done
  printf '{"profile":{"info_cache":{%s}}}' "$cache" >"$browser/Local State"
}
profile google-chrome Default 'Profile 1' 'Größe'
profile google-chrome-beta Default
profile microsoft-edge Default 'Off'
mkdir "$folder/home/.config/Roamlet"
printf '[General]\ndisabledProfiles=edge/Off\n' >"$folder/home/.config/Roamlet/Roamlet.conf"

in_home() {
  env -i HOME="$folder/home" XDG_CONFIG_HOME="$folder/home/.config" XDG_DATA_DIRS="$data:/usr/share" \
    TMPDIR="$folder/temporary" PATH="$folder/bin:$PATH" LC_ALL=C.UTF-8 TERM=dumb "$@"
}

# Every shell answers the same questions; each line of an answer is one completion.
switches='--bookmarks --export --help --json --limit --open --search --since --site --source --summary --top --until
--version --watch'
expect() { # shell, what is typed, what it completes to, a line each
  local said
  said=$(complete_in_"$1" "$2" | sort)
  [ "$said" = "$(sort <<<"$3")" ] && return
  printf '%s completes "%s" to:\n%s\nand not to:\n%s\n' "$1" "$2" "$said" "$3"
  status=1
}
expect_all() { # shell, how it quotes a blank
  tested=$((tested + 1))
  expect "$1" 'roamlet --' "$(tr ' ' '\n' <<<"$switches")"
  expect "$1" 'roamlet --json --se' --search
  expect "$1" 'roamlet --export ' $'html\nmarkdown\ncsv'
  expect "$1" 'roamlet --export m' markdown
  expect "$1" 'roamlet --since y' yesterday
  expect "$1" 'roamlet --until 1' 12h
  expect "$1" 'roamlet --source e' edge/Default
  expect "$1" 'roamlet --export html --source chrome/P' "chrome/Profile${2}1"
  expect "$1" 'roamlet --source chrome/G' 'chrome/Größe'
  expect "$1" 'roamlet --source nothing' ''
  expect "$1" 'roamlet --search --' ''
  expect "$1" 'roamlet --json --bookmarks garden --s' ''
  expect "$1" 'roamlet --limit ' ''
}

complete_in_bash() {
  in_home bash --norc -c '
    . /usr/share/bash-completion/bash_completion
    _completion_loader roamlet
    complete -p roamlet >/dev/null || exit
    COMP_LINE=$1 COMP_POINT=${#1} COMP_TYPE=9 COMP_KEY=9
    read -ra COMP_WORDS <<<"$COMP_LINE"
    [[ $COMP_LINE != *" " ]] || COMP_WORDS+=("")
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    _roamlet roamlet "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
    [ ${#COMPREPLY[@]} -eq 0 ] || printf "%s\n" "${COMPREPLY[@]}"' bash "$1"
}
# What becomes of a line when the tabulator is pressed on a terminal.
expect_typed_in_bash() { # line, result
  cat >"$folder/bashrc" <<'END'
. /usr/share/bash-completion/bash_completion
finish() { printf %s "$READLINE_LINE" >"$RESULT"; exit; }
bind -x '"\C-g": finish'
END
  : >"$folder/result"
  printf '%s\t\a' "$1" |
    in_home RESULT="$folder/result" timeout 60 script -qc "bash --rcfile '$folder/bashrc' -i" /dev/null >/dev/null
  [ "$(cat "$folder/result")" = "$2" ] && return
  printf 'bash makes of "%s" the line "%s" and not "%s"\n' "$1" "$(cat "$folder/result")" "$2"
  status=1
}
if command -v script >/dev/null && [ -r /usr/share/bash-completion/bash_completion ]; then
  expect_all bash '\ '
  expect_typed_in_bash 'roamlet --exp' 'roamlet --export '
  expect_typed_in_bash 'roamlet --source chrome/P' 'roamlet --source chrome/Profile\ 1 '
  expect_typed_in_bash 'roamlet --source chrome/Profile\ ' 'roamlet --source chrome/Profile\ 1 '
  expect_typed_in_bash 'roamlet --source "chrome/Profile ' 'roamlet --source "chrome/Profile 1" '
  expect_typed_in_bash 'roamlet --source chrome@b' 'roamlet --source chrome@beta/Default '
  expect_typed_in_bash 'roamlet --source "chrome@b' 'roamlet --source "chrome@beta/Default" '
else
  echo "bash-completion is not installed"
fi

# A shell on a terminal gets the line and a tab, and writes down what it is offered.
cat >"$folder/offers.zsh" <<'END'
PS1=
fpath=($COMPLETIONS $fpath)
autoload -Uz compinit
compinit -u -d $HOME/.zcompdump
compadd() {
  # With one of these, an array is filled and nothing is offered.
  if [[ -z ${(M)@:#-[OAD]} ]]; then
    local -a found
    builtin compadd -O found "$@"
    (( $#found )) && print -rl -- ${(q)found} >>$OFFERS
  fi
  builtin compadd "$@"
}
complete-and-end() { zle complete-word; print FINI''SHED; exit }
zle -N complete-and-end
bindkey '^I' complete-and-end
# Keys that come before there is somebody to read them may be lost.
zle-line-init() { print REA''DY }
zle -N zle-line-init
END
cat >"$folder/ask.zsh" <<'END'
zmodload zsh/zpty
zpty shell zsh -f -i
zpty -w shell "source ${(q)1}"
zpty -r -m shell said '*READY*'
zpty -w -n shell "$2"$'\t'
zpty -r -m shell said '*FINISHED*'
END
complete_in_zsh() {
  : >"$folder/offers"
  in_home COMPLETIONS="$data/zsh/$(ls "$data/zsh")" OFFERS="$folder/offers" \
    timeout 60 zsh -f "$folder/ask.zsh" "$folder/offers.zsh" "$1" || echo "zsh ends with $?"
  sort -u "$folder/offers"
}
if command -v zsh >/dev/null; then
  expect_all zsh '\ '
  expect zsh 'roamlet --source chrome@b' chrome@beta/Default
else
  echo "zsh is not installed"
fi

complete_in_fish() {
  in_home fish --no-config -c 'set -p fish_complete_path '"$data"'/fish/vendor_completions.d; complete -C "$argv"' -- "$1" | cut -f 1
}
if command -v fish >/dev/null; then
  expect_all fish ' '
  expect fish 'roamlet --source chrome@b' chrome@beta/Default
else
  echo "fish is not installed"
fi

left=$(find "$folder/temporary" -mindepth 1)
[ -z "$left" ] || { echo "private copies were left behind: $left"; status=1; }
[ $tested -gt 0 ] || exit 77
exit $status

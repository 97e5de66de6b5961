# SPDX-License-Identifier: MIT
# What follows roamlet on the command line of bash.

# The ids of the profiles that are read. A quotation mark in a text has a backslash before it, so that this is the
# field; an id with a backslash in it is left out.
_roamlet_sources() {
  command "$1" --summary --json 2>/dev/null | sed -n '/"enabled":true/s/.*"source":"\([^"\\]*\)".*/\1/p'
}

_roamlet() {
  local cur prev words cword word
  # An installation's key stands behind an at sign, which bash would take for the beginning of a word.
  _init_completion -n @= || return
  # Behind these, all is words to look for.
  for word in "${words[@]:1:cword-1}"; do
    [[ $word == --search || $word == --bookmarks ]] && return
  done
  case $prev in
    --export)
      mapfile -t COMPREPLY < <(compgen -W 'html markdown csv' -- "$cur")
      return
      ;;
    --source)
      # As typed, without the quoting of the blanks that profiles have in their names.
      local typed=${cur//\\/} quote=
      [[ $typed == [\"\']* ]] && quote=${typed:0:1} typed=${typed:1}
      while IFS= read -r word; do
        [[ $word == "$typed"* ]] || continue
        [[ $quote ]] || printf -v word %q "$word"
        # What stands before the last at sign, bash leaves alone.
        [[ $quote || $COMP_WORDBREAKS != *@* ]] || word=${word#"${cur%"${cur##*@}"}"}
        COMPREPLY+=("$word")
      done < <(_roamlet_sources "${words[0]}")
      return
      ;;
    --since | --until)
      mapfile -t COMPREPLY < <(compgen -W 'today yesterday 12h 7d 2w' -- "$cur")
      return
      ;;
    --site | --open | --limit)
      return
      ;;
  esac
  mapfile -t COMPREPLY < <(compgen -W '--summary --search --site --top --bookmarks --open --export --source --watch
    --json --limit --since --until --help --version' -- "$cur")
}

complete -F _roamlet roamlet

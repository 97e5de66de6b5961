#compdef roamlet
# SPDX-License-Identifier: MIT
# What follows roamlet on the command line of zsh.

# The ids of the profiles that are read. A quotation mark in a text has a backslash before it, so that this is the
# field; an id with a backslash in it is left out.
_roamlet_sources() {
  local -a ids
  ids=(${(f)"$(_call_program sources ${(q)words[1]} --summary --json 2>/dev/null |
    sed -n '/"enabled":true/s/.*"source":"\([^"\\]*\)".*/\1/p')"})
  compadd "$@" -a ids
}

_arguments \
  '--summary[print what every profile holds]' \
  '*--search[print the pages that hold all the words]:*:word: ' \
  '--site[print the pages of one site]:site: ' \
  '--top[print the most visited pages]' \
  '*--bookmarks[print the bookmarks that hold all the words]:*:word: ' \
  '--open[open a row in its browser and profile]:id of a row: ' \
  '--export[print the bookmarks of one profile]:format:(html markdown csv)' \
  '--source[the profile to export]:profile:_roamlet_sources' \
  '--watch[tell which profiles change]::seconds: ' \
  '--json[print rows for other programs]' \
  '--limit[print so many rows at most]:number: ' \
  '--since[only what was visited last from then on]:time:(today yesterday 12h 7d 2w)' \
  '--until[only what was visited last until then]:time:(today yesterday 12h 7d 2w)' \
  '(- *)'{-h,--help}'[print a short help text]' \
  '(- *)'{-v,--version}'[print the version]'

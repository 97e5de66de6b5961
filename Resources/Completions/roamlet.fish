# SPDX-License-Identifier: MIT
# What follows roamlet on the command line of fish.

# Whether all that follows is words to look for.
function __roamlet_takes_words
    set -l words (commandline -opc)
    contains -- --search $words; or contains -- --bookmarks $words
end

# The ids of the profiles that are read. A quotation mark in a text has a backslash before it, so that this is the
# field; an id with a backslash in it is left out.
function __roamlet_sources
    set -l words (commandline -opc)
    command $words[1] --summary --json 2>/dev/null |
        string replace -rf '.*"enabled":true.*"source":"([^"\\\\]*)".*' '$1'
end

complete -c roamlet -f
complete -c roamlet -n 'not __roamlet_takes_words' -l summary -d 'Print what every profile holds'
complete -c roamlet -n 'not __roamlet_takes_words' -l search -d 'Print the pages that hold all the words'
complete -c roamlet -n 'not __roamlet_takes_words' -l site -x -d 'Print the pages of one site'
complete -c roamlet -n 'not __roamlet_takes_words' -l top -d 'Print the most visited pages'
complete -c roamlet -n 'not __roamlet_takes_words' -l bookmarks -d 'Print the bookmarks that hold all the words'
complete -c roamlet -n 'not __roamlet_takes_words' -l open -x -d 'Open a row in its browser and profile'
complete -c roamlet -n 'not __roamlet_takes_words' -l export -x -a 'html markdown csv' -d 'Print the bookmarks of one profile'
complete -c roamlet -n 'not __roamlet_takes_words' -l source -x -a '(__roamlet_sources)' -d 'The profile to export'
complete -c roamlet -n 'not __roamlet_takes_words' -l watch -d 'Tell which profiles change'
complete -c roamlet -n 'not __roamlet_takes_words' -l json -d 'Print rows for other programs'
complete -c roamlet -n 'not __roamlet_takes_words' -l limit -x -d 'Print so many rows at most'
complete -c roamlet -n 'not __roamlet_takes_words' -l since -x -a 'today yesterday 12h 7d 2w' -d 'Only what was visited last from then on'
complete -c roamlet -n 'not __roamlet_takes_words' -l until -x -a 'today yesterday 12h 7d 2w' -d 'Only what was visited last until then'
complete -c roamlet -n 'not __roamlet_takes_words' -s h -l help -d 'Print a short help text'
complete -c roamlet -n 'not __roamlet_takes_words' -s v -l version -d 'Print the version'

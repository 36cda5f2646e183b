#!/usr/bin/env bash
# documentation_test.sh ZYNDLE: every command and option that the help lists is in the manual page,
# and the completion for bash offers what the program takes.
set -euo pipefail
root=$(readlink -f "$(dirname "${BASH_SOURCE[0]}")/../..")
# shellcheck source-path=SCRIPTDIR source=../../zyndle/completions/zyndle.bash
source "$root/zyndle/completions/zyndle.bash"
program=$1
manual=$(sed 's/\\-/-/g' "$root/docs/man/zyndle.1")
failures=0

complain() {
  printf '%s\n' "$*"
  failures=$((failures + 1))
}

check_manual() { # COMMAND...
  local name place
  for name in $(_zyndle_help "$@"); do
    [[ $name == -* ]] && place="$name" || place="^\.[BIR]+ (.*\")?$*${1+ }$name"
    grep --quiet --extended-regexp --word-regexp -- "$place" <<<"$manual" ||
      complain "not in the manual: $* $name"
    [[ $name == -* ]] || check_manual "$@" "$name"
  done
}

# What is typed, and what is offered for its last word, which is empty after a blank.
while IFS='|' read -r typed expected; do
  read -ra COMP_WORDS <<<"zyndle $typed"
  [[ $typed != *' ' ]] || COMP_WORDS+=('')
  COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
  _zyndle "$program" "${COMP_WORDS[-1]}" "${COMP_WORDS[-2]}"
  actual=$(printf '%s,' "${COMPREPLY[@]}")
  [[ ${actual%,} == "$expected" ]] || complain "$typed: offered $actual not $expected"
done <<'END'
pa|packs,pack,patterns
--|--help,--version,--lang
--lang de settings |list,get,set,delete
--lang d|de
reminders schedule --|--help,--month-offset,--category
today --category |beginner,advanced,jazz
chord C --tuning half|half step down
chord C --tuning new|new standard
chord C |
progressions --style M|Melancholic,Modal,Medieval
pack j|jazzChords
jam C --style Bos|Bossa Nova
jam C --bass Bos|Bossa Bass
jam C --drums n|none
patterns Bos|Bossa Nova,Bossa Bass,Bossa Nova Sticks
widget l|launcher
widget recent --family |extraLargePortrait
settings set left_handed |true,false
settings get t|todayChordCategory
END

check_manual
exit $((failures > 0))

#!/usr/bin/env bash
# documentation_test.sh ZYNDLE: every command and option that the help lists is in the manual page,
# and the completion for bash offers what the program takes.
set -euo pipefail
root=$(readlink -f "$(dirname "${BASH_SOURCE[0]}")/../..")
# shellcheck source-path=SCRIPTDIR source=../../zyndle/completions/zyndle.bash
source "$root/zyndle/completions/zyndle.bash"
program=$1
manual=$(sed 's/\\-/-/g' "$root/docs/man/zyndle.1")
general=$(sed --quiet '/^\.SH OPTIONS/,/^\.SH COMMANDS/p' <<<"$manual")
shared=$(sed --quiet '/^\.SS Shared options/,$s/^\.BI\? \(--[a-z-]*\).*/\1/p' <<<"$general")
failures=0

complain() {
  printf '%s\n' "$*"
  failures=$((failures + 1))
}

# What the manual says about a command, or nothing.
entry_of() { # COMMAND...
  awk -v place="^\\\\.[BIR]+ (.*\")?$*([ \",]|$)" '
    /^\.(TP|SS|SH)/ { inside = 0 }
    previous == ".TP" && $0 ~ place { inside = 1 }
    inside { print }
    { previous = $0 }' <<<"$manual"
}

names_option() { # TEXT OPTION
  grep --quiet --word-regexp -- "$2" <<<"$1"
}

# An entry names the command's own options, and the shared ones that the command lacks if it takes
# some of them; or those that it takes, where it says "Of the shared options".
check_entry() { # ENTRY OPTIONS COMMAND...
  local entry=$1 options=$2 option
  local -a taken=() lacking=()
  shift 2
  for option in $options; do
    names_option "$general$entry" "$option" || complain "the entry of $* lacks $option"
  done
  for option in $shared; do
    if names_option "$options" "$option"; then taken+=("$option"); else lacking+=("$option"); fi
  done
  ((${#taken[@]} > 0)) || return 0
  [[ $entry == *'Of the shared options'* ]] || taken=("${lacking[@]}")
  for option in "${taken[@]}"; do
    names_option "$entry" "$option" || complain "the entry of $* does not tell of $option"
  done
}

check_manual() { # COMMAND...
  local entry='' name names
  names=$(_zyndle_help "$@")
  if (($# > 0)); then
    entry=$(entry_of "$@")
    [[ $entry ]] || complain "not in the manual: $*"
  fi
  check_entry "$entry" "$(grep '^-' <<<"$names")" "$@"
  for name in $names; do
    [[ $name == -* ]] || check_manual "$@" "$name"
  done
}

# What is typed, and what is offered for its last word, which is empty after a blank.
while IFS='|' read -r typed expected; do
  # As readline does, which parts words at "=" too.
  read -ra COMP_WORDS <<<"zyndle ${typed//=/ = }"
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
--lang=d|de
--lang=de ch|chord
reminders schedule --|--help,--month-offset,--category
today --category |beginner,advanced,jazz
chord C --tuning half|half step down
chord C --tuning new|new standard
chord C --tuning=new|new standard
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

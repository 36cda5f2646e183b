# shellcheck shell=bash
# Completion of zyndle in bash: source this file, or install it as "zyndle" in
# /usr/share/bash-completion/completions. All that is offered is asked of the program, so that
# nothing has to be written down again here. Chords are typed faster than chosen.

# In English, so that its answers can be read.
_zyndle_ask() { # ARGUMENT...
  "$program" --lang en "$@" 2>&1
}

# The options of a command, and the commands below it.
_zyndle_help() { # COMMAND...
  _zyndle_ask "$@" --help | sed --quiet --regexp-extended \
    -e '/^Subcommands:/,/^$/s/^  ([a-z]+) .*/\1/p' \
    -e '/^Options:/,/^$/{s/^  (-[^ ]+) .*/\1/;s/,/\n/;/^-/p}'
}

# What might stand in place of a last word that is wrong.
_zyndle_choices() { # ARGUMENT...
  _zyndle_ask "$@" '?' | sed --quiet 's/.*\(is not one of\|there are\) //;T;s/, /\n/g;p'
}

_zyndle_tunings() {
  _zyndle_ask chord --help | sed --quiet '/ a common one:$/,/\.$/{/:$/!p}' |
    tr '\n' ' ' | sed 's/, */\n/g;s/\. *$/\n/'
}

# The names in sections of zyndle patterns: 1 ways to pick and strum, 2 bass lines, 3 grooves.
_zyndle_patterns() { # SECTIONS
  _zyndle_ask patterns | awk -v sections="$1" '/^[^ ]/ { ++section }
    /^ / && index(sections, section) { sub(/^ +/, ""); sub(/  +.*/, ""); print }'
}

# What may stand after a word; nothing where anything may.
_zyndle_values() { # PREVIOUS COMMAND...
  case ${2-}:$1 in
    *:--lang) _zyndle_choices --lang ;;
    *:--category) _zyndle_choices today --category ;;
    *:--tuning) _zyndle_tunings ;;
    pack:pack | widget:widget) _zyndle_choices "$1" ;;
    widget:--f*) _zyndle_choices widget "${3-chord}" "$1" ;;
    progressions:--style) _zyndle_choices progressions --style ;;
    patterns:patterns) _zyndle_patterns 123 ;;
    jam:--style) _zyndle_patterns 1 ;;
    jam:--bass) _zyndle_patterns 2 && echo none ;;
    jam:--drums) _zyndle_patterns 3 && echo none ;;
    settings:get | settings:set | settings:delete) _zyndle_choices settings get ;;
    settings:todayChordCategory | settings:left_handed) _zyndle_choices settings set "$1" ;;
    :* | recent:recent | collections:collections | reminders:reminders | settings:settings)
      _zyndle_help "${@:2}" | grep '^[^-]' ;;
  esac
}

_zyndle() { # PROGRAM TYPED PREVIOUS
  local program=$1 typed=$2 previous=$3 commands=() IFS=$'\n'
  local -i index
  [[ $previous != '=' ]] || previous=${COMP_WORDS[COMP_CWORD - 2]}
  for ((index = 1; index < COMP_CWORD; ++index)); do
    case ${COMP_WORDS[index]} in
      # Readline makes three words of --lang=de.
      --lang) [[ ${COMP_WORDS[++index]} != '=' ]] || ((++index)) ;;
      -*) break ;;
      *) commands+=("${COMP_WORDS[index]}") ;;
    esac
  done
  # Readline then quotes names with blanks, as it does for files.
  compopt -o filenames 2>/dev/null || true
  mapfile -t COMPREPLY < <(compgen -W "$(
    case $typed in
      -*) _zyndle_help "${commands[@]:0:2}" ;;
      *) _zyndle_values "$previous" "${commands[@]}" ;;
    esac
  )" -- "$typed")
}

complete -o default -F _zyndle zyndle

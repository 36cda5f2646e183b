# shellcheck shell=bash
# Completion of zyndle in bash: source this file, or install it as "zyndle" in
# /usr/share/bash-completion/completions. Commands and options are those that the program's help
# lists, so only values are written down here. Chords are typed faster than chosen.

# _zyndle_help PROGRAM COMMAND...: the options of a command and the commands below it.
_zyndle_help() {
  local program=$1
  shift
  "$program" --lang en "$@" --help 2>/dev/null |
    sed --quiet --regexp-extended \
      -e '/^Subcommands:/,/^$/s/^  ([a-z]+) .*/\1/p' \
      -e '/^Options:/,/^$/{s/^  (-[^ ]+) .*/\1/;s/,/\n/;/^-/p}'
}

# _zyndle_patterns PROGRAM SECTION: the names in a section of zyndle patterns: 1 ways to pick and
# strum, 2 bass lines, 3 grooves; of all sections without a number.
_zyndle_patterns() {
  "$1" --lang en patterns 2>/dev/null |
    awk -v wanted="${2-}" '/^[^ ]/ { ++section }
      /^ / && (!wanted || section == wanted) { sub(/^ +/, ""); sub(/  +.*/, ""); print }'
}

# _zyndle_values PROGRAM PREVIOUS COMMAND WORD...: what may stand after the word PREVIOUS of a
# command, one a line; nothing where anything may.
_zyndle_values() {
  local program=$1 previous=$2 command=${3-}
  shift 3
  case $command:$previous in
    *:--lang) printf '%s\n' en de es fr ja ;;
    *:--category | settings:todayChordCategory) printf '%s\n' beginner advanced jazz ;;
    settings:left_handed) printf '%s\n' true false ;;
    settings:get | settings:set | settings:delete)
      printf '%s\n' todayChordCategory left_handed recentlyViewedChords chordCollections ;;
    *:--family)
      printf '%s\n' small medium large extraLarge extraLargePortrait accessoryCircular \
        accessoryRectangular accessoryInline ;;
    *:--format) printf '%s\n' svg png pdf json ;;
    *:--tuning)
      printf '%s\n' standard 'half step down' 'full step down' 'drop D' 'double drop D' 'drop C#' \
        'drop C' DADGAD 'open A' 'open C' 'open D' 'open D minor' 'open E' 'open G' 'all fourths' \
        'new standard' ;;
    progressions:--style)
      printf '%s\n' Folk Blues Pop Rock Jazz Classical Dramatic Emotional Ballad Melancholic Modal \
        Medieval Traditional Romantic Cinematic ;;
    jam:--style) _zyndle_patterns "$program" 1 ;;
    jam:--bass) _zyndle_patterns "$program" 2 && echo none ;;
    jam:--drums) _zyndle_patterns "$program" 3 && echo none ;;
    pack:pack) "$program" packs 2>/dev/null | cut --delimiter=' ' --fields=1 ;;
    patterns:patterns) _zyndle_patterns "$program" ;;
    widget:widget) printf '%s\n' chord launcher recent collections ;;
  esac
}

_zyndle() {
  local typed=$2 previous=$3 word commands=() IFS=$'\n'
  local -i index
  for ((index = 1; index < COMP_CWORD; ++index)); do
    word=${COMP_WORDS[index]}
    if [[ $word == --lang ]]; then
      ((++index))
    elif [[ $word == -* ]]; then
      break
    else
      commands+=("$word")
    fi
  done
  COMPREPLY=()
  # Readline puts quotes around names with blanks, as it does for files.
  compopt -o filenames 2>/dev/null
  mapfile -t COMPREPLY < <(compgen -W "$(
    if [[ $typed == -* ]]; then
      _zyndle_help "$1" "${commands[@]:0:2}"
    else
      _zyndle_values "$1" "$previous" "${commands[0]-}"
      [[ $previous == -* ]] || ((${#commands[@]} > 1)) ||
        _zyndle_help "$1" "${commands[@]}" | grep '^[^-]'
    fi
  )" -- "$typed")
}

complete -o default -F _zyndle zyndle

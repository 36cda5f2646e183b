#!/usr/bin/env bash
# Runs zyndle.sh in a small tree of its own, where stand-ins take the places of dpkg, apt, sudo,
# cmake and the program. They note down how they were called, and read all of the standard input
# they are given: what is meant for zyndle must not get to them.
# shellcheck disable=SC2016,SC2119,SC2120  # what the rows evaluate stays unexpanded until then
set -euo pipefail
project=$(readlink -f "$(dirname "${BASH_SOURCE[0]}")/../..")
world=$(mktemp --directory)
trap 'rm -rf "$world"' EXIT
export world
failures=0

write_stand_in() { # NAME, its text from standard input
  { printf '#!/usr/bin/env bash\necho "%s $*" >>"$world/calls"\n' "$1" && cat; } >"$world/bin/$1"
  chmod +x "$world/bin/$1"
}

write_stand_ins() {
  local tool
  mkdir "$world/bin"
  # Nothing else is found, so that a sudo of this machine is not.
  for tool in bash cat dirname env find flock grep mkdir mv readlink rmdir sed sleep touch chmod; do
    ln -s "$(command -v "$tool")" "$world/bin/$tool"
  done
  write_stand_in id <<<'cat "$world/user"'
  write_stand_in dpkg-query <<<'cat "$world/packages"; exit 1'
  write_stand_in apt-get <<<'cat; [[ ! -e $world/offline ]] || { echo "E: no network"; exit 100; }'
  write_stand_in ldd <<<'echo "  libfmt.so.9 => $world/tree/libfmt.so.9 (0x7f01)"'
  write_stand_in cmake <<'END'
cat
if [[ $1 != --build ]]; then
  mkdir -p "$world/tree/build/release/zyndle"
  echo "CMAKE_HOME_DIRECTORY:INTERNAL=$world/tree" >"$world/tree/build/release/CMakeCache.txt"
  exit
fi
mkdir "$world/building" || { echo "two builds at once"; exit 1; }
source "$world/during-build"
rmdir "$world/building"
cd "$world/tree/build/release/zyndle"
printf '%s\n' '#!/usr/bin/env bash' 'echo "ran in ${PWD#$world} with:$(printf "<%s>" "$@")"; cat; exit 3' >zyndle
chmod +x zyndle
END
}

# A fresh machine: root, nothing installed but two packages, one of which was removed since.
fresh() {
  rm -rf "$world/tree" "$world/offline" "$world/bin/sudo" "$world/building"
  mkdir -p "$world/tree/tools" "$world/elsewhere"
  cp "$project/zyndle.sh" "$world/tree"
  cp "$project/tools/set_up.sh" "$world/tree/tools"
  (cd "$world/tree" && mkdir cmake Tonelake TodayChordExtension Desktop zyndle tests &&
    touch CMakeLists.txt CMakePresets.json Tonelake/{note,old}.cpp libfmt.so.9)
  find "$world/tree" -exec touch --date '1 hour ago' {} +
  echo 0 >"$world/user"
  echo '<ninja-build installed><g++ config-files>' >"$world/packages"
  for log in calls during-build; do : >"$world/$log"; done
}

zyndle() { PATH=$world/bin "$world/tree/zyndle.sh" "$@"; }

# The same machine after a first call, a minute ago.
built() {
  fresh
  zyndle >/dev/null 2>&1 </dev/null || true
  touch --date '1 minute ago' "$world/tree/build/release/up-to-date"
  : >"$world/calls"
}

# row NAME PREPARATION CALL STATUS STDOUT STDERR CALLS: the last three are patterns, and CALLS is
# matched with the calls joined by ";". The standard input of every call is "typed".
row() {
  local status=0 out err calls
  eval "$2"
  out=$(cd "$world/elsewhere" && eval "$3" 2>"$world/err" <<<typed) || status=$?
  err=$(<"$world/err")
  calls=$(grep --extended-regexp --invert-match '^(id|ldd)' "$world/calls" | tr '\n' ';') || true
  # shellcheck disable=SC2053  # patterns on purpose
  if [[ $status != "$4" || $out != $5 || $err != $6 || $calls != $7 ]]; then
    printf 'FAILED: %s\n  status %s\n  stdout %s\n  stderr %s\n  calls  %s\n' \
      "$1" "$status" "$out" "$err" "$calls"
    failures=$((failures + 1))
  fi
}

ran=$'ran in /elsewhere with:<today><--svg><a b.svg>\ntyped'
call='zyndle today --svg "a b.svg"'
all='dpkg-query *;apt-get update;apt-get *install *;cmake *;cmake --build *'
build='dpkg-query *;cmake *;cmake --build * --target zyndle *;'
installed='(source "$world/tree/tools/set_up.sh"
  printf "<%s installed>" "${zyndle_packages[@]}") >"$world/packages"'
compile_error='echo "note.cpp:3: error"; rmdir "$world/building"; exit 1'
write_stand_ins

row 'a fresh machine' fresh "$call" 3 "$ran" '*installing with apt-get: g++ cmake gettext lib*' "$all*"
row 'only what is missing is installed' 'fresh; '"$installed" "$call" 3 "$ran" '*' "$build"
row 'nothing to do' built "$call" 3 "$ran" '' ''
row 'nothing to do while another builds' built \
  'timeout 20 flock "$world/tree/build/.lock" env PATH="$world/bin" "$world/tree/zyndle.sh"' \
  3 'ran in *' '' ''
row 'through a link' 'built; ln -sf "$world/tree/zyndle.sh" "$world/link"' \
  'PATH=$world/bin "$world/link" today --svg "a b.svg"' 3 "$ran" '' ''
row 'a source changed' 'built; '"$installed"'; touch "$world/tree/Tonelake/note.cpp"' \
  "$call" 3 "$ran" '' "$build"
row 'a source was removed' 'built; '"$installed"'; rm "$world/tree/Tonelake/old.cpp"' \
  "$call" 3 "$ran" '' "$build"
row 'a library is gone' 'built; '"$installed"'; rm "$world/tree/libfmt.so.9"' \
  "$call" 3 "$ran" '' "$build"
row 'a test or a picture is no source' 'built; touch "$world/tree/tests" "$world/tree/today.svg"' \
  "$call" 3 "$ran" '' ''
row 'saved during the build' \
  'fresh; echo "sleep 0.1; touch $world/tree/Tonelake/note.cpp; sleep 0.1" >"$world/during-build"' \
  'zyndle >/dev/null || : >"$world/calls"; '"$installed; $call" 3 $'ran in *' '*' "$build"
row 'through sudo' 'fresh; echo 1000 >"$world/user"; write_stand_in sudo <<<"\"\$@\""' \
  "$call" 3 "$ran" '*sudo apt-get: g++*' '*sudo env DEBIAN_FRONTEND=noninteractive apt-get *'
row 'neither root nor sudo' 'fresh; echo 1000 >"$world/user"' "$call" 1 '' \
  '*neither root nor sudo*apt-get install*g++ cmake*' 'dpkg-query *;'
row 'a user with everything installed' 'fresh; echo 1000 >"$world/user"; '"$installed" \
  "$call" 3 "$ran" '*' "$build"
row 'no network' 'fresh; touch "$world/offline"' "$call" 1 '' '*E: no network*failed*' '*install *;'
row 'a compile error, twice' "fresh; echo '$compile_error' >\"\$world/during-build\"" \
  "zyndle >/dev/null 2>&1 || : >\"\$world/calls\"; $call" 1 '' \
  '*note.cpp:3: error*building release failed*' "$all*"
row 'a compile error after a good build' "built; echo '$compile_error' >\"\$world/during-build\"
  touch \"\$world/tree/Tonelake/note.cpp\"" "$call" 1 '' '*note.cpp:3: error*' "$all*"
row 'moved after it was built' 'built; '"$installed"'
  echo CMAKE_HOME_DIRECTORY:INTERNAL=/old >"$world/tree/build/release/CMakeCache.txt"
  touch "$world/tree/CMakeLists.txt"' "$call" 3 "$ran" '' 'dpkg-query *;cmake --fresh *'
row 'two at once build once' 'fresh; '"$installed"'
  echo "sleep 0.3; mkdir $world/tree/once || exit 1" >"$world/during-build"' \
  'zyndle & zyndle || true; wait $!' 3 'ran in *ran in *' '*waiting for another build*' "$build"
((failures == 0))

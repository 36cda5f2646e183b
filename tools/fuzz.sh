#!/usr/bin/env bash
# tools/fuzz.sh [SECONDS] [NAME...]: runs the fuzzers of fuzz/, or the named ones, for SECONDS each
# (10 without a number), as many at once as there are processors. Searches go on from where the
# last run ended. What is found is kept in build/asan/findings, and is examined again by
# build/asan/fuzz/NAME_fuzzer FILE.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR source=set_up.sh
source "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/set_up.sh"

seconds=10
if [[ ${1:-} =~ ^[1-9][0-9]*$ ]]; then
  seconds=$1
  shift
fi
names=("$@")
if ((${#names[@]} == 0)); then
  mapfile -t names < <(cd "$root/fuzz" && printf '%s\n' *_fuzzer.cpp | sed 's/_fuzzer\.cpp$//')
fi
for name in "${names[@]}"; do
  [[ -f $root/fuzz/${name}_fuzzer.cpp ]] || fail "there is no fuzzer named '$name' in fuzz/"
done

prepare asan "${names[@]/%/_fuzzer}"

# run_fuzzer SECONDS NAME: one search and one line about it. Inputs that take long are findings of
# the fuzzers' own; the timeout is for those that never end.
run_fuzzer() {
  local seconds=$1 name=$2 folder=$root/build/asan
  local program=$folder/fuzz/${name}_fuzzer corpus=$folder/corpus/$name seeds=$folder/seeds/$name
  local log=$folder/$name.log
  mkdir -p "$corpus" "$seeds" "$folder/findings"
  "$program" --seeds="$seeds" || return 1
  if ! "$program" -max_total_time="$seconds" -timeout=120 -max_len=4096 -print_final_stats=1 \
    -dict="$root/fuzz/words.dict" -artifact_prefix="$folder/findings/$name-" \
    "$corpus" "$seeds" 2>"$log"; then
    grep --extended-regexp --after-context=12 \
      '^(Programming error|==[0-9]+== ?ERROR|ALARM|terminate)|runtime error' "$log" >&2 || true
    say "$name: FOUND SOMETHING, see $log; $(grep --only-matching 'Test unit written to .*' "$log")"
    return 1
  fi
  say "$name: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") executions," \
    "$(sed -n 's/.* cov: \([0-9]*\) .*/\1/p' "$log" | tail -n 1) places of the code covered," \
    "$(find "$corpus" -type f | wc -l) inputs kept"
}
export -f run_fuzzer say
export root
printf '%s\n' "${names[@]}" |
  xargs --max-procs "$(nproc)" --replace bash -c 'run_fuzzer "$@"' fuzz.sh "$seconds" '{}' ||
  fail "there are findings, see above"

# shellcheck shell=bash
# Sourced by zyndle.sh, test.sh and the checks: brings a Debian machine to where it can build, and
# builds one preset. Everything here talks on standard error, because standard output belongs to
# the command that runs afterwards; and it works on the folder it lies in, from anywhere.

root=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")

# The one list of Debian packages. A library that a target links against is added here.
# shellcheck disable=SC2034  # used by the scripts that source this file
{
  zyndle_packages=(
    g++ cmake gettext ninja-build
    libcairo2-dev libcli11-dev libfmt-dev libfontconfig-dev libfreetype-dev
    libhowardhinnant-date-dev libical-dev libpugixml-dev libre2-dev libsdbus-c++-dev libsmf-dev
    libsqlite3-dev nlohmann-json3-dev pkg-config tzdata zlib1g-dev)
  test_packages=(
    chromium clang-format dbus libgmock-dev libgtest-dev poppler-utils
    python3 python3-dbusmock python3-icalendar python3-mido)
  coverage_packages=(gcovr)
  package_packages=(dpkg-dev file gzip lintian)
  docs_packages=(doxygen)
  check_packages=(clang-tidy shellcheck)
  clang_packages=(clang libclang-rt-14-dev llvm)
}

say() { printf '%s: %s\n' "${0##*/}" "$*" >&2; }

fail() {
  say "$@"
  exit 1
}

# quietly LOG COMMAND...: what the command says is kept in LOG and shown only when it fails. It
# reads nothing, so that input meant for zyndle is still there afterwards.
quietly() {
  local log=$1
  shift
  "$@" >"$log" 2>&1 </dev/null && return
  cat "$log" >&2
  return 1
}

# Prints those of the named packages that are not installed. One that was removed but left its
# configuration behind is known to dpkg and yet missing, hence the look at its status.
missing_packages() {
  local package installed
  installed=$(dpkg-query --show --showformat '<${Package} ${db:Status-Status}>' "$@" 2>/dev/null) ||
    true
  for package; do
    [[ $installed == *"<$package installed>"* ]] || printf '%s ' "$package"
  done
}

# install_packages PACKAGE...: installs what is missing, as root or through sudo.
install_packages() {
  local missing as_root=()
  if ! command -v dpkg-query >/dev/null; then
    say "this is not Debian; building with the libraries at hand"
    return
  fi
  read -ra missing <<<"$(missing_packages "$@")"
  ((${#missing[@]})) || return 0
  if (($(id -u) != 0)); then
    command -v sudo >/dev/null || fail "packages are missing, and neither root nor sudo is at hand" \
      "to install them. As root, run: apt-get update &&" \
      "apt-get install --no-install-recommends ${missing[*]}"
    as_root=(sudo)
  fi
  say "installing with ${as_root[*]:+${as_root[*]} }apt-get: ${missing[*]}"
  as_root+=(env DEBIAN_FRONTEND=noninteractive)
  # A broken source of some other vendor fails the update; our packages may still be reached.
  quietly "$root/build/apt-update.log" "${as_root[@]}" apt-get update ||
    say "the package lists could not be brought up to date; trying with those at hand"
  quietly "$root/build/apt-install.log" "${as_root[@]}" apt-get -o DPkg::Lock::Timeout=600 \
    install --yes --no-install-recommends "${missing[@]}" || fail "installing failed, see above"
}

# Takes the build folder for this process and its children until it ends: two calls at once must
# not build, or install, over each other. Call it in a subshell, so that the program run
# afterwards does not keep the lock.
lock_build_folder() {
  mkdir -p "$root/build" 2>/dev/null || true
  [[ -w $root/build ]] ||
    fail "$root/build cannot be written, and something there has to be built"
  exec {build_lock}>"$root/build/.lock"
  flock --nonblock "$build_lock" && return
  say "waiting for another build of this folder to end"
  flock "$build_lock"
}

# build PRESET [TARGET...]: configures and builds. The compiler's complaints are shown, its
# progress only to a person.
build() {
  local preset=$1 folder=$root/build/$1 fresh=() ninja=(--quiet)
  shift
  # A tree that was moved or copied after it was built takes its old path along in the cache.
  if [[ -f $folder/CMakeCache.txt ]] &&
    ! grep --quiet --fixed-strings --line-regexp "CMAKE_HOME_DIRECTORY:INTERNAL=$root" \
      "$folder/CMakeCache.txt"; then
    fresh=(--fresh)
  fi
  quietly "$root/build/configure-$preset.log" cmake "${fresh[@]}" -S "$root" --preset "$preset" ||
    fail "configuring $preset failed, see above"
  [[ ! -t 2 ]] || ninja=()
  cmake --build "$folder" --target "${@:-all}" -- "${ninja[@]}" >&2 </dev/null ||
    fail "building $preset failed, see above"
}

# install_alone PACKAGE...: installs what is missing while nobody else builds in this folder.
install_alone() (
  lock_build_folder
  install_packages "$@"
)

# prepare PRESET [TARGET...]: installs what a preset with tests takes, and builds it.
prepare() (
  lock_build_folder
  packages=("${zyndle_packages[@]}" "${test_packages[@]}")
  case $1 in
    asan | tsan) packages+=("${clang_packages[@]}") ;;
    coverage) packages+=("${coverage_packages[@]}") ;;
  esac
  install_packages "${packages[@]}"
  say "building $1"
  build "$@"
)

# test_preset PRESET [CTEST-ARGUMENT...]: builds the tests and runs them.
test_preset() {
  local preset=$1
  shift
  prepare "$preset"
  ctest --test-dir "$root/build/$preset" --parallel "$(nproc)" --output-on-failure \
    --no-tests=error "$@"
}

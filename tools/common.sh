# Functions shared by the scripts: messages, the number of jobs, configuring and building. Sourced
# by ./run, ./test and the scripts in tools/; it must also work with the old bash of a Mac.
# shellcheck shell=bash

project=$(CDPATH='' cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd -P)

say() { printf '%s\n' "$*"; }

# Each argument is one line on the error stream; ends the script.
fail() {
  printf '%s\n' "$@" >&2
  exit 1
}

# As many jobs as there are processors, but one per 1.2 GB of free memory: a compiler under the
# sanitizers takes about that much.
job_count() {
  local processors memory
  if [[ $(uname -s) == Darwin ]]; then
    sysctl -n hw.ncpu
    return
  fi
  processors=$(nproc)
  memory=$(awk '/^MemAvailable:/ { print int($2 / 1200000) }' /proc/meminfo)
  ((memory >= 1)) || memory=1
  say $((processors < memory ? processors : memory))
}

# configure PRESET [OPTION...]: into build/PRESET. Recreates a build directory that was configured
# when the project was elsewhere, because CMake refuses it.
configure() {
  local preset=$1 cache="$project/build/$1/CMakeCache.txt" log="$project/build/$1-configure.log"
  if [[ -f $cache ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$project" "$cache"; then
    rm -rf "$project/build/$preset"
  fi
  mkdir -p "$project/build"
  if ! (cd "$project" && cmake --preset "$@") >"$log" 2>&1; then
    cat "$log" >&2
    fail "The preset $preset could not be configured."
  fi
}

# build PRESET [TARGET...]: with progress on a terminal, and only with the warnings in a log.
build() {
  local preset=$1 started=$SECONDS
  shift
  say "Building $preset ..."
  local -a command=(cmake --build "$project/build/$preset" -j "$(job_count)")
  (($#)) && command+=(--target "$@")
  [[ -t 1 ]] || command+=(-- --quiet)
  "${command[@]}" || fail "$preset does not build."
  say "Built $preset in $((SECONDS - started)) s."
}

# Returns what sudo has built to the project's owner, whose next build would otherwise fail.
return_build_to_owner() {
  if [[ $EUID == 0 && -n ${SUDO_UID:-} && -d $project/build && ! -O $project ]]; then
    chown -R "$SUDO_UID:${SUDO_GID:-$SUDO_UID}" "$project/build"
  fi
}

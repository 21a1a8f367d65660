# Shared by the project's commands: packages, and long steps that say in one line what they do.
# Sourced from the project's root folder.

say() { printf '%s\n' "$*"; }

fail() {
  printf '%s: %s\n' "$(basename -- "$0")" "$*" >&2
  exit 1
}

# need_packages PACKAGE...: installs the Debian packages that are missing.
need_packages() {
  local missing=() package as_root=()
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  if [[ ${#missing[@]} -eq 0 ]]; then return; fi
  command -v apt-get >/dev/null || fail "needs these packages, and there is no apt-get to install them: ${missing[*]}"
  if [[ $(id -u) -ne 0 ]]; then
    command -v sudo >/dev/null || fail "needs these packages; install them as root: apt-get install ${missing[*]}"
    as_root=(sudo)
  fi
  logged packages "Installing ${#missing[@]} missing packages" \
    install_packages "${missing[@]}" || fail "cannot install: ${missing[*]}"
}

install_packages() {
  "${as_root[@]}" apt-get update -q &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "$@"
}

# logged NAME TEXT COMMAND...: says the text, runs the command with its output in a log, and shows the log's end when it
# fails.
logged() {
  local name=$1 text=$2 log start
  shift 2
  mkdir -p build/logs
  log=build/logs/$name.log
  start=$SECONDS
  printf '%s ... ' "$text"
  if "$@" >"$log" 2>&1 </dev/null; then
    printf 'done (%d s)\n' $((SECONDS - start))
    return 0
  fi
  printf 'FAILED (%d s). The end of %s:\n' $((SECONDS - start)) "$log"
  tail -n 40 "$log"
  return 1
}

readonly build_packages=(cmake ninja-build g++ ccache qt6-base-dev libgl-dev fonts-dejavu-core)

configure_and_build() {
  local preset=$1
  shift
  cmake --preset "$preset" && cmake --build --preset "$preset" "$@"
}

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
  wait_for_package_manager
  logged packages "Installing ${#missing[@]} missing packages" \
    install_packages "${missing[@]}" || fail "cannot install: ${missing[*]}"
}

# How long another program may keep the package manager to itself.
readonly package_manager_patience=600

# The package manager's locks are records of the kernel, by the number of the locked file.
package_manager_is_busy() {
  local file
  for file in /var/lib/dpkg/lock-frontend /var/lib/dpkg/lock /var/lib/apt/lists/lock; do
    if [[ -e $file ]] && grep -q "POSIX .* WRITE .*:$(stat -c %i "$file") " /proc/locks; then return 0; fi
  done
  return 1
}

wait_for_package_manager() {
  local end=$((SECONDS + package_manager_patience))
  package_manager_is_busy || return 0
  say "Another program is installing packages. Waiting for it, at most $((package_manager_patience / 60)) minutes."
  while package_manager_is_busy && [[ $SECONDS -lt $end ]]; do sleep 1; done
}

install_packages() {
  "${as_root[@]}" apt-get update -q &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends \
      -o DPkg::Lock::Timeout="$package_manager_patience" "$@"
}

# The processor time of a process and of all that it has waited for, in these parts of a second.
readonly ticks=$(getconf CLK_TCK)

# processor_seconds: sets `work` to what all commands so far have taken. Programs that go on by themselves, such as
# Wine's servers, are not in it.
processor_seconds() {
  local stat
  read -r -a stat <"/proc/$$/stat"
  work=$(((stat[13] + stat[14] + stat[15] + stat[16]) / ticks))
}

# start_step TEXT and end_step TEXT: one line for a step, with what it has taken.
start_step() {
  printf '%s ... ' "$1"
  processor_seconds
  step_work=$work step_start=$SECONDS
}

end_step() {
  processor_seconds
  printf '%s (%d s, %d s of processor time)\n' "$1" $((SECONDS - step_start)) $((work - step_work))
}

# logged NAME TEXT COMMAND...: says the text, runs the command with its output in a log, and shows the log's end when it
# fails.
logged() {
  local name=$1 text=$2 log
  shift 2
  mkdir -p build/logs
  log=build/logs/$name.log
  start_step "$text"
  if "$@" >"$log" 2>&1 </dev/null; then
    end_step 'done'
    return 0
  fi
  end_step 'FAILED'
  printf 'The end of %s:\n' "$log"
  tail -n 40 "$log"
  return 1
}

readonly build_packages=(cmake ninja-build g++ ccache qt6-base-dev libgl-dev fonts-dejavu-core)

configure_and_build() {
  local preset=$1
  shift
  cmake --preset "$preset" && cmake --build --preset "$preset" "$@"
}

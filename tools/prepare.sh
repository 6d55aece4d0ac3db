# Sourced by ./run, ./test, ./fuzz, .ci/run and .ci/otherLibrary: gets what is missing, configures and builds. Expects $root.
#
# On Debian and its relatives packages come by apt-get. Root's call installs them; anybody else is told the line that
# does, since a build has no business asking for a password. Anywhere else the packages are listed.

packages="g++ cmake ninja-build qt6-base-dev qt6-svg-dev qt6-multimedia-dev fonts-noto-cjk libgtest-dev"

# missing_of PACKAGE...: prints those that are not installed, a blank before each.
missing_of() {
  for package; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || printf ' %s' "$package"
  done
}

# install_missing PACKAGE...: returns when all are there.
install_missing() {
  if ! command -v apt-get >/dev/null 2>&1 || ! command -v dpkg-query >/dev/null 2>&1; then
    # Another system: its own packages may well be there under other names.
    command -v cmake >/dev/null 2>&1 && command -v ninja >/dev/null 2>&1 && return 0
    echo "This system has no apt-get. Install what these Debian packages hold, then call again:" >&2
    echo "  $*" >&2
    exit 1
  fi
  missing=$(missing_of "$@")
  [ -z "$missing" ] && return 0
  install="apt-get install --no-install-recommends$missing"
  if [ "$(id -u)" -ne 0 ]; then
    echo "Debian packages are missing. This line installs them; then call again:" >&2
    if command -v sudo >/dev/null 2>&1; then echo "  sudo $install"; else echo "  su -c '$install'"; fi >&2
    exit 1
  fi
  echo "Installing:$missing"
  log=$(mktemp)
  if ! { apt-get update && DEBIAN_FRONTEND=noninteractive $install -y; } >"$log" 2>&1; then
    tail -n 20 "$log" >&2
    echo "The packages could not be installed; the whole output is in $log." >&2
    exit 1
  fi
  rm -f "$log"
}

# prepare TARGET...: builds the targets in build/. ZELVS_PRESET names another preset of that folder than release.
prepare() {
  install_missing $packages
  [ -d "$root/build/zelvs" ] || echo "Building ZELVS, which takes a minute or two."
  if [ -n "${ZELVS_PRESET:-}" ] || [ ! -f "$root/build/build.ninja" ]; then
    cmake -S "$root" --preset "${ZELVS_PRESET:-release}" >"$root/.configure.log" 2>&1 || {
      cat "$root/.configure.log"
      exit 1
    }
    rm -f "$root/.configure.log"
  fi
  # A build that goes well is no news; one that fails is shown whole.
  built=$(mktemp)
  if cmake --build "$root/build" --target "$@" >"$built" 2>&1; then
    rm -f "$built"
  else
    cat "$built"
    rm -f "$built"
    exit 1
  fi
}

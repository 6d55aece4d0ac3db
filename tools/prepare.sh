# Sourced by ./run and ./test: installs what is missing, configures and builds. Expects $root.
#
# On Debian and its relatives packages come by apt-get, as root or through sudo; anywhere else it lists what is
# needed and stops.

packages="g++ cmake ninja-build qt6-base-dev qt6-svg-dev qt6-multimedia-dev fonts-noto-cjk libgtest-dev"

missing_packages() {
  for package in $packages; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || printf ' %s' "$package"
  done
}

install_missing() {
  if ! command -v apt-get >/dev/null 2>&1 || ! command -v dpkg-query >/dev/null 2>&1; then
    # Another system: its own packages may well be there under other names.
    command -v cmake >/dev/null 2>&1 && command -v ninja >/dev/null 2>&1 && return 0
    echo "This system has no apt-get. Install what these Debian packages hold, then call again:"
    echo "  $packages"
    exit 1
  fi
  missing=$(missing_packages)
  [ -z "$missing" ] && return 0
  as_root=
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null 2>&1; then
      echo "These packages are missing, and there is no sudo to install them with:$missing"
      exit 1
    fi
    echo "To build ZELVS these Debian packages are needed:$missing"
    echo "They are installed with sudo, which may ask for your password."
    as_root=sudo
  else
    echo "Installing:$missing"
  fi
  log=$(mktemp)
  if ! { $as_root apt-get update && DEBIAN_FRONTEND=noninteractive $as_root apt-get install -y --no-install-recommends $missing; } >"$log" 2>&1; then
    tail -n 20 "$log"
    echo "The packages could not be installed; the whole output is in $log."
    exit 1
  fi
  rm -f "$log"
}

# prepare TARGET...: builds the targets in build/.
prepare() {
  install_missing
  [ -d "$root/build/zelvs" ] || echo "Building ZELVS, which takes a minute or two."
  [ -f "$root/build/build.ninja" ] || cmake -S "$root" --preset release >"$root/.configure.log" 2>&1 || {
    cat "$root/.configure.log"
    exit 1
  }
  rm -f "$root/.configure.log"
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

#!/bin/sh
# What ./run and ./test do about a package that is missing. usage: prepare.sh SOURCES
#
# Programs of our own stand for the system's, each of which writes down how it was called.
set -eu
root=$1
. "$root/tools/prepare.sh"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
trap 'exit 1' HUP INT TERM
fail() { cat "$work/output"; echo "$1"; exit 1; }
stand_in() { printf '#!/bin/sh\n%s\n' "$2" > "$work/bin/$1"; chmod +x "$work/bin/$1"; }
mkdir "$work/bin"
for name in sh grep mktemp rm tail; do ln -s "$(command -v $name)" "$work/bin/$name"; done
for name in apt-get su; do stand_in $name "echo $name \"\$@\" >> $work/calls"; done
# All is there but ninja-build.
stand_in dpkg-query 'for package; do :; done; [ "$package" = ninja-build ] || echo install ok installed'

# call: install_missing for our packages; its status is in $status, its calls in $calls
call() {
  : > "$work/calls"
  status=0
  (PATH=$work/bin; install_missing $packages) > "$work/output" 2>&1 || status=$?
  calls=$(cat "$work/calls")
}
told() { grep -qxF -e "$1" "$work/output" || fail "not told: $1"; }

stand_in id 'echo 1000'
call
[ $status -eq 1 ] || fail "status $status without a package"
[ -z "$calls" ] || fail "called unasked: $calls"
told "  su -c 'apt-get install --no-install-recommends ninja-build'"

stand_in sudo "echo sudo \"\$@\" >> $work/calls"
call
[ $status -eq 1 ] || fail "status $status without a package"
[ -z "$calls" ] || fail "called unasked: $calls"
told "  sudo apt-get install --no-install-recommends ninja-build"

stand_in id 'echo 0'
call
[ $status -eq 0 ] || fail "status $status as root"
[ "$calls" = "apt-get update
apt-get install --no-install-recommends ninja-build -y" ] || fail "called as root: $calls"

stand_in apt-get 'echo no such package; exit 100'
call
[ $status -eq 1 ] || fail "status $status when nothing can be installed"
told "no such package"

stand_in dpkg-query 'echo install ok installed'
stand_in apt-get "echo apt-get \"\$@\" >> $work/calls"
call
[ $status -eq 0 ] && [ -z "$calls" ] && [ ! -s "$work/output" ] || fail "something is done though nothing is missing"

# Another system
rm "$work/bin/apt-get"
call
[ $status -eq 1 ] || fail "status $status without apt-get"
told "  $packages"

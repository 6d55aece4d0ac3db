#!/bin/sh
# Installs a build under a prefix of its own and runs what stands there. usage: install.sh BUILD SOURCES [--desktop]
set -eu
build=$1
sources=$2
shift 2

prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
trap 'exit 1' HUP INT TERM
fail() { echo "$1"; exit 1; }
install() { cmake --install "$build" --prefix "$prefix" > "$prefix/output" 2>&1 || { cat "$prefix/output"; exit 1; }; }
# run OPTION...: a script from the standard input, by the name that a user types
run() { (cd / && "$prefix/bin/zelvs-script" "$@") > "$prefix/output" 2>&1 || { cat "$prefix/output"; exit 1; }; }

install
folder=$(dirname "$(readlink -f "$prefix/bin/zelvs-script")")
case $folder in "$prefix"/lib*/zelvs) ;; *) fail "bin/zelvs-script leads to $folder" ;; esac
for name in $(cd "$folder" && find . -type f); do
  case $name in
    ./ZELVS.INI) cmp "$sources/assets/ZELVS.INI" "$folder/$name" ;;
    ./zelvs | ./zelvs-script) [ -L "$prefix/bin/$name" ] && [ -x "$prefix/bin/$name" ] ;;
    *) cmp "$build/zelvs/$name" "$folder/$name" ;;
  esac || fail "installed wrongly: $name"
done
for name in $(ls "$build/zelvs"); do
  [ -e "$folder/$name" ] || fail "not installed: $name"
done
[ -f "$prefix/share/doc/zelvs/LICENSE" ] || fail "not installed: LICENSE"

# The user's settings outlive an update.
sed -i 's/^CPUTYPE=0/CPUTYPE=3/' "$folder/ZELVS.INI"
install
run "$@" <<'END'
expect cpuType 3
click frmMDI.lblVersion
expect frmVersion.lblVer.Caption "Ver,1.00"
expect frmVersion.lblCopyright.Caption "ZEL-VS Ver,1.00   学習用シミュレーター"
click frmVersion.lblVer
dblclick frmHard.picQVT(0)
expect frmKAIROZU.picKAIROZU.Picture "file QVT60_FULL_8BIT.BMP"
dblclick frmMDI.lblNagigator
expect frmNaviList.lstTitle.ListCount 3
END

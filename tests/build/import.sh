#!/bin/sh
# Configures a build that takes its data from another's program folder, and makes that data. usage: import.sh FOLDER
# SOURCES GENERATOR, where FOLDER is a program folder.
set -eu
folder=$1
sources=$2
generator=$3

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
trap 'exit 1' HUP INT TERM
fail() { cat "$work/output"; echo "$1"; exit 1; }
configure() {
  cmake -S "$sources" -B "$work/build" -G "$generator" -DZELVS_DESKTOP=OFF -DZELVS_TESTS=OFF -DZELVS_DATA="$1"
}

configure "$folder" > "$work/output" 2>&1 || fail "cannot be configured"
# To compile anything takes longer than this test may.
cmake --build "$work/build" --target zelvs-folder > "$work/output" 2>&1 || fail "the data cannot be taken"
[ ! -e "$work/build/libzelvs-core.a" ] || fail "data that is ready needs no tool"
for name in HintData Kairozu NaviData BEEP.WAV; do
  diff -r "$folder/$name" "$work/build/zelvs/$name" > "$work/output" || fail "not the same: $name"
done
cmp "$sources/assets/ZELVS.INI" "$work/build/zelvs/ZELVS.INI"

# refused FOLDER FILE...: it lacks just these, and is told so at once.
refused() {
  if configure "$1" > "$work/output" 2>&1; then fail "a folder with gaps is taken"; fi
  grep -qF "$1" "$work/output" || fail "the folder is not named"
  shift
  for name; do grep -q "^ *$name\$" "$work/output" || fail "not named: $name"; done
  [ "$(grep -c '\.BMP$\|\.bmp$\|\.WAV$\|\.txt$\|\.TXT$' "$work/output")" -eq $# ] || fail "more is named than lacks"
}
mkdir "$work/gaps"
cp -R "$folder/HintData" "$folder/Kairozu" "$folder/NaviData" "$work/gaps"
rm "$work/gaps/Kairozu/QVT50_IOS_7.BMP" "$work/gaps/HintData/CONTROL.BMP" "$work/gaps/NaviData/NaviIndex.txt"
refused "$work/gaps" NaviData/NaviIndex.txt HintData/CONTROL.BMP Kairozu/QVT50_IOS_7.BMP BEEP.WAV
if configure "$work/nowhere" > "$work/output" 2>&1; then fail "a folder that is not there is taken"; fi
grep -qF "$work/nowhere" "$work/output" || fail "the folder that is not there is not named"

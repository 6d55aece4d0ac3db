#!/bin/sh
# Runs one script case in a program folder of its own. usage: runCase.sh PROGRAM CONVERTER CASE FOLDER [--desktop]
# CONVERTER is zelvs-text.
#
# The case's head may hold lines that shape its folder and what it must end with:
#   #ini KEY=VALUE    replaces a value of the maker's ZELVS.INI
#   #no-ini           starts without ZELVS.INI
#   #lesson FILE TEXT adds a line to a file of NaviData, which then holds nothing else than such lines; "|" is a TAB
#   #no-lessons       starts without NaviData
#   #damage FILE AT BYTES writes bytes, as printf takes them, over those of a file of the folder from a place on, which
#                     counts from 0; without bytes the file has its end there
#   #status N         the exit status that is wanted, 0 without the line
#   #prints TEXT      a line that must be printed, byte for byte
#   #prints-all       those are all the lines, in this order, but for any "ok"
set -eu
program=$1
converter=$2
case=$3
shipped=$4
shift 4

folder=$(mktemp -d)
texts=$(mktemp -d)
trap 'rm -rf "$folder" "$texts"' EXIT
# The pictures are large: a link to each will do.
cp -Rs "$shipped/." "$folder"
rm -f "$folder/zelvs" "$folder/zelvs-script" "$folder/ZELVS.INI"
cp "$(dirname "$0")/../assets/ZELVS.INI" "$folder/ZELVS.INI"

sed -n 's/^#ini //p' "$case" | while IFS='=' read -r key value; do
  grep -q "^$key=" "$folder/ZELVS.INI" || { echo "no such key: $key"; exit 1; }
  sed -i "s/^$key=.*/$key=$value\r/" "$folder/ZELVS.INI"
done
if grep -q '^#no-ini' "$case"; then rm "$folder/ZELVS.INI"; fi

if grep -q -e '^#lesson ' -e '^#no-lessons' "$case"; then rm -rf "$folder/NaviData"; fi
sed -n 's/^#lesson //p' "$case" | while IFS=' ' read -r file text; do
  mkdir -p "$(dirname "$texts/$file")"
  printf '%s\n' "$text" | tr '|' '\t' >> "$texts/$file"
done
(cd "$texts" && find . -type f) | while read -r file; do "$converter" "$texts/$file" "$folder/NaviData/$file"; done

sed -n 's/^#damage //p' "$case" | while IFS=' ' read -r file at bytes; do
  cp --remove-destination "$shipped/$file" "$folder/$file"
  case $bytes in
    "") truncate -s "$at" "$folder/$file" ;;
    *) printf "$bytes" | dd of="$folder/$file" bs=1 seek="$at" conv=notrunc status=none ;;
  esac
done

status=0
"$program" "$@" --folder "$folder" "$case" > "$folder/output" 2> "$folder/errors" || status=$?
cat "$folder/output" "$folder/errors"

wanted=$(sed -n 's/^#status //p' "$case")
if [ "$status" -ne "${wanted:-0}" ]; then
  echo "exit status $status, wanted ${wanted:-0}"
  exit 1
fi
# A case that looked at nothing has shown nothing.
if [ -z "$wanted" ] && ! grep -q '^ok$' "$folder/output"; then
  echo "no expectation was judged"
  exit 1
fi
sed -n 's/^#prints //p' "$case" | while IFS= read -r line; do
  grep -qxF -e "$line" "$folder/output" || { echo "not printed: $line"; exit 1; }
done
if grep -q '^#prints-all' "$case"; then
  sed -n 's/^#prints //p' "$case" | sed '/^ok$/d' > "$folder/wanted"
  sed '/^ok$/d' "$folder/output" | diff "$folder/wanted" -
fi

#!/bin/sh
# Runs one script case in a program folder of its own. usage: runCase.sh PROGRAM CASE FOLDER [--desktop]
#
# The case's head may hold lines that shape its folder and what it must end with:
#   #ini KEY=VALUE    replaces a value of the maker's ZELVS.INI
#   #no-ini           starts without ZELVS.INI
#   #status N         the exit status that is wanted, 0 without the line
#   #prints TEXT      a line that must be printed, byte for byte
set -eu
program=$1
case=$2
shipped=$3
shift 3

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp -R "$shipped/." "$folder"
rm -f "$folder/zelvs" "$folder/zelvs-script"
cp "$(dirname "$0")/../assets/ZELVS.INI" "$folder/ZELVS.INI"

sed -n 's/^#ini //p' "$case" | while IFS='=' read -r key value; do
  grep -q "^$key=" "$folder/ZELVS.INI" || { echo "no such key: $key"; exit 1; }
  sed -i "s/^$key=.*/$key=$value\r/" "$folder/ZELVS.INI"
done
if grep -q '^#no-ini' "$case"; then rm "$folder/ZELVS.INI"; fi

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

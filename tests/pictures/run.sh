#!/bin/sh
# Makes the pictures of docs/pictures anew and tells which are not as they are stored. usage: run.sh PROGRAM CONVERTER
# COMPARER FOLDER MADE [--take]
#
# CONVERTER is zelvs-text, FOLDER the program folder. The pictures are left in the folder MADE. With --take those that
# differ are stored.
set -eu
program=$1
converter=$2
comparer=$3
shipped=$4
made=$5
shift 5

here=$(cd "$(dirname "$0")" && pwd)
stored=$(cd "$here/../../docs/pictures" && pwd)
rm -rf "$made"
mkdir "$made"
cd "$made"
export FONTCONFIG_FILE="$here/fonts.conf" QT_QPA_PLATFORM=offscreen
sh "$here/../runCase.sh" "$program" "$converter" "$stored/make.zs" "$shipped" --desktop
"$comparer" "$stored" "$made" "$@"

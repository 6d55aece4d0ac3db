#!/bin/sh
# Runs the tests that need a screen and a window manager, on screens of several sizes. usage: run.sh PROGRAM [FILTER]
#
# The screens are virtual ones of this script's own (Xvfb with openbox, worked by xdotool).
set -eu
program=$1
filter=${2:-*}

# One of the first displays that nobody has.
display=
for number in 90 91 92 93 94 95 96 97 98 99; do
  if [ ! -e "/tmp/.X$number-lock" ]; then
    display=:$number
    break
  fi
done
[ -n "$display" ] || { echo "no display is free"; exit 1; }
export DISPLAY="$display" QT_QPA_PLATFORM=xcb

server=
manager=
finish() {
  for process in $manager $server; do kill "$process" 2>/dev/null || true; done
  wait 2>/dev/null || true
  server=
  manager=
}
trap finish EXIT
trap 'exit 1' HUP INT TERM

# Waits until the command succeeds. usage: await WHAT COMMAND...
await() {
  what=$1
  shift
  tries=0
  until "$@" >/dev/null 2>&1; do
    tries=$((tries + 1))
    [ "$tries" -lt 100 ] || { echo "no $what"; exit 1; }
    sleep 0.1
  done
}
managed() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }

tests=$("$program" --gtest_list_tests --gtest_filter="$filter" | sed -n 's/^  //p')
[ -n "$tests" ] || { echo "no test is called $filter"; exit 1; }

status=0
for size in 1920x1080 1366x768 1280x720; do
  echo "-- $size"
  # Without -noreset the server starts anew when its last client goes, and takes one that is just coming with it.
  Xvfb "$DISPLAY" -noreset -screen 0 "${size}x24" >/dev/null 2>&1 &
  server=$!
  await screen xdpyinfo
  openbox >/dev/null 2>&1 &
  manager=$!
  await "window manager" managed
  # Each in a process of its own, as a program runs.
  for test in $tests; do
    xdotool mousemove 2 2
    timeout 60 "$program" --gtest_filter="*.$test" --gtest_brief=1 || { status=1; echo "FAILED at $size: $test"; }
  done
  finish
done
exit "$status"

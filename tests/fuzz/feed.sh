#!/bin/sh
# Lets the fuzzer feed one program; ./fuzz calls it. usage: [corpus=grow] feed.sh NAME SECONDS
set -eu
name=$1
seconds=$2
fuzz=$(cd "$(dirname "$0")" && pwd)
build=$fuzz/../../build-fuzz
program=$build/tests/fuzz-$name
kept=$fuzz/corpus/$name       # in the repository: what reaches all that is known to be reached
work=$build/corpus/$name      # all that the fuzzer found worth going on from
found=$build/found
log=$build/fuzz-$name.log
mkdir -p "$kept" "$work" "$found"

# An input is a few lines. What takes seconds, or hundreds of megabytes, is a fault too.
set -- -timeout=5 -rss_limit_mb=1024 -malloc_limit_mb=512 -max_len=1024 -artifact_prefix="$found/$name-"
[ ! -f "$fuzz/programs/$name.dict" ] || set -- "$@" -dict="$fuzz/programs/$name.dict"
# Freed memory is kept from use for a while only: a process that keeps more is slower by half.
export ASAN_OPTIONS=quarantine_size_mb=8:malloc_context_size=1 UBSAN_OPTIONS=print_stacktrace=1

if ! "$program" "$@" -max_total_time="$seconds" -print_final_stats=1 "$work" "$kept" >"$log" 2>&1; then
  grep -e '^does not hold' -e 'runtime error:' -e '^SUMMARY' "$log" || tail -n 20 "$log"
  input=$(sed -n 's/.*Test unit written to //p' "$log" | tail -n 1)
  echo "$name: an input that ends it is ${input:-told of in $log}; again: $program ${input:-}"
  exit 1
fi
runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
reached=$(sed -n 's/.* cov: \([0-9]*\) .*/\1/p' "$log" | tail -n 1)
echo "$name: $runs inputs in $seconds s, $reached branches reached"

if [ "${corpus:-}" = grow ]; then
  "$program" "$@" -merge=1 -use_counters=0 "$kept" "$work" >"$log" 2>&1
  echo "$name: $(sed -n 's/.*MERGE-OUTER: \([0-9]* new files\).*/\1/p' "$log" | tail -n 1) in $kept"
fi

#!/bin/sh
# Runs each fuzz target of BUILD for SECONDS, one after the other, on its
# corpus in BUILD/corpus/<target>, and prints per target the executions,
# executions per second and findings (crashes, hangs, leaks, memory
# exhaustion, with the files that hold the inputs).
#   run_fuzzers.sh BUILD SECONDS [TARGET...]
# Exits 1 when any target found something.
set -u
build=$1
seconds=$2
shift 2

# The largest input of each target: a map file's first rows of sectors, a
# report or a QuestOR pair of some size, an options file, two box texts.
max_len() {
  case $1 in
    map_load_fuzz | map_merge_fuzz | report_fuzz | questor_fuzz) echo 16384 ;;
    options_fuzz) echo 4096 ;;
    route_fuzz) echo 256 ;;
  esac
}

targets=${*:-"map_load_fuzz map_merge_fuzz options_fuzz report_fuzz questor_fuzz route_fuzz"}
found=0
mkdir -p "$build/logs"
for target in $targets; do
  findings=$build/findings/$target
  log=$build/logs/$target.log
  mkdir -p "$findings" "$build/corpus/$target"
  UBSAN_OPTIONS=print_stacktrace=1 "$build/bin/$target" "$build/corpus/$target" \
    -max_total_time="$seconds" -max_len="$(max_len "$target")" -timeout=10 -rss_limit_mb=2048 \
    -print_final_stats=1 -artifact_prefix="$findings/" >"$log" 2>&1
  status=$?
  runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
  speed=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log")
  artefacts=$(sed -n 's/.*Test unit written to //p' "$log" | tr '\n' ' ' | sed 's/ $//')
  if [ "$status" -eq 0 ] && [ -z "$artefacts" ]; then
    result="no findings"
  else
    found=1
    result="FOUND: ${artefacts:-exit status $status, no input kept} (log: $log)"
  fi
  printf '%-15s %10s executions %7s/s  %s\n' "$target" "${runs:-?}" "${speed:-?}" "$result"
done
exit $found

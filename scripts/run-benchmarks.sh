#!/usr/bin/env bash
# Runs every benchmark program of a build with repetitions and prints the medians.
set -euo pipefail
build_dir=${1:-build}
for program in "$build_dir"/bench/*Bench; do
  [ -x "$program" ] || continue
  echo "== $(basename "$program")"
  "$program" --benchmark_repetitions=5 --benchmark_report_aggregates_only=true \
    --benchmark_display_aggregates_only=true
done

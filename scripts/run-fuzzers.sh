#!/usr/bin/env bash
# Runs libFuzzer harnesses of a fuzzing build (VANTELLO_BUILD_FUZZERS=ON) over their seeds.
#
#   run-fuzzers.sh BUILD_DIR SECONDS [NAME...]     (every harness when no name is given)
#
# Each harness runs for SECONDS, starting from fuzz/corpus/<NAME> and from what earlier runs
# found, which is kept in BUILD_DIR/fuzz/corpus/<NAME>, outside git. An input that crashes,
# trips a sanitizer or hangs is written to BUILD_DIR/fuzz/findings/ and fails the run.
set -euo pipefail

build_dir=$(cd "$1" && pwd)
seconds=$2
shift 2
seeds=$(cd "$(dirname "$0")/../fuzz/corpus" && pwd)

names=("$@")
if [ ${#names[@]} -eq 0 ]; then
  for harness in "$build_dir"/fuzz/*Fuzzer; do names+=("$(basename "$harness" Fuzzer)"); done
fi

export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}
mkdir -p "$build_dir/fuzz/findings"
failed=()
for name in "${names[@]}"; do
  grown="$build_dir/fuzz/corpus/$name"
  mkdir -p "$grown"
  echo "== $name: ${seconds}s"
  # New inputs go into the first folder only; the seeds in git stay as they are.
  "$build_dir/fuzz/${name}Fuzzer" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
    -print_final_stats=1 -artifact_prefix="$build_dir/fuzz/findings/$name-" \
    "$grown" "$seeds/$name" || failed+=("$name")
done
if [ ${#failed[@]} -ne 0 ]; then
  echo "Findings in: ${failed[*]} (inputs in $build_dir/fuzz/findings)" >&2
  exit 1
fi

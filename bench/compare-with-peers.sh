#!/bin/sh
# Times `vantello-cli report --all --by-month` as a whole process beside the peers (a plain-text
# accounting tool's monthly balance by category, and plain JSON readers of the same ledger file),
# in one run, on the data sets that ../shared/bench makes (its README says how), and checks that
# our totals equal the generator's.
#
#   sh bench/compare-with-peers.sh [BUILD_DIR]          from the repository root
#   SIZES="10k 100k 1m" RUNS=5 sh bench/compare-with-peers.sh
#   KEEP=1 SIZES=1m RUNS=3 sh bench/compare-with-peers.sh     adds to the results of the previous run
#
# Needs the data sets in ../shared/bench/data (python3 bench/gen.py there) and, for the peers,
# the Debian packages hledger and ledger. Writes ../shared/bench/data/vantello-results.jsonl.
set -eu
# Months are taken in the generator's zone.
export TZ=Europe/Rome
root=$(pwd)
cli="$root/${1:-build}/cli/vantello-cli"
SIZES=${SIZES:-"10k 100k"}
RUNS=${RUNS:-5}
cd ../shared
results=bench/data/vantello-results.jsonl
[ "${KEEP:-0}" = 1 ] || rm -f "$results"

label() { case $1 in 10k) echo 10,000 ;; 100k) echo 100,000 ;; 1m) echo 1,000,000 ;; esac; }
timed() {
    task=$1; size=$2; shift 2
    python3 bench/run.py time --results "$results" --task "$task" --size "$size" --runs "$RUNS" -- "$@"
}

for s in $SIZES; do
    d=bench/data/n$s
    n=$(label "$s")
    # Our totals, summed over the months, must equal the generator's per-category totals.
    "$cli" report --all --by-month --json --data-dir "$d" | python3 "$root/bench/check-monthly-totals.py" "$d/summary.json"
    timed "monthly by category" "$n" "$cli" report --all --by-month --json --data-dir "$d"
    command -v hledger >/dev/null && timed "monthly by category" "$n" hledger -f "$d/ledger.journal" bal -M expenses
    command -v ledger >/dev/null && timed "monthly by category" "$n" ledger -f "$d/ledger.journal" reg --monthly expenses
    timed "JSON ledger: parse" "$n" python3 -c 'import json, sys; json.load(open(sys.argv[1]))' "$d/movimenti.json"
done
python3 bench/run.py table "$results"

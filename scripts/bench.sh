#!/usr/bin/env bash
# scripts/bench.sh [PATTERN]
#
# Builds the release with its benchmarks and runs them all, or those whose name matches the pattern. Prints what each
# promises: the figure, its baseline, their ratio, the ratio promised at most, and whether that was kept. Ends with the line
# "N promises kept, M not", and with 1 when M is not 0.
set -euo pipefail
. "$(dirname "$0")/common.sh"
cd "$root"

case ${1-} in
    --help) sed -n '2,6s/^# \{0,1\}//p' "$0"; exit 0 ;;
esac
pattern=${1-}
bin=$root/build/release/bin

install_packages build test
step configure-release "Configuring (release)" env TARROW_BENCHMARKS=ON cmake --preset release
step build-release "Building (release)" cmake --build --preset release

# measure NAME COMMAND...: a benchmark that fails, or says nothing of what it promises, has not kept it. What Google Benchmark
# would measure besides is left out.
measure() {
    local name=$1 log=$logs/$1.log
    shift
    say "$name"
    "$root/scripts/isolated.sh" --display -- "$@" >"$log" 2>&1 </dev/null \
        || echo "promise | $name: ended with $?, see $log | - | - | - | -" >>"$log"
    grep -q '^promise | ' "$log" || echo "promise | $name: printed no promise, see $log | - | - | - | -" >>"$log"
    sed -n 's/^promise | //p' "$log" >>"$logs/promises"
}

: >"$logs/promises"
for program in "$bin"/bench_* "$root"/benchmarks/bench_*.py; do
    name=$(basename "$program" .py)
    [[ $name =~ $pattern ]] || continue
    case $program in
        */bench_start_bare) ;; # what another is measured against
        *.py) measure "$name" /usr/bin/python3 -B "$program" "$bin/tarrow-alertor" "$bin/${name}_bare" ;;
        *) measure "$name" "$program" --benchmark_filter='^$' ;;
    esac
done

awk -F ' [|] ' '
    BEGIN { printf "%-72s %12s %12s %6s %8s\n", "what", "figure", "baseline", "ratio", "promised" }
    {
        isKept = $4 != "-" && $4 + 0 <= $5 + 0
        isKept ? kept++ : broken++
        printf "%-72s %12s %12s %6s %8s  %s\n", $1, $2, $3, $4, $5, isKept ? "kept" : "NOT KEPT"
    }
    END { printf "%d promises kept, %d not\n", kept, broken; exit broken > 0 || kept == 0 }
' "$logs/promises"

#!/usr/bin/env bash
# scripts/fuzz.sh [SECONDS] [FUZZER...]
#
# Builds the fuzzers, or those named, and runs each for that long (60 s by default). Prints a line for each and ends with 1
# when one found a fault: the input is kept in build/fuzz/found/ and named. What is worth keeping of the inputs stays in
# build/fuzz/corpus/, so that the next run goes on from there.
set -euo pipefail
. "$(dirname "$0")/common.sh"
cd "$root"

case ${1-} in
    --help) sed -n '2,6s/^# \{0,1\}//p' "$0"; exit 0 ;;
esac
seconds=${1:-60}
shift $(($# > 0 ? 1 : 0))
fuzzers=("$@")
[ ${#fuzzers[@]} -gt 0 ] || fuzzers=(frames inflate packets records masks cipher exr images)

bin=$root/build/fuzz/bin
corpus=$root/build/fuzz/corpus
found=$root/build/fuzz/found
seeds=$root/build/fuzz/seeds

# Limits of one input: bytes, seconds, and megabytes that the process may hold. The cipher's texts and the inflation go up to
# 16 MB, an image that is believed to 64 MB and more; what the sanitizers add comes on top.
limits_of() {
    case $1 in
        exr | images) echo "-max_len=65536 -timeout=20 -rss_limit_mb=2560" ;;
        *) echo "-max_len=16384 -timeout=5 -rss_limit_mb=1024" ;;
    esac
}

# The decoders of other image formats lose memory of their own when they give up on a file, which is not ours to mend.
leaks_of() {
    [ "$1" = images ] && echo 0 || echo 1
}

statistic() {
    sed -n "s/^stat::$1: *//p" "$2"
}

# fuzz NAME: prints its line; its status is 1 when it found a fault.
fuzz() {
    local name=$1 log=$logs/fuzz-$1.log verdict="no findings" status=0
    mkdir -p "$corpus/$name" "$found"
    # shellcheck disable=SC2046
    ASAN_OPTIONS=allocator_may_return_null=1:max_allocation_size_mb=4096 "$bin/fuzz_$name" "$corpus/$name" \
        "$seeds/$name" -max_total_time="$seconds" $(limits_of "$name") -detect_leaks="$(leaks_of "$name")" \
        -artifact_prefix="$found/$name-" -print_final_stats=1 -verbosity=1 >"$log" 2>&1 </dev/null || status=1
    [ $status = 0 ] || verdict="FOUND $(sed -n 's/.*Test unit written to //p' "$log" | tail -n 1); the log is $log"
    printf '%-8s %9s runs %7s/s %5s new inputs %5s MB: %s\n' "$name" "$(statistic number_of_executed_units "$log")" \
        "$(statistic average_exec_per_sec "$log")" "$(statistic new_units_added "$log")" \
        "$(statistic peak_rss_mb "$log")" "$verdict"
    return $status
}

install_packages build fuzz
step configure-fuzz "Configuring (fuzz)" cmake --preset fuzz
step build-fuzz "Building the fuzzers" cmake --build --preset fuzz
step seeds "Writing the first inputs" "$bin/fuzz_seeds" "$seeds"
say "Fuzzing for $seconds s each"
faults=0
for name in "${fuzzers[@]}"; do
    fuzz "$name" || faults=$((faults + 1))
done
[ $faults = 0 ] || fail "$faults of ${#fuzzers[@]} fuzzers found a fault"
say "Nothing was found"

#!/usr/bin/env bash
# Builds every fuzz target (fuzz/fuzz_*.cpp) with clang under AddressSanitizer and
# UndefinedBehaviorSanitizer in build-fuzz/, then runs each in turn:
#   bash scripts/fuzz.sh smoke          about 20 seconds a target (part of scripts/test.sh)
#   bash scripts/fuzz.sh long SECONDS   SECONDS a target
# A target is seeded with a copy of the test-data folders listed in fuzz/<target>.seeds.
# Any finding (crash, sanitizer report, timeout, memory blow-up) fails the script; the input
# that caused it is kept in build-fuzz/artifacts/.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
mode=${1:-smoke}
case "$mode" in
    smoke) seconds=${ORVANNE_FUZZ_SMOKE_SECONDS:-20} ;;
    long) seconds=${2:?"usage : bash scripts/fuzz.sh long SECONDES"} ;;
    *) echo "usage : bash scripts/fuzz.sh smoke | long SECONDES" >&2; exit 2 ;;
esac

bash "$root/scripts/setup.sh"
out="$root/build-fuzz"
testdata="$root/../shared/testdata"
sanitizers="-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer"
cmake -S "$root" -B "$out" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_CXX_COMPILER=clang++ -DORVANNE_FUZZ=ON \
    -DCMAKE_CXX_FLAGS="$sanitizers -fsanitize=fuzzer-no-link" \
    -DCMAKE_EXE_LINKER_FLAGS="$sanitizers" >/dev/null
mkdir -p "$out/logs"
if ! cmake --build "$out" -j2 >"$out/logs/build.log" 2>&1; then
    cat "$out/logs/build.log" >&2
    exit 1
fi

mkdir -p "$out/artifacts"
status=0
for source in "$root"/fuzz/fuzz_*.cpp; do
    name=$(basename "$source" .cpp)
    corpus="$out/corpus/$name"
    seeds="$out/seeds/$name"
    rm -rf "$seeds"
    mkdir -p "$corpus" "$seeds"
    if [ -f "$root/fuzz/$name.seeds" ]; then
        while read -r folder; do
            case "$folder" in "" | \#*) continue ;; esac
            find "$testdata/$folder" -maxdepth 1 -type f -exec cp {} "$seeds/" \;
        done <"$root/fuzz/$name.seeds"
    fi
    # Room for the largest seed, and for files whose icons share images of a megabyte.
    largest=$(find "$seeds" -type f -printf '%s\n' | sort -n | tail -1)
    max_len=$(( ${largest:-0} > 1100000 ? ${largest:-0} : 1100000 ))
    log="$out/logs/$name.log"
    echo "Fuzzing $name for ${seconds} s (seeds: $(find "$seeds" -type f | wc -l) files)"
    if "$out/bin/$name" -max_total_time="$seconds" -max_len="$max_len" -timeout=10 \
        -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$out/artifacts/$name-" \
        "$corpus" "$seeds" >"$log" 2>&1; then
        grep -E "stat::number_of_executed_units|stat::peak_rss_mb" "$log" | sed "s/^/  $name /"
    else
        echo "$name: finding (log: $log)" >&2
        grep -E -A30 "ERROR|runtime error|deadly signal|timeout|out-of-memory" "$log" | head -60 >&2
        status=1
    fi
done
exit $status

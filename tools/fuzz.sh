#!/bin/sh
# Builds the fuzz targets (clang, libFuzzer, AddressSanitizer,
# UndefinedBehaviorSanitizer) in build-fuzz/ and runs each of them.
#
#   tools/fuzz.sh            a short run: 12 seconds a target, about a minute
#   tools/fuzz.sh 3600       a long run: an hour a target
#   tools/fuzz.sh 600 fuzz_traduko     one target only
#
# Each target starts from the shipped files (lessons, exercise data,
# translations) and the seeds in tests/fuzz/semoj, replays every input kept in
# tests/fuzz/regresoj, and grows its corpus in build-fuzz/korpuso. An input
# that crashes is written to build-fuzz/trovoj/; once the fault is fixed, keep
# it in tests/fuzz/regresoj/<target>/ so that every later run replays it.
set -eu
cd "$(dirname "$0")/.."
sekundoj=${1:-12}
if [ $# -gt 0 ]; then shift; fi
celoj=${*:-"fuzz_lecionfonto fuzz_ekzercdatumoj fuzz_traduko fuzz_traduklisto fuzz_agordoj"}

tools/dependoj.sh
cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ -DLERNILO_FUZZ=ON \
    ${CMAKE_CXX_COMPILER_LAUNCHER:+-DCMAKE_CXX_COMPILER_LAUNCHER=$CMAKE_CXX_COMPILER_LAUNCHER} >/dev/null
# shellcheck disable=SC2086
cmake --build build-fuzz --parallel "$(nproc)" --target $celoj

semoj() {
    case "$1" in
        fuzz_lecionfonto) echo lessons/enhavo ;;
        fuzz_ekzercdatumoj) echo resources/ekzercoj ;;
        fuzz_traduko) echo resources/tradukoj ;;
        fuzz_traduklisto) echo tests/fuzz/semoj/traduklisto ;;
        fuzz_agordoj) echo tests/fuzz/semoj/agordoj ;;
    esac
}

export QT_QPA_PLATFORM=offscreen
export LSAN_OPTIONS="suppressions=$(pwd)/tests/fuzz/lsan.supp:print_suppressions=0:${LSAN_OPTIONS:-}"
mkdir -p build-fuzz/trovoj
for celo in $celoj; do
    mkdir -p "build-fuzz/korpuso/$celo" "tests/fuzz/regresoj/$celo"
    echo "== $celo: $sekundoj s"
    "build-fuzz/tests/fuzz/$celo" -max_total_time="$sekundoj" -timeout=20 -rss_limit_mb=4096 \
        -artifact_prefix="build-fuzz/trovoj/$celo-" -print_final_stats=1 \
        "build-fuzz/korpuso/$celo" "$(semoj "$celo")" "tests/fuzz/regresoj/$celo" 2>&1 \
        | grep -E "^(INFO: Seed|#[0-9]+[[:space:]]+DONE|stat::number_of_executed_units|stat::average_exec_per_sec|==[0-9]+==|SUMMARY|broken|Test unit written)" || true
    # A crash leaves its input behind and fails the run.
    if ls "build-fuzz/trovoj/$celo-"* >/dev/null 2>&1; then
        echo "$celo found a fault: $(ls build-fuzz/trovoj/$celo-*)"
        exit 1
    fi
done

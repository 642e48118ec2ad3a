#!/usr/bin/env bash
# Builds the fuzz targets (fuzz/, clang-14, build-fuzz) and runs each for a fixed number of
# inputs, starting from its seeds (fuzz/corpus/<name>) and the inputs that once failed
# (fuzz/regressions/<name>), then replays what the run kept with leak checks on.
#
#   scripts/fuzz.sh [--smoke] [inputs] [target...]
#
# inputs defaults to 10000000; --smoke runs 3000 per target (the CI run). Targets are the
# fuzz_<name> names without the prefix; all by default. One target at a time, one job.
# Exits non-zero on any crash, sanitizer report or leak; the input is left in
# build-fuzz/artifacts/<name>/. STREAMING_FUZZ_MAX_SECONDS caps each run's time (the table
# then shows how many inputs fitted); STREAMING_FUZZ_BUILD names another build folder.
# STREAMING_FUZZ_WORKERS=N runs a target in N processes sharing its corpus folder (libFuzzer
# reloads it), the inputs split between them; the table gives their sum.
# clang-14 and libclang-rt-14-dev come from scripts/install-deps.sh --fuzz.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD

inputs=10000000
targets=()
for arg in "$@"; do
    case "$arg" in
        --smoke) inputs=3000 ;;
        ''|*[!0-9]*) targets+=("$arg") ;;
        *) inputs=$arg ;;
    esac
done

for tool in clang++-14 llvm-symbolizer-14; do
    command -v "$tool" >/dev/null || { echo "fuzz.sh: $tool is missing (scripts/install-deps.sh --fuzz)" >&2; exit 2; }
done

build=${STREAMING_FUZZ_BUILD:-$root/build-fuzz}
workers=${STREAMING_FUZZ_WORKERS:-1}
start=$(date +%s)
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
      -DCMAKE_CXX_COMPILER=clang++-14 -DSTREAMING_FUZZ=ON \
      -DSTREAMING_BUILD_TESTS=OFF -DSTREAMING_BUILD_BENCH=OFF -DSTREAMING_BUILD_APP=OFF \
      -DSTREAMING_BROWSER=OFF >/dev/null
# Only the libraries the targets link, not the shared library or the translations.
cmake --build "$build" --target fuzz_all -j "${STREAMING_FUZZ_JOBS:-$(nproc)}"
echo "fuzz build: $(( $(date +%s) - start )) s"

if [ ${#targets[@]} -eq 0 ]; then
    for source in fuzz/fuzz_*.cpp; do
        name=${source#fuzz/fuzz_}
        targets+=("${name%.cpp}")
    done
fi

# Longest input per target: a few chat reads, a page or a reply per request, several files or
# every group of a setup file, one address or template. Longer inputs reach no further into
# the readers (same coverage at 16 KiB) and halve the pace; huge values have their own tests.
max_len() {
    case "$1" in
        authorize|filetag) echo 1024 ;;
        irc|youtubechat|providers) echo 4096 ;;
        stores|setupgroups) echo 8192 ;;
        *) echo 4096 ;;
    esac
}

# Scratch files go to memory: the stores sync every write to disk.
base=${TMPDIR:-/tmp}
[ -d /dev/shm ] && [ -w /dev/shm ] && base=/dev/shm
scratch=$(mktemp -d "$base/libstreaming-fuzz.XXXXXX")
trap 'rm -rf "$scratch"' EXIT
export TMPDIR=$scratch
export QT_QPA_PLATFORM=offscreen
# Inputs run without leak checks (Qt's caches make every input look like a leak to the
# per-input check, which then scans the heap each time); the replay below checks them.
run_options="halt_on_error=1:abort_on_error=0:detect_leaks=0:allocator_may_return_null=1"
# Deep stacks: a leak inside Qt's recursive JSON parser only shows the parser's entry (which
# the suppressions name) past thirty frames; 255 is the most AddressSanitizer keeps.
leak_options="halt_on_error=1:detect_leaks=1:fast_unwind_on_malloc=0:malloc_context_size=255:allocator_may_return_null=1"
export UBSAN_OPTIONS="halt_on_error=1:print_stacktrace=1"

failed=0
printf '%-12s %12s %9s %9s %s\n' target inputs seconds exec/s result
for name in "${targets[@]}"; do
    binary=$build/fuzz/fuzz_$name
    [ -x "$binary" ] || { echo "fuzz.sh: no target fuzz_$name" >&2; exit 2; }
    corpus=$build/corpus/$name
    artifacts=$build/artifacts/$name
    log=$build/logs/$name.log
    mkdir -p "$corpus" "$artifacts" "$build/logs"
    seeds=("fuzz/corpus/$name")
    [ -d "fuzz/regressions/$name" ] && seeds+=("fuzz/regressions/$name")
    limit=()
    [ -n "${STREAMING_FUZZ_MAX_SECONDS:-}" ] && limit=("-max_total_time=$STREAMING_FUZZ_MAX_SECONDS")
    dict=()
    [ -f "fuzz/$name.dict" ] && dict=("-dict=fuzz/$name.dict")

    began=$(date +%s%N)
    result=ok
    pids=()
    logs=()
    for ((worker = 1; worker <= workers; worker++)); do
        worker_log=$log
        [ "$workers" -gt 1 ] && worker_log=$log.$worker
        share=$(( inputs / workers + (worker <= inputs % workers ? 1 : 0) ))
        ASAN_OPTIONS=$run_options "$binary" -runs="$share" -max_len="$(max_len "$name")" -timeout=25 \
            -rss_limit_mb=4096 -print_final_stats=1 -artifact_prefix="$artifacts/" "${dict[@]}" "${limit[@]}" \
            "$corpus" "${seeds[@]}" >"$worker_log" 2>&1 &
        pids+=("$!")
        logs+=("$worker_log")
    done
    # The first to fail stops the others: its input is what matters.
    while [ ${#pids[@]} -gt 0 ]; do
        finished=
        status=0
        wait -n -p finished "${pids[@]}" || status=$?
        [ -n "$finished" ] || break
        remaining=()
        for pid in "${pids[@]}"; do [ "$pid" = "$finished" ] || remaining+=("$pid"); done
        pids=("${remaining[@]}")
        if [ "$status" -ne 0 ] && [ "$result" = ok ]; then
            result=FAILED
            [ ${#pids[@]} -eq 0 ] || kill "${pids[@]}" 2>/dev/null || true
        fi
    done
    ms=$(( ($(date +%s%N) - began) / 1000000 ))
    done_inputs=0
    for worker_log in "${logs[@]}"; do
        units=$(sed -n 's/^stat::number_of_executed_units: *//p' "$worker_log" | tail -1)
        done_inputs=$(( done_inputs + ${units:-0} ))
    done

    # Every input the run kept, every seed and every regression once more, leaks checked.
    if [ "$result" = ok ]; then
        ASAN_OPTIONS=$leak_options LSAN_OPTIONS="suppressions=$root/fuzz/lsan-suppressions.txt" \
            "$binary" -runs=0 -max_len="$(max_len "$name")" -timeout=60 -artifact_prefix="$artifacts/" \
            "$corpus" "${seeds[@]}" >"$log.leaks" 2>&1 || result="FAILED (leak pass, $log.leaks)"
    else
        result="FAILED (${logs[*]})"
    fi
    rate=$(( done_inputs * 1000 / (ms + 1) ))
    printf '%-12s %12s %7d.%01d %9s %s\n' "$name" "$done_inputs" $((ms / 1000)) $((ms % 1000 / 100)) "$rate" "$result"
    [ "$result" = ok ] || failed=1
done
exit $failed

#!/usr/bin/env bash
# Builds a fuzz target with clang in build-fuzz and runs it for the given
# number of seconds (default 60):  scripts/fuzz.sh typedstream|propertylist|csv|qif|homebank [seconds]
# New inputs go to build-fuzz/corpus/<target>, crashing ones to
# build-fuzz/crashes/; the seeds in fuzz/corpus/<target> are only read.
set -euo pipefail

target=${1:-}
seconds=${2:-60}
if ! [[ "$target" =~ ^(typedstream|propertylist|csv|qif|homebank)$ && "$seconds" =~ ^[0-9]+$ ]]; then
  echo "usage: $0 typedstream|propertylist|csv|qif|homebank [seconds]" >&2
  exit 2
fi

root=$(cd "$(dirname "$0")/.." && pwd)
build="$root/build-fuzz"

cmake -S "$root" -B "$build" -G Ninja \
  -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DPENWICK_FUZZ=ON -DPENWICK_BUILD_BENCH=OFF >/dev/null
cmake --build "$build" --target "fuzz_$target"

dict=()
[[ -f "$root/fuzz/$target.dict" ]] && dict=(-dict="$root/fuzz/$target.dict")
mkdir -p "$build/corpus/$target" "$build/crashes"
exec "$build/fuzz/fuzz_$target" \
  -max_total_time="$seconds" \
  "${dict[@]}" \
  -artifact_prefix="$build/crashes/" \
  -print_final_stats=1 \
  "$build/corpus/$target" "$root/fuzz/corpus/$target"

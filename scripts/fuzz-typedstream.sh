#!/usr/bin/env bash
# Builds the typed-stream fuzzer with clang in build-fuzz and runs it for the
# given number of seconds (default 60). New inputs go to
# build-fuzz/corpus/typedstream, crashing ones to build-fuzz/crashes/; the
# seeds in fuzz/corpus/typedstream are only read.
set -euo pipefail

seconds=${1:-60}
if ! [[ "$seconds" =~ ^[0-9]+$ ]]; then
  echo "usage: $0 [seconds]" >&2
  exit 2
fi

root=$(cd "$(dirname "$0")/.." && pwd)
build="$root/build-fuzz"

cmake -S "$root" -B "$build" -G Ninja \
  -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DPENWICK_FUZZ=ON -DPENWICK_BUILD_BENCH=OFF >/dev/null
cmake --build "$build" --target fuzz_typedstream

mkdir -p "$build/corpus/typedstream" "$build/crashes"
exec "$build/fuzz/fuzz_typedstream" \
  -max_total_time="$seconds" \
  -dict="$root/fuzz/typedstream.dict" \
  -artifact_prefix="$build/crashes/" \
  -print_final_stats=1 \
  "$build/corpus/typedstream" "$root/fuzz/corpus/typedstream"

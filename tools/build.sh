#!/usr/bin/env bash
# build.sh FOLDER JOBS [-DNAME=VALUE | TARGET]...: configures that build folder once and builds the targets in it, or all.
set -euo pipefail
cd "$(dirname "$0")/.."

folder=$1
jobs=$2
shift 2
settings=()
targets=()
for argument; do
  if [[ $argument == -D* ]]; then
    settings+=("$argument")
  else
    targets+=("$argument")
  fi
done

# ninja itself configures again when a CMake file changed.
if [[ ! -f $folder/build.ninja ]]; then
  cmake -S . -B "$folder" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "${settings[@]}"
fi
ninja -C "$folder" -j "$jobs" "${targets[@]}"

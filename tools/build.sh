#!/usr/bin/env bash
# build.sh FOLDER JOBS [CMAKE ARGUMENTS...]: configures that build folder once and builds it.
set -euo pipefail
cd "$(dirname "$0")/.."

folder=$1
jobs=$2
shift 2

# ninja itself configures again when a CMake file changed.
if [[ ! -f $folder/build.ninja ]]; then
  cmake -S . -B "$folder" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@"
fi
ninja -C "$folder" -j "$jobs"

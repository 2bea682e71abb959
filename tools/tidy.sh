#!/usr/bin/env bash
# tidy.sh FOLDER JOBS: clang-tidy over all our sources as that build folder, which need not be built, batches them: reading
# Qt's headers and matching in them takes most of the time, and a batch does it once.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
folder=$1
jobs=$2

log=$folder/tidy.log
list_units() {
  python3 - "$folder/compile_commands.json" <<'PY'
import json, os, sys
units = [entry["file"] for entry in json.load(open(sys.argv[1]))]
ours = [unit for unit in units if "/Unity/" in unit or "/build" not in unit]
# The longest first, so that no core is left with a long one at the end.
print("\n".join(sorted(ours, key=os.path.getsize, reverse=True)))
PY
}

list_units | xargs -P "$jobs" -I UNIT \
  clang-tidy -p "$folder" --quiet --header-filter="^$root/(adal|bench|companion|host|KZPreference|platform|sandbox|tests)/" UNIT \
  >"$log" 2>"$log.err" || {
  sort -u "$log" | grep -E '(error|warning):' | sed "s|^$root/||"
  grep -E '^(error|Error)' "$log.err" || true
  exit 1
}

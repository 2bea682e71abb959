#!/usr/bin/env bash
# lint.sh [JOBS]: every check prints one line, OK or FAIL, with the reason under a FAIL.
set -uo pipefail
cd "$(dirname "$0")/.."

jobs=${1:-$(nproc)}
folder=build-lint
export PYTHONDONTWRITEBYTECODE=1
status=0

check() {
  local name=$1 output
  shift
  if output=$("$@" 2>&1); then
    echo "OK   $name"
  else
    echo "FAIL $name"
    sed 's/^/     /' <<<"$output"
    status=1
  fi
}

ours() {
  git -c safe.directory="$PWD" ls-files -z --cached --others --exclude-standard -- "$@"
}

formatted() {
  ours '*.h' '*.cpp' | xargs -0 -n 40 -P "$jobs" clang-format --dry-run -Werror
}

scripts_parse() {
  local script
  while IFS= read -r -d '' script; do
    bash -n "$script" || return 1
    grep -q '^set -.*u' "$script" || { echo "$script: does not stop at an unset variable"; return 1; }
  done < <(ours '*.sh' .ci/run)
}

host_guide() {
  ninja -C "$folder" host-guide-tables && tools/host-guide.py --check "$folder/bin/host-guide-tables"
}

# Configured anew each time: new sources have to be seen.
if ! output=$(cmake -S . -B "$folder" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DKZ_UNITY=ON 2>&1); then
  echo "$output"
  exit 1
fi

check "format" formatted
check "scripts" scripts_parse
check "texts in files" tools/check-texts.py
check "floors" tools/check-floors.py
check "translations" tools/check-translations.py
check "documents" tools/check-documents.py
check "host guide" host_guide
check "clang-tidy" tools/tidy.sh "$folder" "$jobs"
exit $status

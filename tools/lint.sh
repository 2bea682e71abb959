#!/usr/bin/env bash
# lint.sh FOLDER JOBS: every check prints one line, OK or FAIL, with the reason under a FAIL. The build folder is configured
# and need not be built.
set -uo pipefail
cd "$(dirname "$0")/.."

folder=$1
jobs=$2
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

project_files() {
  git -c safe.directory="$PWD" ls-files -z --cached --others --exclude-standard -- "$@"
}

formatted() {
  project_files '*.h' '*.cpp' | xargs -0 -n 40 -P "$jobs" clang-format --dry-run -Werror
}

scripts_parse() {
  project_files '*.sh' .ci/run | xargs -0 -n 1 bash -n
}

check "format" formatted
check "scripts" scripts_parse
check "texts in files" tools/check_texts.py
check "layers" tools/check_layers.py
check "translations" tools/check_translations.py
check "documents" tools/check_documents.py
check "clang-tidy" tools/tidy.py "$folder" "$jobs"
exit $status

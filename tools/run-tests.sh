#!/usr/bin/env bash
# run-tests.sh FOLDER JOBS: runs all tests of that build folder; each starts its own services and needs no display.
set -euo pipefail

export ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1:detect_stack_use_after_return=1
export UBSAN_OPTIONS=print_stacktrace=1
ctest --test-dir "$1" --output-on-failure --parallel "$2" --no-tests=error

#!/usr/bin/env bash
# test-real.sh BUILD-FOLDER: runs tests/real with the programs of that folder and prints a table of the results. Logs and
# pictures go to its folder "real". Everything runs in namespaces of its own (network, mounts, processes), which have the
# loopback address only and end with this script. That needs root.
set -euo pipefail
((EUID == 0)) || exec sudo --preserve-env=PATH "$0" "$@"

root=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "$1" && pwd)
folder=$build/real
mkdir -p "$folder/pictures"
rm -f "$folder"/*.mjs "$folder"/pictures/*
cp "$root"/tests/real/{*.mjs,package.json} "$folder"

if ! node -e 'process.exit(parseInt(process.versions.node) < 20 ? 1 : 0)' 2>/dev/null; then
  echo "missing: Node.js 20 or newer, without which nothing here runs"
  exit 0
fi
# What cannot be installed is in the table.
npm install --silent --no-audit --no-fund --no-package-lock --prefix "$folder" >"$folder/npm.log" 2>&1 || true

export KZ_PROGRAMS=$build/bin KZ_PICTURES=$folder/pictures KZ_PRIVATE_BUS=$root/tests/host/keychain/with-private-bus.sh
export QT_QPA_PLATFORM=offscreen
TMPDIR=$(mktemp -d)
export TMPDIR
cd "$folder"
unshare --net --mount --pid --fork --kill-child --mount-proc \
  bash -c 'ip link set lo up && node --test --test-concurrency 1 --test-timeout 600000 \
    --test-reporter ./table.mjs --test-reporter-destination stdout' 2>errors.log &
child=$!
finish() {
  kill -KILL "$child" 2>/dev/null || true
  rm -rf "$TMPDIR"
  [[ -z ${SUDO_UID-} ]] || chown -R "$SUDO_UID" "$folder"
}
trap finish EXIT
wait "$child"

#!/usr/bin/env bash
# draw-pictures.sh FOLDER: the documents' pictures, taken from the demonstration of the companion built in that folder.
set -euo pipefail
cd "$(dirname "$0")/.."

demo=$(mktemp -d)
trap 'rm -rf "$demo"' EXIT
for appearance in light dark; do
  "$1/bin/companion" --demo --language en --appearance "$appearance" --out "$demo" >/dev/null
  cp "$demo/signed-in-meetings.png" "docs/pictures/meetings-$appearance.png"
done
ls docs/pictures/*.png

#!/usr/bin/env bash
# draw-pictures.sh FOLDER: all pictures of the documents, drawn by the programs built in that folder.
set -euo pipefail
cd "$(dirname "$0")/.."

export PYTHONDONTWRITEBYTECODE=1
programs=$1/bin
pictures=docs/pictures
demo=$(mktemp -d)
trap 'rm -rf "$demo"' EXIT

# Pictures of windows have two pixels a point, from a screen on which every pane has room.
cat >"$demo/screen.json" <<'SCREEN'
{
  "synchronousWindowSystemEvents": false,
  "windowFrameMargins": true,
  "screens": [
    {"name": "sharp", "x": 0, "y": 0, "width": 3200, "height": 2400, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 2}
  ]
}
SCREEN
export QT_QPA_PLATFORM=offscreen:configfile=$demo/screen.json

take() {
  cp "$demo/$1/$2.png" "$pictures/$3.png"
}

for appearance in light dark; do
  "$programs/companion" --demo --language en --appearance "$appearance" --out "$demo/$appearance" >/dev/null
done
for pane in general account meetings notifications video-devices; do
  take light "signed-in-$pane" "$pane"
done
for pane in account meetings; do
  take light "guest-$pane" "guest-$pane"
done
take dark signed-in-meetings meetings-dark

tools/draw-floors.py
tools/draw-sequence.py "$programs"
ls "$pictures"/*.png "$pictures"/*.svg

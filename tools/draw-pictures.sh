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

"$programs/prefs-session" >/dev/null <<STEPS
{"notify": 7, "content": {"kKZResult": "kKZSuccess", "kz": {"disableCalendarIntegration": true, "enableListGoogleCalendarMeeting": true}}}
{"command": 2}
{"pane": "Meetings"}
{"click": "m_outlookRadioBtn"}
{"type": "m_emailInputTxt", "text": "ada@example.com"}
{"click": "m_detectBtn"}
{"notify": 26, "content": {"kKZResult": "kKZSuccess", "QRT_ExchangeDiscover_ExchangeType": "QRT_ExchangeDiscover_ExchangeTypeOnpremise"}}
{"type": "m_usernameInputTxt", "text": "EXAMPLE\\\\ada"}
{"type": "m_passwordInputTxt", "text": "an example"}
{"wait": 400}
{"screenshot": "$pictures/meetings-credential.png"}
STEPS

tools/draw-floors.py
tools/draw-sequence.py "$programs"
ls "$pictures"/*.png "$pictures"/*.svg

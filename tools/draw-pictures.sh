#!/usr/bin/env bash
# draw-pictures.sh FOLDER: the pictures of windows in the documents, taken by the programs built in that folder.
set -euo pipefail
cd "$(dirname "$0")/.."

programs=$1/bin
pictures=docs/pictures
demo=$(mktemp -d)
trap 'rm -rf "$demo"' EXIT

# Two pixels a point, and a screen on which every pane has room.
echo '{"screens": [{"name": "sharp", "x": 0, "y": 0, "width": 3200, "height": 2400, "logicalDpi": 96,
  "logicalBaseDpi": 96, "dpr": 2}]}' >"$demo/screen.json"
export QT_QPA_PLATFORM=offscreen:configfile=$demo/screen.json

for appearance in light dark; do
  "$programs/companion" --demo --language en --appearance "$appearance" --out "$demo/$appearance" >/dev/null
done
for pane in general account meetings notifications video-devices; do
  cp "$demo/light/signed-in-$pane.png" "$pictures/$pane.png"
done
for pane in account meetings; do
  cp "$demo/light/guest-$pane.png" "$pictures"
done
cp "$demo/dark/signed-in-meetings.png" "$pictures/meetings-dark.png"

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

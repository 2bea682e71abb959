#!/bin/sh
# Runs a program with a home, a runtime folder and a session bus of its own, on which no service starts by itself,
# and removes them afterwards.
set -eu

HOME=$(mktemp -d)
export HOME
trap 'rm -rf "$HOME"' EXIT
export XDG_RUNTIME_DIR="$HOME/run" XDG_DATA_HOME="$HOME/data" XDG_CONFIG_HOME="$HOME/config" XDG_CACHE_HOME="$HOME/cache"
mkdir -m 700 "$XDG_RUNTIME_DIR"
unset DISPLAY WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS GNOME_KEYRING_CONTROL

cat > "$HOME/bus.conf" <<CONF
<busconfig>
  <type>session</type>
  <listen>unix:dir=$XDG_RUNTIME_DIR</listen>
  <policy context="default">
    <allow send_destination="*"/>
    <allow eavesdrop="false"/>
    <allow own="*"/>
  </policy>
</busconfig>
CONF

dbus-run-session --config-file="$HOME/bus.conf" -- "$@"

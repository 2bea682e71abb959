#!/usr/bin/env bash
# install-packages.sh [real]: installs with apt the missing packages for building, testing and running, and with "real"
# those of the programs that `make test-real` runs against. Asks nothing; quick when none is missing.
set -euo pipefail

packages=(
  # compiler and build
  g++ cmake ninja-build make pkg-config ccache
  # libraries
  qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libgl-dev
  libsecret-1-dev libgtest-dev libbenchmark-dev
  # pictures and fonts (the second has the Japanese and Chinese letters)
  librsvg2-bin fonts-inter fonts-dejavu-core fonts-noto-cjk fontconfig
  # Qt's own texts in other languages
  qt6-translations-l10n
  # the tests switch accessibility on
  qt6-base-private-dev
  # a keychain for the tests, on a bus of its own
  dbus gnome-keyring
  # desktops for the tests: X with a window manager, Wayland, the accessibility bus
  xvfb openbox weston qt6-wayland at-spi2-core libxcb1-dev libxcb-xtest0-dev
  # the Debian package
  dpkg-dev file
  # certificates for the sandbox's https
  openssl
  # lint, and the checks of the documents
  clang-format clang-tidy python3 git
)

if [[ ${1-} == real ]]; then
  packages=(chromium keepassxc gnome-keyring dbus dnsmasq-base nginx openssl iproute2 util-linux)
fi

installed=$(dpkg-query -W -f '${db:Status-Abbrev} ${Package}\n' "${packages[@]}" 2>/dev/null | sed -n 's/^ii *//p' || true)
mapfile -t missing < <(printf '%s\n' "${packages[@]}" | grep -vxF "$installed")
((${#missing[@]})) || exit 0

as_root=()
((EUID == 0)) || as_root=(sudo)
echo "Installing: ${missing[*]}"
"${as_root[@]}" apt-get update -q
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}" </dev/null

#!/usr/bin/env bash
# Builds and tests this checkout under Debian 13, in a chroot below the build folder: test-debian13.sh BUILD_FOLDER
# The chroot stays for the next run. It has mounts and processes of its own, which end with this script, however it ends.
set -euo pipefail

[[ ${1:-} ]] || { echo "usage: $0 BUILD_FOLDER" >&2; exit 2; }
if ((EUID != 0)); then
  echo "A chroot needs root: asking for it with sudo."
  exec sudo --preserve-env=JOBS,http_proxy "$0" "$@"
fi
[[ ${KZ_NAMESPACE:-} == own ]] || KZ_NAMESPACE=own exec unshare --mount --pid --fork --kill-child "$0" "$@"

source=$(cd "$(dirname "$0")/.." && pwd)
mkdir -p "$1"
root=$(cd "$1" && pwd)/debian13
exec 9>"$root.lock"
flock 9  # one run at a time

if [[ ! -d $root ]]; then
  command -v debootstrap >/dev/null || DEBIAN_FRONTEND=noninteractive apt-get install -y -q debootstrap </dev/null
  mirror=$(apt-get indextargets --format '$(LABEL) $(REPO_URI)' 'Identifier: Packages' | sed -n '/^Debian /{s///p;q}')
  [[ $mirror ]] || { echo "apt knows no Debian mirror: try apt-get update" >&2; exit 1; }
  # Only a finished chroot gets the name.
  rm -rf "$root.unfinished"
  debootstrap --variant=minbase trixie "$root.unfinished" "$mirror"
  mv "$root.unfinished" "$root"
fi

# At its own path, since a second work tree knows its repository by path.
repository=$(git -c safe.directory='*' -C "$source" rev-parse --path-format=absolute --git-common-dir)
for folder in "$source" "$repository"; do
  mkdir -p "$root$folder"
  mount --bind "$folder" "$root$folder"
  mount -o remount,bind,ro "$root$folder"
done
mount -t proc proc "$root/proc"
mount --rbind /dev "$root/dev"
cp /etc/resolv.conf "$root/etc/resolv.conf"

chroot "$root" env -i HOME=/root LANG=C.UTF-8 PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
  JOBS="${JOBS:-$(nproc)}" ${http_proxy:+http_proxy="$http_proxy"} \
  sh -ec 'cd "$1"; tools/install-packages.sh; make test BUILD=/build' sh "$source"

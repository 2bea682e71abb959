#!/usr/bin/env bash
# sdk-test.sh BUILD WORK [CMAKE ARGUMENTS...]: installs that build, moves the prefix, and builds and runs a host from
# nothing else.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
build=$1
work=$2
shift 2

fail() {
  echo "FAIL: $*" >&2
  exit 1
}

# The text between the fences of a language in the document must be that file's.
document_shows() {
  sed -n "/^\`\`\`$1\$/,/^\`\`\`\$/p" "$root/docs/sdk.md" | sed '/^```/d' | diff - "$2" >&2 ||
    fail "docs/sdk.md shows another text than $2"
}

# Nothing may be found in the build folder, which is still there: not by a library path, not by CMake.
only_from_prefix() {
  local file
  for file in "$prefix"/bin/* "$prefix"/lib/brenn-mivra/*.so "$work/out/small-host"; do
    ldd "$file" | grep -E 'not found|libKZ' | grep -vF "=> $prefix/" && fail "$file needs another place"
  done
  if grep -rlF -e "$build/lib" -e "$root/host" "$prefix/lib/cmake"; then fail "the package names the build"; fi
}

document_shows cpp "$here/host/main.cpp"
document_shows cmake "$here/host/CMakeLists.txt"

rm -rf "$work"
mkdir -p "$work"
cmake --install "$build" --prefix "$work/before" >"$work/install.log"
prefix=$work/prefix
mv "$work/before" "$prefix"

cp -r "$here/host" "$work/host"
cmake -S "$work/host" -B "$work/out" -DCMAKE_PREFIX_PATH="$prefix" "$@"
cmake --build "$work/out"
only_from_prefix

cd "$work"
export XDG_CONFIG_HOME=$work/config QT_FORCE_STDERR_LOGGING=1
timeout 60 "$work/out/small-host" --once 2>&1 | tee host.log
grep -q '^open: "' host.log || fail "the window did not open"

printf '%s\n' '{"command": 2}' '{"get": "window"}' >script
"$prefix/bin/prefs-session" script | tee session.log
grep -q '"visible":true' session.log || fail "prefs-session opened no window"

cp "$here/exports.cpp" "$work/host/main.cpp"
cmake --build "$work/out"
timeout 60 "$work/out/small-host" || fail "the plug-in does not offer what its headers say"

# Every header that exports or declares an interface is part of the SDK, and needs none that is not.
while IFS= read -r header; do
  [[ -f $prefix/include/brenn-mivra/$header ]] || fail "the SDK lacks $header"
done < <(cd "$root" &&
  grep -rlE 'KZ_HOST_EXPORT [A-Za-z]|KZ_EXPORTED_CONSTANT c|Q_DECLARE_INTERFACE' --include='*.h' host KZPreference)
(cd "$prefix/include/brenn-mivra" && find . -name '*.h' | sort | sed 's/.*/#include "&"/') >"$work/host/main.cpp"
echo 'int main() {}' >>"$work/host/main.cpp"
cmake --build "$work/out"

#!/usr/bin/env bash
# packaging/trial.sh tries what scripts/package has made on a bare Debian 12: it installs the
# package, leads the installed program through its windows by keys, and removes it; then it does the
# same with the archive, unpacked into a folder that is moved afterwards. Needs root.
source "$(dirname "${BASH_SOURCE[0]}")/../scripts/lib.sh"
need mmdebstrap "${desktop_packages[@]}"

made=$PWD/build/packages
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
# Debian's packages come from where this machine gets its own.
sources=/etc/apt/sources.list.d/debian.sources
[[ -e $sources ]] || sources=/etc/apt/sources.list
mmdebstrap --quiet --variant=apt bookworm "$root" - <"$sources"
# A path of the root means the same file inside and outside of it.
mkdir -p "$root$(dirname "$root")" "$root/walk"
ln -s / "$root$root"

inside() { chroot "$root" env DEBIAN_FRONTEND=noninteractive LC_ALL=C "$@"; }
install() { inside apt-get -qq -y install --no-install-recommends "$@" >/dev/null; }

# walk PROGRAM leads it through its windows; the screen and the hands are those of this machine.
walk() {
  printf '#!/bin/sh\nexec chroot "%s" "%s"\n' "$root" "$1" >"$root/walk/raster-mill"
  chmod +x "$root/walk/raster-mill"
  cp build/release/bin/make-samples "$root/walk"
  TMPDIR=$root/walk tests/desktop/keys.sh "$root/walk" "$root/walk/out"
  echo "$1 has converted $(ls "$root/walk/out/converted" | wc -l) pictures."
}

everything() { inside find / -xdev -name '*raster*mill*' -not -path '/walk/*' -not -path '/tmp/*'; }

inside apt-get -qq update
cp "$made"/*.deb "$root/tmp/package.deb"
install /tmp/package.deb
everything
walk /usr/bin/raster-mill
inside apt-get -qq -y purge raster-mill >/dev/null
[[ ! $(everything) ]] || { echo "left behind: $(everything)" >&2; exit 1; }
echo "Removed without a rest."

install libqt6widgets6 libqt6dbus6 fonts-liberation
mkdir "$root/opt/first" && tar -xzf "$made"/*.tar.gz -C "$root/opt/first"
mv "$root/opt/first" "$root/opt/moved"
walk "/$(cd "$root" && echo opt/moved/*/bin/raster-mill)"

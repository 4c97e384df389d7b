# shellcheck shell=bash disable=SC2034
# Sourced by the scripts in this folder: changes to the top of the source tree and can install
# packages.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Debian 12 packages, by purpose.
build_packages=(qt6-base-dev cmake ninja-build g++ fonts-liberation)
test_packages=(libgtest-dev libbenchmark-dev fonts-dejavu-core)
desktop_packages=(xvfb openbox xdotool imagemagick netpbm)
wayland_packages=(weston sway wtype grim qt6-wayland)
fuzz_packages=(clang libclang-rt-14-dev)
package_packages=(dpkg-dev file lintian appstream desktop-file-utils)
page_packages=(python3-matplotlib python3-pil imagemagick netpbm)
format_packages=(clang-format)

# need PACKAGE... installs those that are missing. If none is, it neither asks for a password
# nor uses the network.
need() {
  local package missing=() as_root=()
  for package; do
    dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed ||
      missing+=("$package")
  done
  ((${#missing[@]})) || return 0

  echo "Installing with apt-get: ${missing[*]}"
  if ((EUID != 0)); then
    command -v sudo >/dev/null || {
      echo "There is no sudo here; install these packages as root and start again." >&2
      return 1
    }
    as_root=(sudo)
  fi
  "${as_root[@]}" apt-get -q update
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get -q -y install --no-install-recommends "${missing[@]}"
}

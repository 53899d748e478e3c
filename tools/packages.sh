#!/usr/bin/env bash
# Installs those Debian packages of the named lists that are missing:
#   tools/packages.sh LIST...
set -euo pipefail
source "$(dirname "$(readlink -f "$0")")/usage.sh"

# CMake looks for the test library when it configures, so building needs it too.
declare -A lists=(
  [build]="g++ cmake ninja-build qt6-base-dev qt6-svg-dev libgtest-dev
    libxcb1-dev libxcb-composite0-dev libxcb-shape0-dev libxcb-xkb-dev
    fonts-liberation fonts-dejavu-core
    librsvg2-bin"
  [help]="xdg-utils"
  [wayland]="qt6-wayland"
  [display]="x11-utils"
  [virtual_display]="xvfb openbox x11-utils xdotool imagemagick xclip"
  [desktops]="mutter metacity kwin-x11 kwin-style-breeze xfwm4 xfconf icewm fluxbox
    marco mate-settings-daemon-common picom weston xwayland dbus"
  [spoken]="orca at-spi2-core dbus-daemon libglib2.0-bin python3 xvfb openbox x11-utils xdotool"
  [package]="debhelper"
  [windows]="g++-mingw-w64-x86-64-posix dpkg-dev icoutils zip googletest"
  [test]="clang-format locales metacity i3-wm picom g++-mingw-w64-x86-64-posix wine wine64 googletest
    lintian desktop-file-utils appstream unzip"
  [chroot]="debootstrap"
  [bench]="libbenchmark-dev"
  [fuzz]="clang libclang-rt-14-dev"
  [lint]="clang-tidy shellcheck"
  [processors]="g++-aarch64-linux-gnu g++-s390x-linux-gnu g++-i686-linux-gnu qemu-user googletest"
  [memcheck]="valgrind"
)

missing=()
for list in "$@"; do
  for package in ${lists[$list]}; do
    dpkg-query -Wf '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed ||
      missing+=("$package")
  done
done
((${#missing[@]})) || exit 0

if ! command -v apt-get >/dev/null; then
  echo "Not a Debian system; going on without these packages: ${missing[*]}" >&2
  exit 0
fi
echo "Installing ${missing[*]}"
apt=(env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300)
if ((EUID)); then
  { command -v sudo >/dev/null && sudo -v; } || {
    echo "An administrator must run: apt-get install ${missing[*]}" >&2
    exit 1
  }
  apt=(sudo "${apt[@]}")
fi
# A foreign source that cannot be reached need not hinder the packages wanted here.
"${apt[@]}" update || true
"${apt[@]}" install -y --no-install-recommends "${missing[@]}" </dev/null >/dev/null

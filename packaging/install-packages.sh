#!/usr/bin/env bash
# Installs what is missing of the Debian packages that are named below. The sets: build (to build and run), test (to
# build and run the tests), window (to show a window where there is no display), check (to check the code).
set -eu

build="g++ cmake ninja-build qt6-base-dev libqt6svg6 libqscintilla2-qt6-dev breeze-icon-theme fonts-dejavu-core"
test="libgtest-dev libbenchmark-dev python3"
window="xvfb openbox xdotool imagemagick x11-utils"
check="clang-format clang-tidy ccache"

wanted=""
for set in "$@"; do
  case $set in
    build) wanted="$wanted $build" ;;
    test) wanted="$wanted $test" ;;
    window) wanted="$wanted $window" ;;
    check) wanted="$wanted $check" ;;
    *) echo "install-packages: no set named $set" >&2; exit 2 ;;
  esac
done

missing=""
for package in $wanted; do
  [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)" = installed ] || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

as_root=""
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || { echo "These packages are missing, and sudo is not there to install them:$missing" >&2; exit 1; }
  as_root=sudo
fi
echo "Installing:$missing"
# shellcheck disable=SC2086
{
  $as_root apt-get update -qq
  $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null
}

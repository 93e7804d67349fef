#!/usr/bin/env bash
# Installs what is missing, builds Zolto and opens it on the sample project. Where there is no display it does so
# under a virtual one, checks and runs the sample, and leaves a picture of the window in build/zolto.png.
set -eu
cd "$(dirname "$0")"

has_display=no
if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then has_display=yes; fi

if [ $has_display = yes ]; then packaging/install-packages.sh build; else packaging/install-packages.sh build window; fi
[ -e build/CMakeCache.txt ] || cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=Release -DZOLTO_TESTS=OFF -DZOLTO_BENCH=OFF >/dev/null
cmake --build build --target zolto appdir blitzcc

sample=$PWD/examples/DeepVein/DeepVein.zpf
if [ $has_display = yes ]; then
  echo "Opening $sample"
  exec build/app/zolto "$@" "$sample"
fi

compiler=build/app/Compilers/ZoltoBasic/bin/blitzcc
echo "No display: checking and running the sample, then a picture of the window."
"$compiler" -c examples/DeepVein/DeepVein.bb | tail -n 1
"$compiler" examples/DeepVein/DeepVein.bb -quiet | tail -n 5

# The settings of this run are its own: it must not change what the user has.
scratch=$(mktemp -d)
export XDG_CONFIG_HOME=$scratch XDG_RUNTIME_DIR=$scratch
pids=""
finish() {
  # shellcheck disable=SC2086
  kill $pids 2>/dev/null || true
  wait 2>/dev/null || true
  rm -rf "$scratch"
}
trap finish EXIT


exec 3>"$scratch/number"
Xvfb -displayfd 3 -screen 0 1360x850x24 -nolisten tcp >/dev/null 2>&1 &
pids="$!"
for _ in $(seq 100); do [ -s "$scratch/number" ] && break; sleep 0.1; done
DISPLAY=:$(cat "$scratch/number")
export DISPLAY
openbox >/dev/null 2>&1 &
pids="$! $pids"
build/app/zolto "$sample" >"$scratch/log" 2>&1 &
zolto=$!
pids="$zolto $pids"

window=""
for _ in $(seq 150); do
  window=$(xdotool search --pid $zolto --onlyvisible --name 'Zolto' 2>/dev/null | tail -n 1 || true)
  [ -n "$window" ] && break
  kill -0 $zolto 2>/dev/null || { cat "$scratch/log"; echo "Zolto ended before its window came"; exit 1; }
  sleep 0.1
done
[ -n "$window" ] || { cat "$scratch/log"; echo "No window came"; exit 1; }
sleep 1
xdotool key F5 # Compile and Run
sleep 3
import -window root build/zolto.png
kill -0 $zolto 2>/dev/null || { cat "$scratch/log"; echo "Zolto ended"; exit 1; }
echo "The window with the running sample: build/zolto.png"

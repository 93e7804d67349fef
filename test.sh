#!/usr/bin/env bash
# Installs what is missing, builds everything and runs all tests. With --asan the same under the address and the
# undefined behaviour sanitizers, in a build folder of its own. Anything else is handed to ctest.
set -eu
cd "$(dirname "$0")"

folder=build
options="-DCMAKE_BUILD_TYPE=Release -DZOLTO_ASAN=OFF"
if [ "${1:-}" = --asan ]; then
  shift
  folder=build-asan
  # The leak check is off: the toolkit and the font library keep what they made until the process ends.
  export ASAN_OPTIONS=detect_leaks=0
  options="-DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O1 -DZOLTO_ASAN=ON"
fi

packaging/install-packages.sh build test
# shellcheck disable=SC2086
cmake -S . -B $folder -G Ninja $options -DZOLTO_TESTS=ON -DZOLTO_BENCH=ON >/dev/null
cmake --build $folder
export QT_QPA_PLATFORM=offscreen
ctest --test-dir $folder --output-on-failure -j "$(nproc)" "$@"

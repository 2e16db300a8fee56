#!/bin/sh
# Sets up a fresh Debian 12 machine, builds Evida and runs the whole test suite.
set -eu
cd "$(dirname "$0")/.."
./scripts/setup.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build -j "$(nproc)"
cd build
# GUI and print tests need a display; xvfb-run gives them a virtual one.
xvfb-run -a ctest --output-on-failure -j "$(nproc)"

#!/bin/sh
# Sets up a fresh Debian 12 machine, builds Evida and starts it.
set -eu
cd "$(dirname "$0")/.."
./scripts/setup.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DEVIDA_BUILD_TESTS=OFF
cmake --build build -j "$(nproc)" --target evida evida-cli
exec ./build/evida

#!/bin/sh
# Builds everything with AddressSanitizer and UndefinedBehaviorSanitizer in build-asan and
# runs the test suite there. Pass a ctest regular expression to run only some tests:
#   scripts/sanitize.sh                 # everything (the GUI tests under ASan take long)
#   scripts/sanitize.sh '^(Lifecycle|Checks)'
set -eu
cd "$(dirname "$0")/.."
root=$(pwd)
# The test programs run at build time too (test discovery); they need the same options.
export LSAN_OPTIONS="suppressions=$root/tests/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
export ASAN_OPTIONS="detect_leaks=1"
export CCACHE_BASEDIR="${CCACHE_BASEDIR:-$root}"
launcher=""
command -v ccache >/dev/null 2>&1 && launcher="-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"
cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=RelWithDebInfo -DEVIDA_SANITIZE=ON $launcher
cmake --build build-asan -j"${JOBS:-2}"
cd build-asan
if [ $# -gt 0 ]; then
    xvfb-run -a ctest --output-on-failure -j"${JOBS:-2}" -R "$1"
else
    xvfb-run -a ctest --output-on-failure -j"${JOBS:-2}"
fi

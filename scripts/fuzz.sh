#!/bin/sh
# Builds the fuzz drivers with the address and undefined-behaviour sanitizers in build-fuzz
# and runs each for the given number of seconds (default 60), seeded from fuzz/corpus/<driver>/.
# A fault stops the run; the input that caused it is saved in build-fuzz/findings/ and can be
# run again with: build-fuzz/fuzz/fuzz_<driver> --replay FILE
set -eu
cd "$(dirname "$0")/.."
seconds="${1:-60}"
export CCACHE_BASEDIR="${CCACHE_BASEDIR:-$PWD}"
launcher=""
command -v ccache >/dev/null 2>&1 && launcher="-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"
flags="-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer"
cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DEVIDA_FUZZ=ON -DEVIDA_BUILD_TESTS=OFF $launcher \
  -DCMAKE_CXX_FLAGS="$flags" -DCMAKE_EXE_LINKER_FLAGS="-fsanitize=address,undefined" >/dev/null
cmake --build build-fuzz -j "${JOBS:-2}" --target fuzz_denikimport fuzz_kurzlistek fuzz_gpc fuzz_camt053 fuzz_csvvypis
# Leaks of the one-time set-up (wxWidgets' globals) are not what is looked for here.
export ASAN_OPTIONS="detect_leaks=0:abort_on_error=1"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
export TZ=Europe/Prague
status=0
for driver in denikimport kurzlistek gpc camt053 csvvypis; do
  build-fuzz/fuzz/fuzz_$driver "$seconds" fuzz/corpus/$driver build-fuzz/findings || status=1
done
exit $status

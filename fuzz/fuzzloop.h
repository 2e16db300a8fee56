// A plain in-process fuzz loop that needs no special compiler: it feeds random inputs and
// mutations of a corpus to a driver's LLVMFuzzerTestOneInput for a given number of seconds.
// Built with address and undefined-behaviour sanitizers (scripts/fuzz.sh) it stops at the
// first fault and saves the input that caused it. The drivers keep libFuzzer's entry points,
// so they link with clang's -fsanitize=fuzzer as well.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);

// A driver names what an input led to ("refused on line 3: ...", "stored 4"); an input with an
// outcome not seen before joins the corpus, which steers the loop towards new behaviour.
extern "C" void evidaFuzzOutcome(const char* outcome, size_t length) __attribute__((weak));

// Stops the run when a driver's invariant does not hold, naming it; the input is saved.
[[noreturn]] void fuzzFail(const std::string& what);

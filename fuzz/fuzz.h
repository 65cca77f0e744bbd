// What fuzz targets share. A target defines LLVMFuzzerTestOneInput and compares what the library
// makes of the bytes with the plain transcription of the same rules that the tests use.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace qx::fuzz {

// Stops the program, which makes libFuzzer keep the input, when `holds` is false.
inline void Require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "Not so: %s\n", what);
    std::abort();
}

}  // namespace qx::fuzz

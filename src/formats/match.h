// What the searches of the compressor answer.
#pragma once

#include <cstdint>

namespace qx {

// The longest prefix of the rest of a text that occurs wholly before it, at its latest occurrence.
struct Match {
    std::uint32_t length = 0;  // below 4 when there is none worth looking at
    std::uint32_t distance = 0;
};

}  // namespace qx

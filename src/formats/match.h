// What the searches of the compressor answer.
#pragma once

#include <cstdint>

namespace qx {

constexpr std::uint32_t kShortestMatch = 4;
// A match of four bytes saves space up to this distance.
constexpr std::uint32_t kFarthestFour = 127;

// The longest prefix of the rest of a text that occurs wholly before it, at its latest occurrence.
struct Match {
    std::uint32_t length = 0;  // 0 when it is below kShortestMatch
    std::uint32_t distance = 0;
};

}  // namespace qx

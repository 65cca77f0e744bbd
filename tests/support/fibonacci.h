// The text that is hardest on searches for repetitions: all of it occurs before, at every scale.
#pragma once

#include <cstddef>
#include <string>
#include <utility>

namespace qx::test {

// The first bytes of the Fibonacci string of "a" and "b".
inline std::string Fibonacci(std::size_t size)
{
    std::string text = "a", before = "b";
    while (text.size() < size)
        before = std::exchange(text, text + before);
    text.resize(size);
    return text;
}

}  // namespace qx::test

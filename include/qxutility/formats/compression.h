// A compressor of strings with a format of its own, for texts that applications keep in their
// files.
//
// The first byte is the escape byte, the rarest in the text. Then follow tokens: a literal byte;
// the escape byte and 0, for the escape byte itself; or the escape byte and two numbers L and D,
// for the L bytes that stand D bytes back. Numbers are written in base 128, highest group first,
// every group but the last with its top bit set.
#pragma once

#include <qxutility/export.h>

#include <cstddef>
#include <string>

// The longest text, in bytes, that the simple form of Compression::Uncompress restores.
inline constexpr std::size_t kUncompressLimit = std::size_t{1} << 30;

// No object holds anything; both directions may run on any number of threads at once.
class QX_API Compression {
  public:
    // Why a text could not be restored whole.
    enum class Fault {
        None,
        Cut,             // the input ends within a token
        NumberTooLarge,  // of more than five groups or 32 bits
        BadDistance,     // 0, or to before the start of the text
        TooLong,         // the next token would go beyond the limit
        NoMemory,
    };

    // Returns the compressed form of all bytes of `input`, NUL bytes included; at most 1/256 and
    // one byte longer than it, empty for an empty one. The same input gives the same bytes in every
    // version: at each place the longest earlier occurrence of what follows, wholly before the
    // place, the nearest of equally long ones, where that saves space.
    static std::string Compress(const std::string& input) noexcept;

    // Restores a text up to its first NUL byte: meant for texts without any. Of an input that
    // Compress did not write, it returns what stands before the first fault, or before the token
    // that would make the text longer than kUncompressLimit. Input from untrusted places is better
    // restored with the other form.
    static std::string Uncompress(const std::string& input) noexcept;

    // Restores all bytes, NUL bytes included, up to `limit` bytes. In case of a fault, `output` has
    // the bytes before the faulty token. `input` and `output` may be one string.
    static Fault Uncompress(const std::string& input, std::string& output,
                            std::size_t limit) noexcept;
};

// Texts from system calls that take a buffer and its size.
#pragma once

#include <qxutility/types.h>

#include <string>

namespace qx::win32 {

// Calls `call(buffer, size)`, which returns the length of the text that it put there, or what fills
// the buffer or more when that was too small, with a larger buffer each time until the text fits.
template <typename Call>
std::string GrowingText(Call call)
{
    std::string text(256, '\0');
    for (;;) {
        const auto size = static_cast<DWORD>(text.size());
        const auto length = static_cast<std::size_t>(call(text.data(), size));
        if (length + 2 < size) {  // a two-byte character may have been left out
            text.resize(length);
            return text;
        }
        text.resize(2 * text.size());
    }
}

}  // namespace qx::win32

#include <qxutility/core/text.h>

#include <algorithm>
#include <cstring>

char* rstrncpy(char* dst, const char* src, unsigned size)
{
    if (size == 0)
        return dst;
    const std::size_t length = std::min<std::size_t>(size - 1, std::strlen(src));
    std::memcpy(dst, src, length);
    dst[length] = '\0';
    return dst;
}

#include "platform/files.h"

#include <qxutility/formats/text_file.h>

#include <cstring>

namespace {

constexpr std::size_t kBufferSize = 1024;
// From here on the buffer is filled anew: before it at least 383 bytes are unread, the length of
// the longest line that the function is meant for.
constexpr std::size_t kRefillPosition = 641;

struct Progress {
    std::uint64_t bufferOffset = 0;  // in the file
    std::size_t position = 0;        // in the buffer
    std::size_t count = 0;           // bytes in the buffer
};

Progress progress;

bool Refill(int file, char* buffer)
{
    const std::uint64_t offset = progress.bufferOffset + progress.position;
    const auto count = qx::platform::ReadFrom(file, offset, buffer, kBufferSize);
    if (!count)
        return false;
    progress = {offset, 0, *count};
    return true;
}

}  // namespace

int GetNextLine(int file, char* buffer, char* line, bool restart)
{
    if (restart)
        progress = {};
    if ((restart || progress.position >= kRefillPosition) && !Refill(file, buffer))
        return 1;
    if (progress.position > progress.count)
        return 1;
    char* const begin = buffer + progress.position;
    void* const end = std::memchr(begin, '\r', progress.count - progress.position);
    if (!end)
        return 1;
    *static_cast<char*>(end) = '\0';
    std::memcpy(line, begin, std::strlen(begin) + 1);
    progress.position = static_cast<std::size_t>(static_cast<char*>(end) - buffer) + 2;
    return 0;
}

// The CRC of a file.
#pragma once

#include <cstdint>

namespace qx {

struct FileCrc {
    std::uint32_t crc;          // 0 for a file that cannot be opened
    std::uint32_t systemError;  // why it cannot be opened; 0 when it can
};
FileCrc CrcOfFile(const char* path);

}  // namespace qx

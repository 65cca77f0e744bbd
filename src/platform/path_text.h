// The parts of a path's text.
#pragma once

#include <qxutility/types.h>

#include <string_view>

namespace qx::platform {

// What stands between the parts of a path that is put together.
inline constexpr char kSeparator = QX_WINDOWS ? '\\' : '/';

// The part of `path` up to and with its last separator; empty for a bare name.
inline std::string_view FolderPart(std::string_view path)
{
#if QX_WINDOWS
    std::size_t end = 0;
    for (std::size_t i = 0; i < path.size(); ++i) {
        if (::IsDBCSLeadByte(static_cast<BYTE>(path[i])))
            ++i;  // the second byte of a character may look like a backslash
        else if (path[i] == '\\' || path[i] == '/' || path[i] == ':')
            end = i + 1;
    }
    return path.substr(0, end);
#else
    return path.substr(0, path.rfind('/') + 1);
#endif
}

}  // namespace qx::platform

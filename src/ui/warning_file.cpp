#include "ui/warning_file.h"

#include "platform/files.h"

namespace qx {

bool SaveLines(const char* path, std::span<const std::string> texts)
{
    std::string content;
    for (const std::string& text : texts)
        content.append(text).append("\r\n");
    platform::File file(path, platform::FileMode::CreateExclusive);
    if (!file)
        return false;
    const bool written = file.Write(content);
    const bool saved = file.Close() && written;
    if (!saved)
        platform::RemoveFile(path);
    return saved;
}

}  // namespace qx

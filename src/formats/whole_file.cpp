#include "formats/whole_file.h"

#include "platform/files.h"

namespace qx {

using platform::File;
using platform::FileMode;

bool WriteWholeFile(const char* path, std::string_view bytes)
{
    if (!path || *path == '\0')
        return false;
    platform::RemoveTemporariesBeside(path);
    const std::string name = platform::TemporaryNameBeside(path);
    File file(name.c_str(), FileMode::CreateNew);
    if (!file)
        return false;
    const bool isWritten = file.Write(bytes);
    if (file.Close() && isWritten && platform::MoveOver(name.c_str(), path))
        return true;
    platform::RemoveFile(name.c_str());
    return false;
}

}  // namespace qx

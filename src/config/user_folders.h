// The user's folders, asked for once per process where applications rely on that.
#pragma once

#include "platform/directories.h"

namespace qx {

// The folder, or the system's when there is none. AppData and LocalAppData are remembered.
std::string UserFolderPath(platform::UserFolder folder);

}  // namespace qx

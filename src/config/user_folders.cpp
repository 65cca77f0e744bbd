#include "config/user_folders.h"

#include "config/process.h"

namespace qx {

static std::string FindFolder(platform::UserFolder folder)
{
    std::string path = platform::FindUserFolder(folder);
    return path.empty() ? platform::SystemFolder() : path;
}

static std::string* CacheOf(platform::UserFolder folder)
{
    DirectoryCache& cache = Process().directories;
    switch (folder) {
        case platform::UserFolder::AppData:
            return &cache.appData;
        case platform::UserFolder::LocalAppData:
            return &cache.localAppData;
        default:
            return nullptr;
    }
}

std::string UserFolderPath(platform::UserFolder folder)
{
    std::string* cached = CacheOf(folder);
    if (!cached)
        return FindFolder(folder);
    if (cached->empty())
        *cached = FindFolder(folder);
    return *cached;
}

}  // namespace qx

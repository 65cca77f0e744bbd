#include "platform/path_search.h"

#include "platform/path_text.h"

#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace qx::platform {

static bool IsProgram(const std::string& path)
{
    struct stat status;
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
           ::access(path.c_str(), X_OK) == 0;
}

static std::string FullPath(const std::string& path)
{
    std::error_code error;
    return std::filesystem::absolute(path, error).string();
}

// Looks for a bare name in the folders of a PATH text; an empty one is the current folder.
static std::string SearchFolders(std::string_view folders, const std::string& name)
{
    for (;;) {
        const std::size_t end = folders.find(':');
        std::string path(folders.substr(0, end));
        path = path.empty() ? name : path + "/" + name;
        if (IsProgram(path))
            return FullPath(path);
        if (end == std::string_view::npos)
            return {};
        folders.remove_prefix(end + 1);
    }
}

static std::string Search(const std::string& name)
{
    if (!FolderPart(name).empty())
        return IsProgram(name) ? FullPath(name) : std::string();
    const char* folders = std::getenv("PATH");
    return SearchFolders(folders ? folders : "/usr/local/bin:/bin:/usr/bin", name);
}

static bool HasExtension(std::string_view name)
{
    return name.substr(FolderPart(name).size()).find('.') != std::string_view::npos;
}

std::string FindProgram(const char* name, const char* extension)
{
    if (!name || !*name)
        return {};
    std::string found = Search(name);
    if (found.empty() && extension && *extension && !HasExtension(name))
        found = Search(std::string(name) + extension);
    return found;
}

}  // namespace qx::platform

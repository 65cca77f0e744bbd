#include "platform/path_search.h"

#include "platform/module.h"
#include "platform/path_text.h"

#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace qx::platform {

using IsWanted = bool(const std::string& path);

static bool IsFile(const std::string& path)
{
    struct stat status;
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

static bool IsProgram(const std::string& path)
{
    return IsFile(path) && ::access(path.c_str(), X_OK) == 0;
}

static std::string FullPath(const std::string& path)
{
    std::error_code error;
    return std::filesystem::absolute(path, error).string();
}

// Looks for a bare name in the folders of a PATH text; an empty one is the current folder.
static std::string SearchFolders(std::string_view folders, const std::string& name,
                                 IsWanted* isWanted)
{
    for (;;) {
        const std::size_t end = folders.find(':');
        std::string path(folders.substr(0, end));
        path = path.empty() ? name : path + "/" + name;
        if (isWanted(path))
            return FullPath(path);
        if (end == std::string_view::npos)
            return {};
        folders.remove_prefix(end + 1);
    }
}

static std::string Search(const std::string& name, const std::string& folders, IsWanted* isWanted)
{
    if (!FolderPart(name).empty())
        return isWanted(name) ? FullPath(name) : std::string();
    return SearchFolders(folders, name, isWanted);
}

static std::string PathVariable()
{
    const char* folders = std::getenv("PATH");
    return folders ? folders : "/usr/local/bin:/bin:/usr/bin";
}

static bool HasExtension(std::string_view name)
{
    return name.substr(FolderPart(name).size()).find('.') != std::string_view::npos;
}

// The name as it stands in all folders, then with the extension.
static std::string SearchBoth(const char* name, const char* extension, const std::string& folders,
                              IsWanted* isWanted)
{
    if (!name || !*name)
        return {};
    std::string found = Search(name, folders, isWanted);
    if (found.empty() && extension && *extension && !HasExtension(name))
        found = Search(std::string(name) + extension, folders, isWanted);
    return found;
}

std::string FindProgram(const char* name, const char* extension)
{
    return SearchBoth(name, extension, PathVariable(), IsProgram);
}

std::string FindFile(const char* name, const char* extension)
{
    if (!name || !*name)
        return {};
    std::string found;
    if (FolderPart(name).empty())
        found = SearchBoth((ModuleFolder(nullptr) + name).c_str(), extension, {}, IsFile);
    return found.empty() ? SearchBoth(name, extension, ":" + PathVariable(), IsFile) : found;
}

}  // namespace qx::platform

#include "config/process.h"
#include "config/product_ini.h"
#include "config/user_folders.h"
#include "env/work_directories.h"
#include "platform/files.h"
#include "platform/path_text.h"
#include "platform/profile.h"

#include <qxutility/core/text.h>
#include <qxutility/env/directories.h>

#include <cstring>
#include <string>
#include <utility>
#include <vector>

using qx::platform::kSeparator;
using qx::platform::UserFolder;

static std::string WithoutFinalSeparator(std::string path)
{
    if (path.size() > 1 && path.back() == kSeparator)
        path.pop_back();
    return path;
}

static std::string WorkDirectory(DirTypes kind, bool reload)
{
    const char* key = qx::WorkDirectoryKey(kind);
    if (!key)
        return {};
    std::string& path = qx::Process().directories.fromIni[static_cast<std::size_t>(kind)];
    const std::string& iniFile = qx::ProductIni("ZRW", "KVL.INI");
    if (path.empty() || reload)
        path =
            qx::platform::ProfileValue(qx::kDirectorySection, key, "", MAX_PATH, iniFile.c_str());
    return WithoutFinalSeparator(path);
}

static std::string Directory(DirTypes kind, bool reload)
{
    switch (kind) {
        case DIR_APPDATA:
            return qx::UserFolderPath(UserFolder::AppData);
        case DIR_LOCALAPPDATA:
            return qx::UserFolderPath(UserFolder::LocalAppData);
        case DIR_DOCUMENTS:
            return qx::UserFolderPath(UserFolder::Documents);
        case DIR_COOKIES:
            return qx::UserFolderPath(UserFolder::Cookies);
        case DIR_INTERNETCACHE:
            return qx::UserFolderPath(UserFolder::InternetCache);
        default:
            return WorkDirectory(kind, reload);
    }
}

void GetDirectory(DirTypes kind, char* const dir, int reload)
{
    rstrncpy(dir, Directory(kind, reload != 0).c_str(), MAX_PATH);
}

// Calls `action` with the first `length` characters of a path.
template <typename Action>
static bool WithPrefix(std::string& path, std::size_t length, Action action)
{
    const char next = std::exchange(path[length], '\0');
    const bool result = action(path.c_str());
    path[length] = next;
    return result;
}

void SmartCreateDir(const char* path)
{
    std::string text = path ? path : "";
    std::vector<std::size_t> missing;  // lengths of the paths to be made, the longest first
    std::size_t rest = text.size();
    do {
        if (rest > 0 && text[rest - 1] == kSeparator)
            --rest;
        missing.push_back(rest);
        while (rest > 0 && text[rest - 1] != kSeparator)
            --rest;
    } while (rest > 0 && !WithPrefix(text, rest, qx::platform::FileExists));
    for (auto length = missing.rbegin(); length != missing.rend(); ++length)
        if (!WithPrefix(text, *length, qx::platform::FileExists))
            WithPrefix(text, *length, qx::platform::MakeDirectory);
}

char* GetDataFile(char* fileName, const char* extension)
{
    char* name = fileName + qx::platform::FolderPart(fileName).size();
    char* dot = std::strrchr(name, '.');
    char* end = dot ? dot : name + std::strlen(name);
    *end++ = '.';
    std::strcpy(end, extension);
    return fileName;
}

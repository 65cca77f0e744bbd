#include "platform/directories.h"

#include "core/ascii_case.h"
#include "platform/files.h"

#include <cstdlib>
#include <fstream>
#include <pwd.h>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace qx::platform {

static std::string WithoutFinalSlashes(std::string path)
{
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

// The value of an environment variable that names a folder; a relative path counts as none.
static std::string FolderVariable(const char* name)
{
    const char* value = std::getenv(name);
    return value && value[0] == '/' ? WithoutFinalSlashes(value) : std::string();
}

static std::string HomeOfAccount()
{
    std::vector<char> buffer(16384);
    passwd account;
    passwd* found = nullptr;
    ::getpwuid_r(::getuid(), &account, buffer.data(), buffer.size(), &found);
    return found && found->pw_dir ? WithoutFinalSlashes(found->pw_dir) : std::string();
}

static std::string InHome(const char* path)
{
    std::string home = FolderVariable("HOME");
    if (home.empty())
        home = HomeOfAccount();
    return home.empty() ? home : WithoutFinalSlashes(home + path);
}

static std::string BaseDirectory(const char* variable, const char* inHome)
{
    const std::string folder = FolderVariable(variable);
    return folder.empty() ? InHome(inHome) : folder;
}

// A line of user-dirs.dirs: XDG_DOCUMENTS_DIR="$HOME/Documents", or an absolute path.
static std::string DocumentsOfLine(std::string_view line)
{
    constexpr std::string_view kKey = "XDG_DOCUMENTS_DIR=\"", kHome = "$HOME/";
    if (!line.starts_with(kKey) || !line.ends_with('"') || line.size() == kKey.size())
        return {};
    line.remove_prefix(kKey.size());
    line.remove_suffix(1);
    if (line.starts_with(kHome))
        return InHome(std::string(line.substr(kHome.size() - 1)).c_str());
    return line.starts_with('/') ? WithoutFinalSlashes(std::string(line)) : std::string();
}

static std::string Documents()
{
    std::ifstream file(BaseDirectory("XDG_CONFIG_HOME", "/.config") + "/user-dirs.dirs");
    std::string line;
    while (std::getline(file, line))
        if (std::string folder = DocumentsOfLine(line); !folder.empty())
            return folder;
    return InHome("/Documents");
}

std::string FindUserFolder(UserFolder folder)
{
    switch (folder) {
        case UserFolder::AppData:
            return BaseDirectory("XDG_CONFIG_HOME", "/.config");
        case UserFolder::LocalAppData:
            return BaseDirectory("XDG_DATA_HOME", "/.local/share");
        case UserFolder::Documents:
            return Documents();
        case UserFolder::Cookies:
            return BaseDirectory("XDG_STATE_HOME", "/.local/state");
        default:
            return BaseDirectory("XDG_CACHE_HOME", "/.cache");
    }
}

std::string SystemFolder()
{
    return "/etc";
}

std::string SystemLibraryFolder()
{
    return "/usr/lib/qxutility";
}

std::string SpellingInFolder(const std::string& folder, const std::string& name)
{
    if (FileExists((folder + "/" + name).c_str()))
        return name;
    const auto entries = ListDirectory(folder.c_str());
    for (const DirectoryEntry& entry : entries ? *entries : std::vector<DirectoryEntry>())
        if (EqualIgnoringCase(entry.name.c_str(), name.c_str()))
            return entry.name;
    return name;
}

}  // namespace qx::platform

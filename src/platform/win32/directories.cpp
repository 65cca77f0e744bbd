#include "platform/directories.h"

#include "platform/library.h"
#include "win32/grow.h"

#include <shlobj.h>

namespace qx::platform {

static int ShellFolderOf(UserFolder folder)
{
    switch (folder) {
        case UserFolder::AppData:
            return CSIDL_APPDATA;
        case UserFolder::LocalAppData:
            return CSIDL_LOCAL_APPDATA;
        case UserFolder::Documents:
            return CSIDL_PERSONAL;
        case UserFolder::Cookies:
            return CSIDL_COOKIES;
        default:
            return CSIDL_INTERNET_CACHE;
    }
}

std::string FindUserFolder(UserFolder folder)
{
    using GetFolderPath = HRESULT WINAPI(HWND, int, HANDLE, DWORD, LPSTR);
    const Library shell("SHFolder.dll");
    const auto getFolderPath = shell.Find<GetFolderPath>("SHGetFolderPathA");
    char path[MAX_PATH] = "";
    if (getFolderPath)
        getFolderPath(nullptr, ShellFolderOf(folder), nullptr, 0, path);
    return path;
}

std::string SystemFolder()
{
    return win32::GrowingText(
        [](char* buffer, DWORD size) { return ::GetWindowsDirectoryA(buffer, size); });
}

std::string SystemLibraryFolder()
{
    return win32::GrowingText(
        [](char* buffer, DWORD size) { return ::GetSystemDirectoryA(buffer, size); });
}

std::string SpellingInFolder(const std::string&, const std::string& name)
{
    return name;
}

}  // namespace qx::platform

// The folders that the system gives its users and itself. Paths have no separator at their end.
#pragma once

#include <string>

namespace qx::platform {

//                     Windows: shell folder   POSIX: XDG directory
enum class UserFolder {
    AppData,        // application data        $XDG_CONFIG_HOME, ~/.config
    LocalAppData,   // the same, this machine  $XDG_DATA_HOME, ~/.local/share
    Documents,      // My Documents            XDG_DOCUMENTS_DIR of user-dirs.dirs, ~/Documents
    Cookies,        // cookies                 $XDG_STATE_HOME, ~/.local/state
    InternetCache,  // internet cache          $XDG_CACHE_HOME, ~/.cache
};

// Asks the system, every time. Empty when it has none; the folder need not exist.
std::string FindUserFolder(UserFolder folder);
// The folder of machine-wide settings: the Windows directory, /etc.
std::string SystemFolder();
// Where components that all programs share are installed: the system directory of Windows,
// /usr/lib/qxutility.
std::string SystemLibraryFolder();
// The name under which `folder` has a file or folder called `name`: where the system tells names
// apart by case, and only another spelling is there, that one. Otherwise `name`.
std::string SpellingInFolder(const std::string& folder, const std::string& name);

}  // namespace qx::platform

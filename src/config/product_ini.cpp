#include "config/product_ini.h"

#include "config/process.h"
#include "config/user_folders.h"
#include "platform/path_text.h"

#include <qxutility/config/ini_file.h>
#include <qxutility/core/text.h>

namespace qx {

// `name` in `folder`, as an existing file or folder of this name is spelled.
static std::string Inside(const std::string& folder, const char* name)
{
    return folder + platform::kSeparator + platform::SpellingInFolder(folder, name ? name : "");
}

const std::string& ProductIni(const char* folder, const char* file)
{
    std::string& path = Process().iniFileName;
    if (path.empty())
        path = Inside(Inside(UserFolderPath(platform::UserFolder::AppData), folder), file);
    return path;
}

}  // namespace qx

void GetINIFileName(const char* folder, const char* file, char* out)
{
    rstrncpy(out, qx::ProductIni(folder, file).c_str(), MAX_PATH);
}

void ChangeINIFileName(const char* path)
{
    qx::Process().iniFileName = path ? path : "";
}

#include "config/product_ini.h"
#include "config/user_folders.h"
#include "env/packages.h"
#include "env/recovery.h"
#include "env/wording.h"
#include "env/work_directories.h"
#include "platform/files.h"
#include "platform/key_state.h"
#include "platform/module.h"
#include "platform/path_text.h"
#include "platform/process_end.h"
#include "platform/profile.h"

#include <qxutility/config/ini_file.h>
#include <qxutility/config/startup.h>
#include <qxutility/env/first_run.h>

namespace qx {

using platform::kSeparator;

static constexpr int kIniFileMissing = 2;  // string: the configuration file could not be created
static constexpr int kEndProgram = 2, kExitCode = 911;

static void OfferRecovery(const char* company, const char* iniName)
{
    if (platform::IsKeyDown(platform::HeldKey::Shift) &&
        platform::IsKeyDown(platform::HeldKey::Control) &&
        TroubleShoot(company, iniName) == kEndProgram)
        platform::EndProcess(kExitCode);
}

static void MergeDefaults(const std::string& iniFile)
{
    const std::string folder = platform::ModuleFolder(platform::ThisModule());
    MergeINIFiles((folder + "Default.cfg").c_str(), iniFile.c_str());
}

static void MakeWorkDirectory(const char* key, const char* iniFile)
{
    std::string path = platform::ProfileValue(kDirectorySection, key, "", MAX_PATH, iniFile);
    if (path.empty()) {
        path = UserFolderPath(platform::UserFolder::Documents) + kSeparator +
               "My Engineering Files" + kSeparator + key;
        platform::WriteProfileString(kDirectorySection, key, path.c_str(), iniFile);
    }
    SmartCreateDir(path.c_str());
}

static void MakeWorkDirectories(const char* iniFile)
{
    for (const DirTypes kind :
         {DIR_CATALOGS, DIR_CURVES, DIR_PROJECTS, DIR_TABLES, DIR_DESIGNS, DIR_TOOLS})
        MakeWorkDirectory(WorkDirectoryKey(kind), iniFile);
}

static void MakeSettingsFolder(const char* company)
{
    const std::string appData = UserFolderPath(platform::UserFolder::AppData);
    SmartCreateDir((appData + kSeparator + (company ? company : "")).c_str());
}

static void ShowMissing(HWND owner, const std::string& iniFile)
{
    ErrorMessage(nullptr, Translated("Configuration Error"), owner, kIniFileMissing, MB_ICONHAND,
                 iniFile.c_str());
}

}  // namespace qx

bool InitINI(HWND owner, const char* company, const char* iniName)
{
    qx::OfferRecovery(company, iniName);
    const std::string iniFile = qx::ProductIni(company, iniName);
    const bool wasInOrder = qx::IsIniFileInOrder(iniFile);
    if (!qx::platform::FileExists(iniFile.c_str()))
        qx::MakeSettingsFolder(company);
    qx::MergeDefaults(iniFile);
    qx::MakeWorkDirectories(iniFile.c_str());
    qx::RunNewPackages(owner, iniFile.c_str());
    const bool exists = qx::platform::FileExists(iniFile.c_str());
    if (exists)
        qx::KeepGoodCopy(iniFile, wasInOrder);
    else if (owner)
        qx::ShowMissing(owner, iniFile);
    return exists;
}

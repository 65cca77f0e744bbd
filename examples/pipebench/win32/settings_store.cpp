#include "win32/settings_store.h"

#include "ids.h"
#include "win32/dialog_items.h"

#include <qxutility/config/ini_file.h>
#include <qxutility/env/first_run.h>

namespace pipebench {

static constexpr char kCompany[] = "Pipe Bench", kIniName[] = "PipeBench.ini";

static std::string IniPath()
{
    std::array<char, MAX_PATH> path{};
    GetINIFileName(kCompany, kIniName, path.data());
    return path.data();
}

Settings Start(HWND owner, Localisation& localisation)
{
    IniPath();                 // from now on the library knows the file ...
    localisation.UseStored();  // ... so that InitINI speaks the user's language
    InitINI(owner, kCompany, kIniName);
    localisation.UseStored();  // the user may have recovered other settings
    return ReadSettings(INIFile(IniPath().c_str()));
}

static void Write(HWND owner, const Localisation& localisation,
                  const std::vector<IniEntry>& entries)
{
    const std::string path = IniPath();
    for (const IniEntry& entry : entries) {
        if (::WritePrivateProfileStringA(entry.section.c_str(), entry.key.c_str(),
                                         entry.value.c_str(), path.c_str()))
            continue;
        ShowFault(owner, localisation, {IDS_NOT_SAVED, path});
        return;
    }
}

void Save(HWND owner, const Localisation& localisation, const Settings& settings)
{
    Write(owner, localisation, ToIniEntries(settings));
}

void SaveDirectories(HWND owner, const Localisation& localisation, const DirectoryPaths& paths)
{
    std::vector<IniEntry> entries;
    for (std::size_t i = 0; i < paths.size(); ++i)
        entries.push_back({"ID", kWorkDirectories[i].key, paths[i]});
    Write(owner, localisation, entries);
    ReadDirectories();  // the library remembers the old ones otherwise
}

bool ProposeMargins(const char* kind, const char* margins)
{
    static constexpr char kSection[] = "KVL PRINT";  // where the library keeps them
    const std::string key = std::string("Margins-") + kind, path = IniPath();
    std::array<char, 8> first{};
    return ::GetPrivateProfileStringA(kSection, key.c_str(), "", first.data(), first.size(),
                                      path.c_str()) != 0 ||
           ::WritePrivateProfileStringA(kSection, key.c_str(), margins, path.c_str());
}

DirectoryPaths ReadDirectories()
{
    DirectoryPaths paths;
    for (std::size_t i = 0; i < paths.size(); ++i) {
        std::array<char, MAX_PATH> path{};
        GetDirectory(kWorkDirectories[i].kind, path.data(), 1);
        paths[i] = path.data();
    }
    return paths;
}

}  // namespace pipebench

#include "env/packages.h"

#include "config/product_ini.h"
#include "core/folded_name.h"
#include "env/wording.h"
#include "platform/files.h"
#include "platform/library.h"
#include "platform/message_box.h"
#include "platform/module.h"
#include "platform/profile.h"

#include <qxutility/env/first_run.h>

#include <cstring>
#include <vector>

namespace qx {

static constexpr char kPackageSection[] = "PACKAGES", kMark[] = "EXECUTED";
static constexpr char kRunner[] = "script", kRunnerInTexts[] = "script.dll";

using RunPackage = int(HWND owner, const char* package, int one);

// The texts name the runner as it is called on Windows.
static void ShowPackageError(HWND owner, const char* wording)
{
    std::string text = Translated(wording);
    const std::string file = platform::ComponentFile(kRunner);
    for (std::size_t i = 0; i + std::strlen(kRunnerInTexts) <= text.size(); ++i) {
        const auto word = std::string_view(text).substr(i, std::strlen(kRunnerInTexts));
        if (SameName(word, kRunnerInTexts) && !SameName(word, file))
            text.replace(i, word.size(), file);
    }
    platform::ShowMessageBox(owner, text.c_str(), Translated("Install Packages").c_str(),
                             MB_ICONHAND);
}

static bool IsPackage(const platform::DirectoryEntry& entry)
{
    constexpr std::string_view kExtension = ".PKG";
    const std::string_view name = entry.name;
    return !entry.isDirectory && name.size() >= kExtension.size() &&
           SameName(name.substr(name.size() - kExtension.size()), kExtension);
}

void RunNewPackages(HWND owner, const char* iniFile)
{
    const platform::Library runner = platform::LoadComponent(kRunner);
    if (!runner)
        return ShowPackageError(owner,
                                "The file script.dll is missing.  Some components may not have "
                                "been installed.");
    const auto run = runner.Find<RunPackage>("RunTMS");
    if (!run)
        return ShowPackageError(owner,
                                "The file Script.DLL could not be linked.  Some components may "
                                "not have been installed.");
    const std::string folder = platform::ModuleFolder(platform::ThisModule());
    const auto entries = platform::ListDirectory(folder.c_str());
    if (!entries)
        return;
    for (const platform::DirectoryEntry& entry : *entries) {
        const char* name = entry.name.c_str();
        if (!IsPackage(entry) ||
            !platform::ProfileValue(kPackageSection, name, "", 20, iniFile).empty())
            continue;
        platform::WriteProfileString(kPackageSection, name, kMark, iniFile);
        run(owner, (folder + entry.name).c_str(), 1);
    }
}

// The keys of the section as a list, each ended by NUL.
static std::string RecordedPackages(const char* iniFile)
{
    std::string list(256, '\0');
    for (;;) {
        const auto size = static_cast<DWORD>(list.size());
        const DWORD length =
            platform::ProfileString(kPackageSection, nullptr, "", list.data(), size, iniFile);
        if (length < size - 2) {
            list.resize(length);
            return list;
        }
        list.resize(2 * list.size());
    }
}

}  // namespace qx

void ResetPackages(const char* iniFile)
{
    const std::string path = iniFile ? iniFile : qx::ProductIni("ZRW", "KVL.INI");
    // A key can be there several times: every round deletes one of each.
    std::size_t before = static_cast<std::size_t>(-1);
    for (std::string list = qx::RecordedPackages(path.c_str());
         !list.empty() && list.size() < before; list = qx::RecordedPackages(path.c_str())) {
        before = list.size();
        std::vector<qx::platform::ProfileEdit> edits;
        for (std::size_t i = 0; i < list.size(); i += std::strlen(&list[i]) + 1)
            edits.push_back({qx::kPackageSection, &list[i], nullptr});
        qx::platform::EditProfile(edits, path.c_str());
    }
}

// The settings and work directories in the product's INI file.
#pragma once

#include "core/localisation.h"
#include "core/settings.h"

#include <qxutility/env/directories.h>

#include <windows.h>

#include <array>

namespace pipebench {

// In the order of the options dialog; the keys are the library's.
struct WorkDirectory {
    DirTypes kind;
    const char* key;
};
inline constexpr std::array<WorkDirectory, 6> kWorkDirectories = {{
    {DIR_PROJECTS, "Projects"},
    {DIR_TABLES, "Tables"},
    {DIR_CATALOGS, "Catalogs"},
    {DIR_DESIGNS, "Designs"},
    {DIR_CURVES, "Curves"},
    {DIR_TOOLS, "Tools"},
}};
using DirectoryPaths = std::array<std::string, kWorkDirectories.size()>;

// Makes INI file and folders ready and reads the language and the settings. `owner` is for what has
// to be asked or told.
Settings Start(HWND owner, Localisation& localisation);

// Tells the user when something cannot be written.
void Save(HWND owner, const Localisation& localisation, const Settings& settings);
void SaveDirectories(HWND owner, const Localisation& localisation, const DirectoryPaths& paths);

DirectoryPaths ReadDirectories();

// The margins of a kind of report, "left,right,top,bottom" in thousandths of an inch, for when the
// user has not set any. False when they cannot be kept.
bool ProposeMargins(const char* kind, const char* margins);

}  // namespace pipebench

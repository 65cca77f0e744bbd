#include "win32/files.h"

#include "ids.h"

#include <qxutility/config/startup.h>
#include <qxutility/env/directories.h>

#include <windows.h>
#include <commdlg.h>

#include <array>

namespace pipebench {

std::string BesideProgram(const std::string& name)
{
    std::array<char, MAX_PATH> path{};
    ::GetModuleFileNameA(nullptr, path.data(), path.size());
    const std::string program = path.data();
    return program.substr(0, program.find_last_of('\\') + 1) + name;
}

static std::string CurvesDirectory()
{
    std::array<char, MAX_PATH> directory{};
    GetDirectory(DIR_CURVES, directory.data(), 0);
    return directory.data();
}

std::string CurvePath(const std::string& file)
{
    if (file.find_first_of("\\/:") != std::string::npos)
        return file;
    const std::string path = CurvesDirectory() + '\\' + file;
    const bool exists = ::GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES;
    return exists ? path : BesideProgram(file);
}

std::optional<std::string> ChooseCurveFile(HWND owner, const Localisation& localisation)
{
    std::array<char, 255> filter{};
    std::array<char, MAX_PATH> file{};
    OPENFILENAMEA dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.lpstrFilter = LoadFileFilter(localisation.Module(), filter.data(), IDS_CURVE_FILTER);
    dialog.lpstrFile = file.data();
    dialog.nMaxFile = file.size();
    const std::string directory = CurvesDirectory();
    dialog.lpstrInitialDir = directory.c_str();
    dialog.Flags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    if (!::GetOpenFileNameA(&dialog))
        return {};
    return file.data();
}

static bool IsFullPath(const std::string& path)
{
    return path.starts_with("\\\\") || path.find(":\\") == 1;
}

bool MakeDirectory(const std::string& path)
{
    if (!IsFullPath(path))
        return false;
    SmartCreateDir(path.c_str());
    const DWORD attributes = ::GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

}  // namespace pipebench

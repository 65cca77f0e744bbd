#include "win32/files.h"

#include "ids.h"

#include <qxutility/config/startup.h>

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

std::string CurvePath(const std::string& file)
{
    return file.find_first_of("\\/:") == std::string::npos ? BesideProgram(file) : file;
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
    dialog.Flags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    if (!::GetOpenFileNameA(&dialog))
        return {};
    return file.data();
}

}  // namespace pipebench

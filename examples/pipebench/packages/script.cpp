// The package runner of Pipe Bench, script.dll: InitINI has it run each new package once. A package
// of this program is a list of files beside it, one a line, that are copied into the user's
// directories: lines (*.pbl) into that of projects, all others into that of curves. What the user
// has there already stays.
#include <qxutility/env/directories.h>
#include <qxutility/formats/text_file.h>

#include <windows.h>

#include <array>
#include <string>

static std::string FolderOf(const std::string& path)
{
    return path.substr(0, path.find_last_of('\\') + 1);
}

static std::string TargetOf(const std::string& name)
{
    std::array<char, MAX_PATH> directory{};
    GetDirectory(name.ends_with(".PBL") ? DIR_PROJECTS : DIR_CURVES, directory.data(), 1);
    return std::string(directory.data()) + '\\' + name;
}

extern "C" __declspec(dllexport) int RunTMS(HWND, const char* package, int)
{
    TextFile list(package);
    for (std::string name; !list.eof();) {
        list.ReadLine(name);
        const std::string from = FolderOf(package) + name;
        if (!name.empty())
            ::CopyFileA(from.c_str(), TargetOf(name).c_str(), TRUE);
    }
    return 1;
}

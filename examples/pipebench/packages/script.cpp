// The package runner of Pipe Bench, script.dll: InitINI has it run each new package once. A package
// of this program is a list of files beside it, one a line, that are copied into the user's
// directory of curves; what the user has there already stays.
#include <qxutility/env/directories.h>
#include <qxutility/formats/text_file.h>

#include <windows.h>

#include <array>
#include <string>

static std::string FolderOf(const std::string& path)
{
    return path.substr(0, path.find_last_of('\\') + 1);
}

extern "C" __declspec(dllexport) int RunTMS(HWND, const char* package, int)
{
    std::array<char, MAX_PATH> curves{};
    GetDirectory(DIR_CURVES, curves.data(), 1);
    TextFile list(package);
    for (std::string name; !list.eof();) {
        list.ReadLine(name);
        const std::string from = FolderOf(package) + name;
        const std::string to = std::string(curves.data()) + '\\' + name;
        if (!name.empty())
            ::CopyFileA(from.c_str(), to.c_str(), TRUE);
    }
    return 1;
}

#include "win32/files.h"

#include <windows.h>

#include <array>

namespace pipebench {

std::string BesideProgram(const std::string& name)
{
    std::array<char, MAX_PATH> path{};
    ::GetModuleFileNameA(nullptr, path.data(), path.size());
    const std::string program = path.data();
    return program.substr(0, program.find_last_of('\\') + 1) + name;
}

std::string WorkDirectoryOf(DirTypes kind)
{
    std::array<char, MAX_PATH> directory{};
    GetDirectory(kind, directory.data(), 0);
    return directory.data();
}

std::string CurvePath(const std::string& file)
{
    if (file.find_first_of("\\/:") != std::string::npos)
        return file;
    const std::string path = WorkDirectoryOf(DIR_CURVES) + '\\' + file;
    const bool exists = ::GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES;
    return exists ? path : BesideProgram(file);
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

// Where the program's files are.
#pragma once

#include <qxutility/env/directories.h>

#include <string>

namespace pipebench {

// The path of a file beside the program.
std::string BesideProgram(const std::string& name);
// The path of a pump curve's file as the user wrote it: a bare name is in the directory of curves
// or, where that has no such file, beside the program.
std::string CurvePath(const std::string& file);
// The user's folder for a kind of files.
std::string WorkDirectoryOf(DirTypes kind);
inline constexpr int kLongestDirectory = 240;  // leaves room for the name of a file
// Makes a directory with all of its parents; false when there is none of this full path then.
bool MakeDirectory(const std::string& path);

}  // namespace pipebench

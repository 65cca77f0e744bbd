// INI files: text files of [section] lines with key=value lines below them. INIFile reads one as a
// whole; the functions keep the product's settings with the operating system's profile functions.
#pragma once

#include <qxutility/export.h>
#include <qxutility/types.h>

// The path of the product's INI file: the file `file` in the subfolder `folder` of the application
// data. The first call fixes it for the whole process; after that `folder` and `file` are not
// looked at. `out` must hold MAX_PATH bytes; a longer path is cut.
QX_API void GetINIFileName(const char* folder, const char* file, char* out);
// Sets the path of the product's INI file; with an empty path the next GetINIFileName fixes it.
QX_API void ChangeINIFileName(const char* path);

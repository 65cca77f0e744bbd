// Where the applications' files live, and what a first start sets up.
//
// Paths are in the process's 8-bit code page, with the system's separator ('\' on Windows, '/'
// elsewhere). What fails to be created or written is not reported, but for what InitINI says.
#pragma once

#include <qxutility/export.h>
#include <qxutility/types.h>

enum DirTypes : int {
    DIR_APPDATA = 0,       // the user's application data; on Linux $XDG_CONFIG_HOME
    DIR_LOCALAPPDATA = 1,  // the same, of this machine only; $XDG_DATA_HOME
    DIR_DOCUMENTS = 2,     // the user's documents; XDG_DOCUMENTS_DIR
    DIR_PROJECTS = 3,      // 3 to 7 and 10: work directories, as the product's INI file has them
    DIR_TABLES = 4,        //   in section "ID" under "Projects", "Tables" ...
    DIR_CATALOGS = 5,
    DIR_DESIGNS = 6,
    DIR_CURVES = 7,
    DIR_COOKIES = 8,        // the browser's cookies; $XDG_STATE_HOME
    DIR_INTERNETCACHE = 9,  // the browser's cache; $XDG_CACHE_HOME
    DIR_TOOLS = 10,
};

// Puts a directory's path, without a separator at its end, into `dir`, which must hold MAX_PATH
// bytes; a longer path is cut. Empty for an unknown kind and for a work directory that the INI file
// does not have; the Windows directory (/etc) when the system does not know one of the user's.
// Application data are asked for once per process. Work directories are remembered as well;
// `reload` reads the INI file again.
QX_API void GetDirectory(DirTypes kind, char* const dir, int reload);

// Creates a directory and all of its parents that are missing. One separator at the end of `path`
// is ignored.
QX_API void SmartCreateDir(const char* path);

// Replaces the extension of a file's name, in place: "C:\x\report.txt" and "csv" give
// "C:\x\report.csv". A name without an extension gets it. `extension` comes without its dot;
// `fileName` must have room for the result. Returns `fileName`.
QX_API char* GetDataFile(char* fileName, const char* extension);

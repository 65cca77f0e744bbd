// What an application calls when it starts: the INI file, the user's folders and newly installed
// packages are made ready; settings that are damaged can be recovered.
#pragma once

#include <qxutility/export.h>
#include <qxutility/types.h>

// Prepares the start of a program whose settings are in the file `iniName` in the folder `company`
// of the user's application data (unless GetINIFileName was called before: then in that file).
//   1. With Ctrl and Shift held down, TroubleShoot is asked; on its answer 2 the process ends with
//      exit code 911.
//   2. The file's folder is created, "Default.cfg" beside the library is merged into the file.
//   3. The work directories that section "ID" names (Catalogs, Curves, Projects, Tables, Designs,
//      Tools) are created; one without a value gets a folder of that name in the folder
//      "My Engineering Files" of the user's documents.
//   4. Every "*.PKG" beside the library that is not recorded in section "PACKAGES" yet is recorded
//      there and then run: script.dll (on Linux script.so), looked for beside the program, beside
//      the library and in the system's folder, has the entry point
//          int RunTMS(HWND owner, const char* package, int one)
//      A box tells of a missing library or entry point.
// Returns whether the INI file exists; when it does not and there is an `owner`, a box says so. A
// copy of an INI file that was in order stays beside it ("<name>.good").
QX_API bool InitINI(HWND owner, const char* company, const char* iniName);

// Forgets which packages have run, so that the next InitINI runs them all. With null, in the
// product's INI file.
QX_API void ResetPackages(const char* iniFile);

// Asks the user how a program with damaged settings is to start: with the present settings, with
// those of the last successful InitINI, or with default ones. Settings that were given up stay
// beside the INI file ("<name>.old").
// Returns 0 (nothing was changed), 1 (the settings were replaced or removed) or 2 (the user wants
// the program to end).
QX_API int TroubleShoot(const char* company, const char* iniName);

// The library's process-wide state: created at attach, torn down at detach, so that a test can
// start from nothing. It belongs to the user-interface thread and is not guarded.
#pragma once

#include <qxutility/config/language.h>
#include <qxutility/config/table_reader.h>

#include <array>
#include <memory>
#include <string>

namespace qx {

// Directories that were asked for; empty until then.
struct DirectoryCache {
    std::string appData, localAppData;
    std::array<std::string, 11> fromIni;  // by DirTypes
};

struct ProcessState {
    CLanguage language;                   // English without a table before the first attach
    HINSTANCE module = nullptr;           // the library's own module; null while detached
    std::unique_ptr<CTableReader> table;  // the library's language table; null when there is none
    std::string iniFileName;              // the product INI file; empty until first asked for
    DirectoryCache directories;
    int helpObjects = 0;  // HTML_HELP objects there are; they outlive a detach
    bool assertsOff = false;
    bool assertSilenced[2] = {};  // AssertMessage with and without an expression
};

ProcessState& Process();

// Opens the language table beside `module` and attaches the language object. A second attach
// without a detach between does nothing.
void AttachProcess(HINSTANCE module);
void DetachProcess();

}  // namespace qx

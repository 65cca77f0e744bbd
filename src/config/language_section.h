// Names of the language-specific sections of INI files.
#pragma once

#include <qxutility/types.h>

#include <string>

namespace qx {

// "section - language name", the name as the process's language object puts it into a buffer of
// `size` bytes.
std::string LanguageSection(const char* section, int size, DWORD lcid);

}  // namespace qx

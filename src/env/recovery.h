// The last good copy of an INI file.
#pragma once

#include <string>

namespace qx {

// Whether a file can be the settings of a program that has run before: a text with a section.
bool IsIniFileInOrder(const std::string& iniFile);
// Makes the file's state the last good copy, "<name>.good". When the file was not in order before
// this start, an older copy stays: the user may want it back at the next one.
void KeepGoodCopy(const std::string& iniFile, bool wasInOrder);

}  // namespace qx

// Where the system finds programs and files.
#pragma once

#include <string>

namespace qx::platform {

// The full path of the file that the system's search order finds for `name`, with `extension`
// (".exe") added to a name that has none; empty when it finds none, and for a null or empty name.
//   Windows  the program's folder, the system's folders, the current folder, PATH; a name with a
//            folder is looked for there only; it may be any file, and a folder.
//   POSIX    the folders of PATH; a name with a slash is looked for there only; executable files
//            count. As programs have no extension there, the name as it stands is tried in all
//            folders before the name with the extension is.
// A null or empty extension adds nothing.
std::string FindProgram(const char* name, const char* extension);
// The same for a file of any kind. On POSIX the folders are the program's, the current one and
// those of PATH; every regular file counts, and a folder does not.
std::string FindFile(const char* name, const char* extension);

}  // namespace qx::platform

#include "platform/directories.h"
#include "platform/library.h"
#include "platform/module.h"
#include "platform/path_text.h"

namespace qx::platform {

Library LoadComponent(std::string_view name)
{
    const std::string folders[] = {ModuleFolder(nullptr), ModuleFolder(ThisModule()),
                                   SystemLibraryFolder() + kSeparator};
    for (const std::string& folder : folders) {
        if (folder.size() < 2)
            continue;  // unknown: a bare name would be looked for elsewhere, too
        if (Library library((folder + ComponentFile(name)).c_str()); library)
            return library;
    }
    return {};
}

}  // namespace qx::platform

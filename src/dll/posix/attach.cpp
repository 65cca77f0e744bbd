// Load and unload of the shared library.
#include "config/process.h"
#include "dll/posix/built_in_strings.h"
#include "platform/module.h"

namespace qx {

// Attached while this object lives: from the load of the library to its unload or the end of the
// process, before the state itself, which is made first, is destroyed.
static const struct Attachment {
    Attachment()
    {
        RegisterBuiltInStrings(platform::ThisModule());
        AttachProcess(platform::ThisModule());
    }
    Attachment(const Attachment&) = delete;
    Attachment& operator=(const Attachment&) = delete;
    ~Attachment() { DetachProcess(); }
} attachment;

}  // namespace qx

#include "dll/posix/built_in_strings.h"

#include <qxutility/host.h>

namespace qx {

void RegisterBuiltInStrings(HINSTANCE module)
{
    static constexpr struct {
        unsigned id;
        const char* text;
    } kStrings[] = {
#include "built_in_strings.inc"
    };
    for (const auto& string : kStrings)
        host::RegisterString(module, string.id, string.text);
}

}  // namespace qx

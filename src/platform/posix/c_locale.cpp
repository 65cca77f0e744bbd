#include "platform/c_locale.h"

#include <langinfo.h>

namespace qx::platform {

// localeconv() would fill a whole structure for this one character.
char CLocalePoint()
{
    const char point = *::nl_langinfo(RADIXCHAR);
    return point ? point : '.';
}

}  // namespace qx::platform

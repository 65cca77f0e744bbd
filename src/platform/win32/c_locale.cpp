#include "platform/c_locale.h"

#include <clocale>

namespace qx::platform {

char CLocalePoint()
{
    const char point = *std::localeconv()->decimal_point;
    return point ? point : '.';
}

}  // namespace qx::platform

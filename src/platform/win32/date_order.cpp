#include "platform/date_order.h"

#include <windows.h>

namespace qx::platform {

std::string ShortDatePattern()
{
    char pattern[20];
    const DWORD length = ::GetProfileStringA("Intl", "sShortDate", "M", pattern, sizeof pattern);
    return std::string(pattern, length);
}

}  // namespace qx::platform
